// Real drives: a path stands for itself.
#include "platform_os/FileDrives.h"

#include <array>

#include <windows.h>
#include <winnetwk.h>

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

// "D:a" would begin in whatever folder the process has on that drive: here it begins at the drive's root. A colon
// further on would name a stream inside a file.
fs::path PathOf(const fs::path&, const std::string& path, const std::string& current) {
  if (path.empty() || path.find('\0') != std::string::npos || path.find(':', 2) != std::string::npos)
    return {};
  const bool lettered = path.size() > 1 && path[1] == ':';
  const std::string rooted = lettered ? path.substr(0, 2) + "\\" + path.substr(2) : path;
  return (PathFromText(current) / PathFromText(rooted)).lexically_normal();
}

bool DriveExists(const fs::path&, char letter) {
  const int place = (letter | 0x20) - 'a';
  return place >= 0 && place < 26 && (GetLogicalDrives() >> place & 1) != 0;
}

std::string RemoteName(char letter) {
  const std::array<wchar_t, 3> drive = {static_cast<wchar_t>(letter), L':', 0};
  std::array<wchar_t, 1024> share{};
  DWORD size = static_cast<DWORD>(share.size());
  return WNetGetConnectionW(drive.data(), share.data(), &size) == NO_ERROR ? TextFromPath(share.data()) : std::string();
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
