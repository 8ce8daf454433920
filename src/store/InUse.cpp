#include "store/InUse.h"

#include "store/Engine.h"

#include <filesystem>
#include <system_error>

#include <sqlite3.h>

namespace trekor {

namespace {

std::filesystem::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

bool Same(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code missing;
  return std::filesystem::equivalent(a, b, missing);
}

} // namespace

bool InUse(const std::string& nativePath) {
  Engine engine(nativePath, OpenMode::Exclusive);
  return !engine.Open() && engine.db && (sqlite3_errcode(engine.db) & 0xFF) == SQLITE_BUSY;
}

bool SameFile(const std::string& nativePath, const std::string& other) {
  return Same(PathOf(nativePath), PathOf(other));
}

bool LiesIn(const std::string& nativePath, const std::string& nativeFolder) {
  const std::filesystem::path folder = PathOf(nativeFolder);
  std::filesystem::path above = PathOf(nativePath).parent_path();
  while (!Same(above, folder) && above.has_relative_path())
    above = above.parent_path();
  return Same(above, folder);
}

} // namespace trekor
