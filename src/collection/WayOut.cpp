#include "collection/WayOut.h"

namespace trekor {

void WayOut::mnuExit_Click() {
  if (stage.MayLeave() && unloadMainForm)
    unloadMainForm();
}

void WayOut::LeaveWhenDue() {
  if (stage.LeaveIsDue())
    mnuExit_Click();
}

void WayOut::StopAndClose() {
  stage.BeginEnding();
  timer.SetRunning(false);
  if (stage.InRun())
    stepping.TakeKeyStation(); // as the key of a stop does, or the last span would end where the last key was pressed
  run.EndAtOnce();
  if (stage.FileOpen())
    fileMenu.mnuClose_Click();
}

} // namespace trekor
