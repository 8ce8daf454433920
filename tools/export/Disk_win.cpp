#include "Disk.h"

#include <cerrno>
#include <filesystem>

#include <io.h>
#include <windows.h>

namespace trekor {

void PrepareDisk() {}

int SyncFile(const std::string& nativePath) {
  const HANDLE file =
      CreateFileW(std::filesystem::path(nativePath).c_str(), GENERIC_WRITE,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE)
    return EIO;
  const bool done = FlushFileBuffers(file) != 0;
  CloseHandle(file);
  return done ? 0 : EIO;
}

bool IsTerminal(std::FILE* stream) {
  return _isatty(_fileno(stream)) != 0;
}

int HoldFolder(const std::string&) {
  return -1;
}

void LetGo(int) {}

std::string MachineName() {
  return "";
}

bool IsFull(int error) {
  return error == ENOSPC || error == EFBIG;
}

} // namespace trekor
