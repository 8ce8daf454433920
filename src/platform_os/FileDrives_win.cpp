// Drives of their own letters: a path is what it says.
#include "platform_os/FileDrives.h"

#include <windows.h>

namespace trekor::native {

namespace fs = std::filesystem;

namespace {

bool Sync(const fs::path& path, DWORD flags) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, OPEN_EXISTING, flags, nullptr);
  if (file == INVALID_HANDLE_VALUE)
    return false;
  const bool done = FlushFileBuffers(file) != 0;
  CloseHandle(file);
  return done;
}

} // namespace

fs::path DrivesRoot() {
  return {};
}

fs::path PathOf(const fs::path&, const std::string& path, const std::string& current) {
  if (path.empty() || path.find('\0') != std::string::npos)
    return {};
  return PathFromText(current) / PathFromText(path);
}

bool DriveExists(const fs::path&, char letter) {
  const int place = (letter | 0x20) - 'a';
  return place >= 0 && place < 26 && (GetLogicalDrives() >> place & 1) != 0;
}

std::string RemoteName(char letter) {
  const wchar_t drive[] = {static_cast<wchar_t>(letter), L':', L'\\', 0};
  return GetDriveTypeW(drive) == DRIVE_REMOTE ? std::string(1, letter) + ":" : std::string();
}

bool SyncFile(const fs::path& file) {
  return Sync(file, FILE_ATTRIBUTE_NORMAL);
}
// The names are in the file system's own log, and not every file system lets a folder be flushed: no failure.
bool SyncFolder(const fs::path& folder) {
  Sync(folder, FILE_FLAG_BACKUP_SEMANTICS);
  return true;
}
void SyncAll(const fs::path&) {}

bool Replace(const fs::path& from, const fs::path& to) {
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace trekor::native
