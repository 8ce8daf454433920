#include "store/InUse.h"

#include "store/Engine.h"

#include <sqlite3.h>

namespace trekor {

bool InUse(const std::string& nativePath) {
  Engine engine(nativePath, OpenMode::Exclusive);
  return !engine.Open() && engine.db && (sqlite3_errcode(engine.db) & 0xFF) == SQLITE_BUSY;
}

} // namespace trekor
