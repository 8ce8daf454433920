// What each operating system does its own way.
#pragma once

#include <cstdio>
#include <string>

namespace trekor {

// At the start of the program: makes a write beyond a file size limit fail instead of ending the process.
void PrepareDisk();
// Writes a file through to the disk; the system's error number, or 0.
int SyncFile(const std::string& nativePath);
// Whether somebody reads this stream as it is written.
bool IsTerminal(std::FILE* stream);
// Takes a folder for this process until LetGo or its end, however it ends. -1 when a living process of this machine has
// it, or when that can't be told here.
int HoldFolder(const std::string& nativePath);
void LetGo(int held);
// This machine, as it stands in the names of folders that others on a share see, too.
std::string MachineName();
// Whether this error number means that there is no more room.
bool IsFull(int error);

} // namespace trekor
