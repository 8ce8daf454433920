#include "store/QueryCursor.h"

#include <algorithm>

namespace trekor {

QueryCursor::QueryCursor(Engine& onEngine, const Shape& ofShape, const std::string& sql) : shape(ofShape) {
  rows.Prepare(onEngine, sql, true);
  QueryCursor::Requery();
}

bool QueryCursor::Requery() {
  std::vector<Row> found;
  while (rows.Step())
    found.push_back(ReadRow());
  failed = rows.Failed();
  if (failed)
    return false;
  held = std::move(found);
  at = 0;
  return true;
}

Row QueryCursor::ReadRow() const {
  Row row;
  row.values.reserve(shape.columns.size());
  int place = 0;
  for (const Column& column : shape.columns) {
    row.values.push_back(column.source < 0 ? rows.Column(place) : rows.Column(place, column.field.type));
    ++place;
  }
  for (std::size_t i = 0; i < shape.tables.size(); ++i)
    row.numbers.push_back(rows.Number(place++));
  return row;
}

void QueryCursor::SkipDeleted() {
  while (at < held.size() && held[at].deleted)
    ++at;
}

void QueryCursor::MoveFirst() {
  at = 0;
  SkipDeleted();
}

void QueryCursor::MoveNext() {
  if (Eof())
    return;
  ++at;
  SkipDeleted();
}

void QueryCursor::MoveLast() {
  at = held.size();
  while (at > 0 && held[at - 1].deleted)
    --at;
  at = at > 0 ? at - 1 : held.size();
}

int QueryCursor::RecordCount() {
  return static_cast<int>(std::count_if(held.begin(), held.end(), [](const Row& row) { return !row.deleted; }));
}

FieldValue QueryCursor::Value(int place) {
  return HasRow() ? held[at].values[static_cast<std::size_t>(place)] : FieldValue();
}

void QueryCursor::Added(std::int64_t number, const std::vector<FieldValue>& values) {
  Row row;
  row.numbers = {number};
  row.values = values;
  held.push_back(row);
}

} // namespace trekor
