#include "state/Folders.h"

#include "state/Version.h"
#include "values/Text.h"

namespace trekor {

namespace {

constexpr float FirstServedWindows = 2006;

std::string WithoutTrailingBackslash(std::string path) {
  if (!path.empty() && path.back() == '\\')
    path.pop_back();
  return path;
}

// The path without its last folder; a path of one part stays whole.
std::string ParentOf(const std::string& path) {
  if (path.size() < 2)
    return path;
  const std::size_t at = path.rfind('\\', path.size() - 2);
  return at == std::string::npos || at == 0 ? path : path.substr(0, at);
}

void RootTheTree(FolderPaths& folders) {
  const std::string drive = folders.AppPath.substr(0, 1);
  folders.RootFolder = drive + ":\\Veldmark\\Trekor";
  folders.SharedMdbFolder = drive + ":\\Veldmark\\Parcels\\MDB";
  folders.VdbFolder = folders.RootFolder + "\\VDB";
  folders.MdbFolder = folders.RootFolder + "\\MDB";
}

void MakeMdbFolder(const std::string& folder, Drives& drives) {
  if (drives.FolderExists(folder) || drives.MakeFolder(folder))
    return;
  if (!SameText(folder.substr(0, 1), "C"))
    drives.MakeFolder("C" + folder.substr(1)); // made only: MdbFolder keeps its drive
}

} // namespace

void FolderRoots(FolderPaths& folders, Platform& platform) {
  folders.WinVersion = platform.process.WindowsVersion();
  folders.AppVersion =
      std::to_string(VersionMajor) + "." + std::to_string(VersionMinor) + "." + std::to_string(VersionRevision);
  folders.ComputerName = CutText(platform.process.ComputerName(), 15); // as long as a computer name of the network
  folders.programName = platform.process.ProgramName();
  folders.AppPath = WithoutTrailingBackslash(platform.process.ProgramFolder());
  folders.ParentPath = ParentOf(folders.AppPath);
  RootTheTree(folders);
  folders.HardwareCreated = !platform.drives.FileExists(folders.MdbFolder + "\\" + folders.programName + ".mdb");
  if (folders.WinVersion >= FirstServedWindows) {
    MakeMdbFolder(folders.MdbFolder, platform.drives);
    // Anew at every start, whether or not it is there; without a template nothing happens.
    platform.drives.CopyFile(folders.VdbFolder + "\\Hardware.vdb", folders.MdbFolder + "\\7707-XXX.mdb");
  }
}

void AudioFolders(FolderPaths& folders) {
  folders.GraphicsPath = folders.AppPath + "\\Graphics\\";
  folders.VideoPath = folders.AppPath + "\\Video\\";
  folders.AudioEnglishPath = folders.AppPath + "\\Audio\\English\\";
  folders.AudioTonesPath = folders.AppPath + "\\Audio\\Tones\\";
  folders.AudioSystemPath = folders.AppPath + "\\Audio\\SystemSounds\\";
}

void LanguageAudioFolder(FolderPaths& folders, const std::string& language, Drives& drives) {
  const std::string folder = folders.AppPath + "\\Audio\\" + language;
  folders.AudioLanguagePath = drives.Files(folder, "*.*").empty() ? folders.AudioEnglishPath : folder + "\\";
}

} // namespace trekor
