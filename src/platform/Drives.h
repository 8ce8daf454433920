// Drives, folders and files under drive letters and backslashes. The program state, the databases and the wire hold
// such paths only; the adapter alone knows what they are on this machine. Names are found without regard to case.
#pragma once

#include <string>
#include <vector>

namespace trekor {

class Drives {
public:
  virtual ~Drives() = default;
  // The path that the operating system understands. A missing last part keeps the case it was given in; existing parts
  // are found whatever their case. Never stored, never sent.
  virtual std::string NativePath(const std::string& path) = 0;
  virtual bool DriveExists(char letter) = 0;
  // The letter of the share prefix of a network drive, empty for a local one.
  virtual std::string RemoteName(char letter) = 0;
  virtual bool FileExists(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  // Makes one level. True when the folder exists afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;
  // Copies over an existing file. False when anything failed; a failed copy leaves no half file under the target's name
  // when there was none before. The copy and its folder are on the disk (synced) when the call returns true.
  virtual bool CopyFile(const std::string& from, const std::string& to) = 0;
  // Brings a file and its name in the folder onto the disk; true when both are there.
  virtual bool SyncFile(const std::string& path) = 0;
  virtual bool DeleteFile(const std::string& path) = 0;
  // Clears the read-only attribute of a file.
  virtual void ClearReadOnly(const std::string& path) = 0;
  // Names (without folder) of the ordinary files in a folder that match a pattern of "*" and "?", in the order of the
  // directory listing: by name, without regard to case. "*.*" matches every file; ".*" matches no ordinary file.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;
  virtual std::vector<std::string> Folders(const std::string& folder) = 0;
  // The current folder and its change (the process's own).
  virtual std::string CurrentFolder() = 0;
};

} // namespace trekor
