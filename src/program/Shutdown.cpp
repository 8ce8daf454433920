// The end of the program. Every way out (menu, link, close box) comes to this one unload.
#include "program/Program.h"

namespace trekor {

void Program::UnloadMainForm() {
  if (unloaded)
    return; // the window closes as a consequence of the first call
  unloaded = true;
  measurements.Subjects().wayOut.StopAndClose();
  measurements.UnloadForms();
  texts.SaveFormProperties(form);
  socket.Unload();
  platform.shell.Unload(form);
  sections.CloseSections();
  HardwareDb.reset();
  texts.Close();
  messages.Close();
  options.Close();
  setupDatabase.CloseDatabase();
  platform.process.End();
}

} // namespace trekor
