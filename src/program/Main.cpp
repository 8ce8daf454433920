// Start-up, in its fixed order: the texts before the command line, as a message may be needed; the options before the
// folders of the language; everything before the first form.
#include "dbupdate/UpdateDatabase.h"
#include "program/Program.h"
#include "state/CommandLine.h"
#include "state/Folders.h"

namespace trekor {

namespace {
constexpr const char* EmptyCommandLine = "Use Veldmark Control Center to start this program...";
} // namespace

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
  const auto update =
      UpdateDatabase(state.folders, platform, "HardWare", state.folders.MdbFolder, state.command.HardwareName);
  if (update.programEnds)
    return false;
  state.versions.HardWare = update.version;
  const std::string path = state.folders.MdbFolder + "\\" + state.command.HardwareName + ".mdb";
  HardwareDb = Database::Open(platform.drives.NativePath(path), OpenMode::Shared);
  state.run.DmiReceived = false;
  return HardwareDb != nullptr;
}

} // namespace trekor
