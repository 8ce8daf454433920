// Drives on this machine's file system. On Windows a path stands for itself. Elsewhere one folder holds a subfolder for
// each drive ("C", "D", ...), and names below it are found without regard to case.
//
// A path without a drive letter begins at the root of the program's drive, or in the program's folder when it has no
// leading backslash. "..", however often, never leads out of its drive. A path that can name no file ("1:\a", a NUL, a
// share where drives are folders) has an empty native path, and every operation on it fails.
#pragma once

#include "platform/Drives.h"

#include <filesystem>

namespace trekor {

// What each operating system does its own way.
namespace native {
// The folder of the drives: the variable TREKOR_DRIVES, else below the user's data home. Empty where drives are real.
std::filesystem::path DrivesRoot();
// The native path; one without a drive letter begins in `current`. Empty when it can name no file.
std::filesystem::path PathOf(const std::filesystem::path& root, const std::string& path, const std::string& current);
bool DriveExists(const std::filesystem::path& root, char letter);
std::string RemoteName(char letter);
// Writes a file, or the names in a folder, through to the disk.
bool SyncFile(const std::filesystem::path& file);
bool SyncFolder(const std::filesystem::path& folder);
// Writes everything of the file system of this path through to the disk.
void SyncAll(const std::filesystem::path& path);
// Puts a file in the place of another in one step.
bool Replace(const std::filesystem::path& from, const std::filesystem::path& to);
} // namespace native

// Between UTF-8 and the system's own path type.
std::filesystem::path PathFromText(const std::string& utf8);
std::string TextFromPath(const std::filesystem::path& path);

class FileDrives : public Drives {
public:
  // Makes drive C in `root` when it is missing.
  explicit FileDrives(std::filesystem::path root = native::DrivesRoot(), std::string programFolder = "C:\\Trekor");

  std::string NativePath(const std::string& path) override;
  bool DriveExists(char letter) override;
  std::string RemoteName(char letter) override;
  std::string ControlCentreShare() override;
  bool FileExists(const std::string& path) override;
  bool FileMissing(const std::string& path) override;
  bool FolderExists(const std::string& path) override;
  bool MakeFolder(const std::string& path) override;
  bool CopyFile(const std::string& from, const std::string& to) override;
  bool ReplaceFile(const std::string& work, const std::string& path) override;
  bool SyncFile(const std::string& path) override;
  bool DeleteFile(const std::string& path) override;
  void ClearReadOnly(const std::string& path) override;
  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) override;
  std::vector<std::string> Folders(const std::string& folder) override;
  std::string CurrentFolder() override { return programFolder; }

  // A writable copy of a native file, whole at every moment but not yet synced; the folders above it are made.
  bool Install(const std::filesystem::path& source, const std::string& to);
  // The native folder of the drives; empty where drives are real.
  std::string Root() const { return TextFromPath(root); }

protected:
  // Writes a file or the names in a folder through to the disk. Tests let it fail.
  virtual bool OnDisk(const std::filesystem::path& path);

private:
  std::filesystem::path Path(const std::string& path);
  std::vector<std::string> Names(const std::string& folder, const std::string& pattern, bool folders);
  bool PutInPlace(const std::filesystem::path& work, const std::filesystem::path& target);

  std::filesystem::path root;
  std::string programFolder;
};

} // namespace trekor
