#include "store/QueryCursor.h"

#include <algorithm>
#include <limits>

namespace trekor {

namespace {

constexpr std::size_t smallResult = 512; // rows

} // namespace

QueryCursor::QueryCursor(Engine& onEngine, const Shape& ofShape, std::string text)
    : engine(onEngine), shape(ofShape), sql(std::move(text)) {
  if (rows.Prepare(engine, sql, true))
    QueryCursor::Requery();
}

void QueryCursor::Requery() {
  rows.Reset();
  held.clear();
  at = 0;
  head = true;
  passed = false;
  reading = rows.Step();
  while (reading && held.size() < smallResult) {
    held.push_back(ReadRow());
    reading = rows.Step();
  }
  tail = !reading;
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

// The statement has no way back: once it has left the rows behind those held, the query runs anew.
void QueryCursor::MoveFirst() {
  if (passed || !head)
    return Requery();
  at = 0;
  SkipDeleted();
}

void QueryCursor::MoveNext() {
  if (Eof())
    return;
  if (at < held.size()) {
    ++at;
    return SkipDeleted();
  }
  ++at;
  passed = true;
  reading = rows.Step();
}

// Of a large result the number of rows is asked first, so that the statement stops on the last one.
void QueryCursor::MoveLast() {
  if (!tail) {
    if (passed)
      Requery();
    const auto count = static_cast<std::size_t>(RecordCount());
    while (Reads() && at + 1 < count)
      MoveNext();
    return;
  }
  at = held.size();
  while (at > 0 && held[at - 1].deleted)
    --at;
  at = at > 0 ? at - 1 : held.size();
}

int QueryCursor::RecordCount() {
  if (head && tail)
    return static_cast<int>(std::count_if(held.begin(), held.end(), [](const Row& row) { return !row.deleted; }));
  Statement count;
  if (!count.Prepare(engine, "SELECT count(*) FROM (" + sql + ")") || !count.Step())
    return 0;
  return static_cast<int>(std::min<std::int64_t>(count.Number(0), std::numeric_limits<int>::max()));
}

FieldValue QueryCursor::Value(int place) {
  if (!HasRow())
    return {};
  if (at < held.size())
    return held[at].values[static_cast<std::size_t>(place)];
  const Column& column = shape.columns[static_cast<std::size_t>(place)];
  return column.source < 0 ? rows.Column(place) : rows.Column(place, column.field.type);
}

// Writing under a running statement could show a row twice or never: the rest of the result is read first.
void QueryCursor::HoldRest() {
  if (!Reads())
    return;
  if (passed) {
    held.clear();
    at = 0;
    head = false;
  }
  while (reading) {
    held.push_back(ReadRow());
    reading = rows.Step();
  }
  tail = true;
}

Row* QueryCursor::Hold() {
  HoldRest();
  return HasRow() ? &held[at] : nullptr;
}

void QueryCursor::Changed(const Row& row) {
  if (at < held.size())
    held[at] = row;
}

void QueryCursor::Deleted() {
  if (at < held.size())
    held[at].deleted = true;
}

void QueryCursor::Added(std::int64_t number, const std::vector<FieldValue>& values) {
  if (!tail)
    return;
  Row row;
  row.numbers = {number};
  row.values = values;
  held.push_back(row);
}

} // namespace trekor
