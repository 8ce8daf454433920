// A file that is open for writing can't be opened by someone who allows no writers beside him.
#include "store/InUse.h"

#include <filesystem>

#include <windows.h>

namespace trekor {

bool OpenForWriting(const std::string& nativePath) {
  const std::filesystem::path path(std::u8string(nativePath.begin(), nativePath.end()));
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE)
    CloseHandle(file);
  return file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace trekor
