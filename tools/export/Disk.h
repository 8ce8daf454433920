// What the operating system must do its own way.
#pragma once

#include <string>

namespace trekor {

// At the start of the program: a file that may not grow is a failed write, and not the end of the process.
void PrepareDisk();
// Brings a file onto the disk; the system's number of what failed, or 0.
int SyncFile(const std::string& nativePath);
// Whether this number says that there is no more room.
bool IsFull(int error);

} // namespace trekor
