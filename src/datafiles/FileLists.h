// The lists of drives, folders and data files of a form. A drive or folder that has gone meanwhile brings the lists
// back to one that is there.
#pragma once

#include "forms/Controls.h"
#include "platform/Drives.h"

#include <string>

namespace trekor {

struct FileListControls {
  ComboBox& DriveSelect;
  ListBox &DirectorySelect, &FileSelect;
};

class FileLists {
public:
  // The folder is "C:\" for a root and otherwise without trailing backslash. It is kept by the caller.
  FileLists(Drives& drives, const FileListControls& controls, std::string& folder);
  // For a form that comes up: in the folder of before, else in the current one.
  void Fill();
  const std::string& Folder() const { return folder; }
  char Drive() const; // its letter, as a capital
  // Without trailing backslash for a root, too: the way data files name it.
  std::string DataPath() const;
  std::string Path(const std::string& name) const { return DataPath() + "\\" + name; } // of a file or folder in it
  void ChooseFolder(const std::string& path);
  std::string Selected() const; // the name of the chosen file, "" for none
  void FillFiles();             // again, with nothing chosen
  // The key of the folder list; without the mouse, Right goes into the chosen folder and Left out of it.
  bool FolderKey(int keyCode);
  void OpenFolder(); // the chosen one
  // The lists have been filled for another folder; before OnDrive, when that has changed as well.
  Handler OnFolder, OnDrive;

private:
  void FillDrives();
  void ChooseDrive();
  void LeaveFolder();

  Drives& drives;
  FileListControls controls;
  std::string& folder;
  char shownDrive = 0; // 0: none
};

} // namespace trekor
