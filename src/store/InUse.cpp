#include "store/InUse.h"

#include "store/Engine.h"

#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace trekor {

namespace {

std::filesystem::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

bool Same(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code missing;
  return std::filesystem::equivalent(a, b, missing);
}

// Bytes 18 and 19 of a database say how it is written; 2 is with a log.
bool MarkedWithLog(const std::string& nativePath) {
  std::array<char, 20> head{};
  std::ifstream file(PathOf(nativePath), std::ios::binary);
  return file.read(head.data(), head.size()) && (head[18] == 2 || head[19] == 2);
}

} // namespace

bool InUse(const std::string& nativePath) {
  if (OpenForWriting(nativePath))
    return true;
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

namespace {

// The library's answer to a first read. An exclusive lock mode keeps it from making an index of the log beside the
// file. A file with a log can't be read so, but the lock of a writer is met before that.
int FirstRead(const std::string& nativePath) {
  sqlite3* db = nullptr;
  sqlite3_open_v2(nativePath.c_str(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  const int result = db ? sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE; SELECT count(*) FROM sqlite_master", nullptr,
                                       nullptr, nullptr)
                        : SQLITE_CANTOPEN;
  sqlite3_close_v2(db);
  return result & 0xFF;
}

} // namespace

Sight LookAt(const std::string& nativePath) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(PathOf(nativePath), error))
    return Sight::Missing;
  if (std::filesystem::file_size(PathOf(nativePath), error) == 0)
    return Sight::NoDatabase;
  switch (FirstRead(nativePath)) {
  case SQLITE_BUSY:
    return Sight::InUse;
  case SQLITE_NOTADB:
    return Sight::NoDatabase;
  case SQLITE_CORRUPT:
    return Sight::Damaged;
  case SQLITE_CANTOPEN:
    return Sight::Unreadable;
  default:
    if (!HasLeftovers(nativePath) && !MarkedWithLog(nativePath))
      return Sight::Free;
    return OpenForWriting(nativePath) ? Sight::InUse : Sight::NeedsFolding;
  }
}

} // namespace trekor
