// What each operating system does its own way.
#pragma once

#include <string>

namespace trekor {

// At the start of the program: makes a write beyond a file size limit fail instead of ending the process.
void PrepareDisk();
// Writes a file through to the disk; the system's error number, or 0.
int SyncFile(const std::string& nativePath);
// Whether this error number means that there is no more room.
bool IsFull(int error);

} // namespace trekor
