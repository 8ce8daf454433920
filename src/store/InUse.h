// Whether a database file may be replaced, and whether it can be read.
#pragma once

#include <string>

namespace trekor {

// True when another program holds the database at this native path, or has it open for writing though it rests at the
// moment: what it writes next would go into a file without a name. False for a free one, for a file that is no database
// and for none at all. Asks by opening it for a moment, which folds a log that a killed program has left. This program
// must not have it open.
bool InUse(const std::string& nativePath);
// The part of it that the system answers. False where it can't tell.
bool OpenForWriting(const std::string& nativePath);

// Two native paths of one file or folder, also through a link or another spelling. False when either is missing.
bool SameFile(const std::string& nativePath, const std::string& other);
// True when the file, there or not, has this folder somewhere above it.
bool LiesIn(const std::string& nativePath, const std::string& nativeFolder);
// What a reader would meet in a file. Looking changes neither the file nor its folder, whatever log lies beside it.
enum class Sight {
  Free,
  NeedsFolding, // free, but part of it is in a log, or it is marked as having one: only who may write beside it can
                // read
  Missing,      // or no ordinary file
  InUse,        // a program holds it for writing, or rests and writes beside it
  NoDatabase,
  Damaged,
  Unreadable // the system doesn't let us
};
Sight LookAt(const std::string& nativePath);

} // namespace trekor
