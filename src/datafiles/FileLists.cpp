#include "datafiles/FileLists.h"

#include "values/KeyCodes.h"
#include "values/Text.h"

#include <utility>

namespace trekor {
namespace {

constexpr const char *FolderAbove = "..", *SystemDrive = "C:\\", *DataFilePattern = "*.MDB";

std::string WithoutBackslash(std::string path) {
  if (!path.empty() && path.back() == '\\')
    path.pop_back();
  return path;
}

bool IsRoot(const std::string& path) {
  return path.size() <= 3;
}

std::string RootOf(const std::string& path) {
  return path.substr(0, 2) + "\\";
}

} // namespace

FileLists::FileLists(Drives& allDrives, const FileListControls& lists, std::string& keptFolder)
    : drives(allDrives), controls(lists), folder(keptFolder) {
  controls.DriveSelect.OnClick = [this] { ChooseDrive(); };
  controls.DirectorySelect.OnDblClick = [this] { OpenFolder(); };
  controls.DirectorySelect.OnKeyDown = [this](int keyCode, int) { return FolderKey(keyCode); };
}

void FileLists::Fill() {
  if (folder.empty() || !drives.FolderExists(folder))
    folder = drives.CurrentFolder();
  if (folder.find(':') == std::string::npos)
    folder = SystemDrive;
  FillDrives();
  ChooseFolder(folder);
}

void FileLists::FillDrives() {
  ComboBox& list = controls.DriveSelect;
  const auto choose = std::exchange(list.OnClick, nullptr); // the folder is chosen already
  list.Clear();
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    if (drives.DriveExists(letter))
      list.AddItem(std::string(1, letter) + ":");
  list.SetText(Upper(folder.substr(0, 2)));
  list.OnClick = choose;
}

void FileLists::ChooseDrive() {
  shownDrive = 0; // chosen again, it may be another medium
  ChooseFolder(controls.DriveSelect.Text() + "\\");
}

// A folder that was removed gives its drive, and a medium that was taken out the system's.
void FileLists::ChooseFolder(const std::string& path) {
  folder = IsRoot(path) ? RootOf(path) : WithoutBackslash(path);
  if (!drives.FolderExists(folder))
    folder = RootOf(path);
  if (!drives.FolderExists(folder)) {
    folder = SystemDrive;
    FillDrives();
  }
  const bool otherDrive = std::exchange(shownDrive, Drive()) != Drive();
  ListBox& list = controls.DirectorySelect;
  list.Clear();
  if (!IsRoot(folder))
    list.AddItem(FolderAbove);
  list.AddItems(drives.Folders(folder));
  FillFiles();
  Raise(OnFolder);
  if (otherDrive)
    Raise(OnDrive);
}

void FileLists::FillFiles() {
  controls.FileSelect.Clear();
  controls.FileSelect.AddItems(drives.Files(folder, DataFilePattern));
}

void FileLists::OpenFolder() {
  const std::string name = controls.DirectorySelect.List(controls.DirectorySelect.ListIndex());
  if (name == FolderAbove)
    LeaveFolder();
  else if (!name.empty())
    ChooseFolder(Path(name));
}

void FileLists::LeaveFolder() {
  if (!IsRoot(folder))
    ChooseFolder(folder.substr(0, folder.rfind('\\')));
}

bool FileLists::FolderKey(int keyCode) {
  if (keyCode == keys::Right)
    OpenFolder();
  else if (keyCode == keys::Left || keyCode == keys::Backspace)
    LeaveFolder();
  else
    return false;
  return true;
}

char FileLists::Drive() const {
  return Upper(folder.substr(0, 1))[0];
}

std::string FileLists::DataPath() const {
  return WithoutBackslash(folder);
}

std::string FileLists::Selected() const {
  return controls.FileSelect.List(controls.FileSelect.ListIndex());
}

} // namespace trekor
