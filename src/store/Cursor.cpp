#include "store/Cursor.h"

#include <sqlite3.h>

namespace trekor {

Cursor::Cursor(const Database& database, const std::string& sql) {
  failed =
      sqlite3_prepare_v2(database.Handle(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) != SQLITE_OK;
  ended = failed;
}

Cursor::~Cursor() {
  sqlite3_finalize(statement);
}

void Cursor::Bind(int n, std::int64_t value) {
  if (statement)
    sqlite3_bind_int64(statement, n, value);
}

bool Cursor::Step() {
  if (ended)
    return false; // SQLite would begin again from the front
  const int result = sqlite3_step(statement);
  ended = result != SQLITE_ROW;
  failed = ended && result != SQLITE_DONE;
  return !ended;
}

bool Cursor::IsNull(int place) const {
  return sqlite3_column_type(statement, place) == SQLITE_NULL;
}

std::int64_t Cursor::Integer(int place) const {
  return sqlite3_column_int64(statement, place);
}

double Cursor::Real(int place) const {
  return sqlite3_column_double(statement, place);
}

std::string_view Cursor::TextView(int place) const {
  const unsigned char* text = sqlite3_column_text(statement, place); // before the count, which may convert
  if (!text)
    return {};
  return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(sqlite3_column_bytes(statement, place))};
}

} // namespace trekor
