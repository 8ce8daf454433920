// Whether a database file may be replaced, and whether it can be read.
#pragma once

#include <string>

namespace trekor {

// True when another program holds the database at this native path, or has it open for writing without a lock at the
// moment: replacing the file would lose what it writes next. False for a free file, a file that is no database and a
// missing one. Opens it for a moment, which folds a log that a killed program left. This program must not have it open.
bool InUse(const std::string& nativePath);
// What the system knows of it: another program has the file open for writing. False where the system can't tell.
bool OpenForWriting(const std::string& nativePath);

// Two native paths of one file or folder, also through a link or another spelling. False when either is missing.
bool SameFile(const std::string& nativePath, const std::string& other);
// True when the file, there or not, has this folder somewhere above it.
bool LiesIn(const std::string& nativePath, const std::string& nativeFolder);
// What a reader would find. Looking changes neither the file nor its folder, whatever log lies beside it.
enum class Sight {
  Free,
  NeedsFolding, // free, but with a log or marked as having one: reading it needs the right to write beside it
  Missing,      // or not an ordinary file
  InUse,        // another program holds it, or has it open for writing
  NoDatabase,
  Damaged,
  Unreadable // no right to read it
};
Sight LookAt(const std::string& nativePath);

} // namespace trekor
