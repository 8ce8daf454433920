#include "store/Statement.h"

#include "store/Engine.h"

#include <algorithm>

#include <sqlite3.h>

namespace trekor {

Statement::~Statement() {
  Finalize();
}

bool Statement::Prepare(Engine& onEngine, const std::string& sql, bool kept) {
  Finalize();
  if (!onEngine.db)
    return onEngine.Fail("prepare");
  const unsigned flags = kept ? SQLITE_PREPARE_PERSISTENT : 0;
  if (sqlite3_prepare_v3(onEngine.db, sql.c_str(), static_cast<int>(sql.size()), flags, &handle, nullptr) != SQLITE_OK)
    return onEngine.Fail(sql);
  if (!handle)
    return onEngine.FailWith("no statement");
  engine = &onEngine;
  engine->statements.push_back(this);
  return true;
}

void Statement::Finalize() {
  if (!handle)
    return;
  sqlite3_finalize(handle);
  handle = nullptr;
  auto& all = engine->statements;
  all.erase(std::find(all.begin(), all.end(), this));
}

void Statement::Bind(int place, const FieldValue& value) {
  if (value.IsNull())
    sqlite3_bind_null(handle, place);
  else if (value.IsInteger())
    sqlite3_bind_int64(handle, place, value.Integer());
  else if (value.IsReal())
    sqlite3_bind_double(handle, place, value.Number());
  else if (value.IsText())
    sqlite3_bind_text64(handle, place, value.TextView().data(), value.TextView().size(), SQLITE_STATIC, SQLITE_UTF8);
  else if (value.Blob().empty())
    sqlite3_bind_zeroblob(handle, place, 0);
  else
    sqlite3_bind_blob64(handle, place, value.Blob().data(), value.Blob().size(), SQLITE_STATIC);
}

void Statement::Bind(int place, std::int64_t number) {
  sqlite3_bind_int64(handle, place, number);
}

bool Statement::Step() {
  failed = !handle;
  if (!handle)
    return false;
  const int result = sqlite3_step(handle);
  if (result == SQLITE_ROW)
    return true;
  failed = result != SQLITE_DONE;
  if (failed)
    engine->Fail("step");
  sqlite3_reset(handle);
  return false;
}

bool Statement::Run() {
  if (!handle)
    return false;
  const int result = sqlite3_step(handle);
  if (result != SQLITE_DONE && result != SQLITE_ROW)
    engine->Fail("run");
  sqlite3_reset(handle);
  return result == SQLITE_DONE || result == SQLITE_ROW;
}

void Statement::Reset() {
  if (handle)
    sqlite3_reset(handle);
}

std::int64_t Statement::Number(int column) const {
  return handle ? sqlite3_column_int64(handle, column) : 0;
}

namespace {

std::string ColumnText(sqlite3_stmt* handle, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle, column));
  return text ? std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(handle, column))) : std::string();
}

Bytes ColumnBytes(sqlite3_stmt* handle, int column) {
  const auto* bytes = static_cast<const unsigned char*>(sqlite3_column_blob(handle, column));
  return bytes ? Bytes(bytes, bytes + sqlite3_column_bytes(handle, column)) : Bytes();
}

} // namespace

FieldValue Statement::Column(int column) const {
  switch (handle ? sqlite3_column_type(handle, column) : SQLITE_NULL) {
  case SQLITE_INTEGER:
    return static_cast<std::int64_t>(sqlite3_column_int64(handle, column));
  case SQLITE_FLOAT:
    return sqlite3_column_double(handle, column);
  case SQLITE_TEXT:
    return ColumnText(handle, column);
  case SQLITE_BLOB:
    return ColumnBytes(handle, column);
  default:
    return {};
  }
}

// A file from elsewhere may hold anything in any field: the declared type decides what the program sees.
FieldValue Statement::Column(int column, FieldType type) const {
  const int stored = handle ? sqlite3_column_type(handle, column) : SQLITE_NULL;
  if (stored == SQLITE_NULL)
    return {};
  switch (type) {
  case FieldType::SmallInt:
  case FieldType::Integer:
  case FieldType::Boolean:
    return stored == SQLITE_INTEGER ? static_cast<std::int64_t>(sqlite3_column_int64(handle, column))
                                    : Column(column).Integer();
  case FieldType::Real:
  case FieldType::Single:
    return sqlite3_column_double(handle, column);
  case FieldType::Text:
  case FieldType::DateTime:
    return ColumnText(handle, column);
  case FieldType::LongBinary:
    return ColumnBytes(handle, column);
  }
  return {};
}

} // namespace trekor
