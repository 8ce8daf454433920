// Drives, folders and files under drive letters and backslashes. The program state, the databases and the link hold
// such paths only; the adapter alone knows where they are on this machine. Names are found without regard to case. A
// failure is false or an empty answer; nothing throws.
#pragma once

#include <string>
#include <vector>

namespace trekor {

// The path for the operating system; "" for a path that can name no file. Existing parts are found whatever their case,
// missing ones keep the case as given. Never stored, never sent. Code that only opens files takes this instead of the
// drives.
class Paths {
public:
  virtual ~Paths() = default;
  virtual std::string NativePath(const std::string& path) = 0;
};

class Drives : public Paths {
public:
  // False for anything but the letters A to Z and a to z.
  virtual bool DriveExists(char letter) = 0;
  // The share behind the letter of a network drive as server and share, "\\HOST\Roads"; "" for a local drive, and on
  // systems without drive letters.
  virtual std::string RemoteName(char letter) = 0;
  // With what the shares of the control program's machine begin, "\\\\VCC"; a setting of this machine, "" for none.
  virtual std::string ControlCentreShare() = 0;
  virtual bool FileExists(const std::string& path) = 0;
  // True when nothing has this name for certain. False, too, when that could not be found out: what is not known to be
  // missing must not be replaced as if it were.
  virtual bool FileMissing(const std::string& path) = 0;
  virtual bool FolderExists(const std::string& path) = 0;
  // Makes one level, but never a drive. True when the folder exists afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;
  // Copies over an existing file. True when the whole copy and its name are on the disk (synced). It is built under a
  // work name beside the target, so that the target is the older file until the last step, whatever fails. A log that a
  // killed program left beside the target is removed with the rows it belongs to: the engine would play it into the
  // copy. A log beside the source is not copied: the caller closes a database first. False for a read-only target and
  // for a file onto itself.
  virtual bool CopyFile(const std::string& from, const std::string& to) = 0;
  // The last step of CopyFile for a successor that the caller has built and closed at WorkPath(path): it is synced and
  // takes the place of the older file and its log. When false, the older file is still there and the work file is left
  // to the caller; or the successor is in place, and only the folder could not be synced.
  virtual bool ReplaceFile(const std::string& work, const std::string& path) = 0;
  // The name in the folder of `path` under which its successor is built. Files and Folders do not list it; what a
  // killed program left under it is removed at the next copy into that folder.
  static std::string WorkPath(const std::string& path) {
    return path.substr(0, path.rfind('\\') + 1) + ".trekor-new.part";
  }
  // Writes a file and its name in the folder through to the disk; true when both are there.
  virtual bool SyncFile(const std::string& path) = 0;
  // True when it was there and is gone. A read-only file stays.
  virtual bool DeleteFile(const std::string& path) = 0;
  // Clears the read-only attribute of a file.
  virtual void ClearReadOnly(const std::string& path) = 0;
  // Names (without folder) of the files in a folder that match a pattern of "*" and "?", sorted without regard to case.
  // "NAME.*" also matches a file NAME without an extension, so "*.*" matches every file.
  virtual std::vector<std::string> Files(const std::string& folder, const std::string& pattern) = 0;
  // Names of the subfolders, sorted the same way, without those that begin with a dot.
  virtual std::vector<std::string> Folders(const std::string& folder) = 0;
  // The folder in which a path without a drive letter begins: the program's own, not the process's.
  virtual std::string CurrentFolder() = 0;
};

} // namespace trekor
