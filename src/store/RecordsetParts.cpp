#include "store/RecordsetParts.h"

#include "store/FieldFit.h"
#include "store/QueryCursor.h"
#include "store/QueryText.h"
#include "store/TableCursor.h"
#include "values/Text.h"

#include <sqlite3.h>

namespace trekor {

bool Recordset::Parts::OpenTable(const std::string& name) {
  const auto layout = engine->Layout(name);
  if (!layout)
    return false;
  shape.tables.push_back({layout, &engine->State(layout->name)});
  for (std::size_t i = 0; i < layout->fields.size(); ++i)
    shape.columns.push_back({layout->fields[i].name, layout->name, layout->fields[i], 0, static_cast<int>(i)});
  buffer.resize(shape.columns.size());
  cursor = std::make_unique<TableCursor>(*engine, shape);
  return !cursor->Failed();
}

// The query is first asked for its columns and their tables, then runs with the rows' own numbers added where it can.
bool Recordset::Parts::OpenQuery(const std::string& sql) {
  Statement plain;
  if (!plain.Prepare(*engine, sql))
    return false;
  if (sqlite3_stmt_readonly(plain.Handle()) == 0 || sqlite3_column_count(plain.Handle()) == 0)
    return engine->FailWith("no query: " + sql);
  Describe(plain);
  buffer.resize(shape.columns.size());
  std::vector<std::string> names;
  for (const SourceTable& table : shape.tables)
    names.push_back(table.layout->name);
  const std::string numbered = WithRowNumbers(sql, names);
  Statement test;
  const bool writable = !numbered.empty() && test.Prepare(*engine, numbered);
  if (!writable)
    shape.tables.clear();
  for (Column& column : shape.columns)
    column.source = !writable && column.table.empty() ? -1 : column.source;
  cursor = std::make_unique<QueryCursor>(*engine, shape, writable ? numbered : sql);
  return !cursor->Failed();
}

int Recordset::Parts::SourceOf(const std::string& table) {
  for (std::size_t i = 0; i < shape.tables.size(); ++i)
    if (SameName(shape.tables[i].layout->name, table))
      return static_cast<int>(i);
  const auto layout = engine->Layout(table);
  if (!layout)
    return -1;
  shape.tables.push_back({layout, &engine->State(layout->name)});
  return static_cast<int>(shape.tables.size()) - 1;
}

void Recordset::Parts::Describe(const Statement& statement) {
  sqlite3_stmt* handle = statement.Handle();
  for (int i = 0; i < sqlite3_column_count(handle); ++i) {
    const char* table = sqlite3_column_table_name(handle, i);
    const char* origin = sqlite3_column_origin_name(handle, i);
    Column column;
    column.name = sqlite3_column_name(handle, i);
    column.source = table && origin ? SourceOf(table) : -1;
    if (column.source >= 0) {
      const TableLayout& layout = *shape.tables[static_cast<std::size_t>(column.source)].layout;
      column.table = layout.name;
      column.layoutPlace = layout.FieldPlace(origin);
      if (column.layoutPlace >= 0)
        column.field = layout.fields[static_cast<std::size_t>(column.layoutPlace)];
      else
        column.source = -1;
    }
    shape.columns.push_back(column);
  }
}

// An automatic key can be read, never written.
bool Recordset::Parts::CanSet(int place) const {
  if (buffering == Buffer::None || place < 0 || place >= static_cast<int>(shape.columns.size()))
    return false;
  const Column& column = shape.columns[static_cast<std::size_t>(place)];
  return column.source >= 0 && !column.field.autoNumber;
}

RowWriter& Recordset::Parts::Writer(std::size_t source) {
  if (writers.size() <= source)
    writers.resize(source + 1);
  if (!writers[source])
    writers[source] = std::make_unique<RowWriter>(*engine, shape, static_cast<int>(source));
  return *writers[source];
}

bool Recordset::Parts::StoreNew() {
  std::int64_t number = 0;
  if (!Writer(0).Insert(buffer, number))
    return false;
  cursor->Added(number, buffer);
  return true;
}

bool Recordset::Parts::StoreChanges() {
  const Row* held = cursor->Hold();
  if (!held)
    return engine->FailWith("the row is gone");
  Row row = *held;
  row.values = buffer;
  for (std::size_t i = 0; i < shape.tables.size(); ++i)
    if (!Writer(i).Change(buffer, touched, row.numbers[i]))
      return false;
  cursor->Changed(row);
  return true;
}

} // namespace trekor
