#include "program/Program.h"

#include "dbupdate/UpdateDatabase.h"
#include "state/CommandLine.h"
#include "state/Folders.h"

// Includes every room of the logic, so a room that is built with the toolkit stops the build here.
#if __has_include(<QString>)
#error "the logic is built without the toolkit"
#endif

namespace trekor {

namespace {
constexpr const char* EmptyCommandLine = "Use Veldmark Control Center to start this program...";
} // namespace

Program::Program(Platform& p)
    : platform(p), SendKeysObject(p), texts(state, p), messages(state, p, texts), options(state, p, messages),
      setupDatabase(state, p), setup(state, setupDatabase, form.imlObsPicsUCaseKeys), dataFiles(state, p),
      comma(CommaSourcesOf(state), p.drives, dataFiles), socket(state, p, texts, form), sections(state, p, socket),
      dialogs(state, p, texts, messages, sections), optionsDialog(state, p, texts, options),
      measurements(form, RunRooms{state, p, texts, messages, options, sections, setupDatabase, setup, dataFiles, comma,
                                  socket, dialogs, optionsDialog, SendKeysObject}),
      dispatcher(state, p.drives, socket, sections, RunOrders(measurements.Subjects())) {
  // The link is below the run and the dispatcher is above it: they are tied together here.
  socket.dispatch = [this](std::string_view line) { dispatcher.Dispatch(line); };
  measurements.Subjects().wayOut.unloadMainForm = [this] { UnloadMainForm(); };
  form.OnUnload = [this] { UnloadMainForm(); };
}

Program::~Program() = default;

// In a fixed order: the texts before the command line, as a message may be needed; the options before the folders of
// the language; everything before the first form.
bool Program::Main() {
  if (platform.process.PreviousInstance())
    return false; // silently
  state.units.DecimalChar = platform.process.DecimalChar();
  FolderRoots(state.folders, platform);
  if (!texts.Open())
    return false;
  if (!ReadCommandLine(platform.process.CommandLine(), state.command, state.run)) {
    platform.shell.MsgBox(EmptyCommandLine, "Veldmark Trekor", BoxIcon::Exclamation);
    texts.Close();
    return false;
  }
  AudioFolders(state.folders);
  if (!options.LoadSoftwareDatabases())
    return false;
  LanguageAudioFolder(state.folders, state.command.Language, platform.drives);
  if (!InitHardware() || !dataFiles.InitDataFiles() || !setupDatabase.LoadDatabase() || !sections.LoadSections())
    return false;
  measurements.LoadForm();
  return true;
}

// The per-vehicle database is opened and kept open; data collection reads nothing from it.
bool Program::InitHardware() {
  HardwareDb.reset();
  auto update =
      UpdateDatabase(state.folders, platform, "HardWare", state.folders.MdbFolder, state.command.HardwareName);
  if (update.programEnds)
    return false;
  state.versions.HardWare = update.version;
  if (!state.command.HardwareName.empty())
    HardwareDb = std::move(update.database);
  else // a vehicle without a name has none, and the program ends
    platform.shell.MsgBox("Cannot open " + state.folders.MdbFolder + "\\.mdb", state.folders.programName,
                          BoxIcon::Stop);
  state.run.DmiReceived = false;
  return HardwareDb != nullptr;
}

// Every way out (menu, link, close box) comes to this one unload.
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
