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
  // Only the letters A to Z are drives.
  virtual bool DriveExists(char letter) = 0;
  // The share behind the letter of a network drive, "\\HOST\Share"; empty for a local one.
  virtual std::string RemoteName(char letter) = 0;
  virtual bool FileExists(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  // Makes one level, never a drive. True when the folder exists afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;
  // Copies over an existing file. True when the copy stands whole and on the disk (synced), its name too. It is built
  // under another name beside the target first, so that at no instant, whatever fails, the target is half there: until
  // the last step the older file stands. A database's log that a killed program left beside the target belongs to the
  // rows that are replaced; it goes with them, or the engine would play it into the copy. A log beside the source is
  // not followed: the caller closes a database before it is copied.
  virtual bool CopyFile(const std::string& from, const std::string& to) = 0;
  // The same last step for a successor that the caller has built and closed at WorkPath(path): it goes onto the disk
  // and takes the place of the older file and its log. False when that failed; the older file then stands as it was.
  virtual bool ReplaceFile(const std::string& work, const std::string& path) = 0;
  // A name in the folder of `path` for building its successor. No listing shows it, and what a killed program left
  // there goes at the next copy into that folder.
  static std::string WorkPath(const std::string& path) {
    return path.substr(0, path.rfind('\\') + 1) + ".trekor-new.part";
  }
  // Brings a file and its name in the folder onto the disk; true when both are there.
  virtual bool SyncFile(const std::string& path) = 0;
  virtual bool DeleteFile(const std::string& path) = 0;
  // Clears the read-only attribute of a file.
  virtual void ClearReadOnly(const std::string& path) = 0;
  // Names (without folder) of the files in a folder that match a pattern of "*" and "?", in the order of the directory
  // listing: by name, without regard to case. "NAME.*" matches NAME too, and so "*.*" every file.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;
  virtual std::vector<std::string> Folders(const std::string& folder) = 0;
  // The current folder and its change (the process's own).
  virtual std::string CurrentFolder() = 0;
};

} // namespace trekor
