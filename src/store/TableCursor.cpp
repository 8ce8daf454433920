#include "store/TableCursor.h"

#include "store/FieldFit.h"

#include <algorithm>

namespace trekor {

namespace {

constexpr int LargestWindow = 256;

std::string Parameter(std::size_t place) {
  return "?" + FieldValue(static_cast<std::int64_t>(place)).Text();
}

} // namespace

TableCursor::TableCursor(Engine& onEngine, const Shape& ofShape) : engine(onEngine), shape(ofShape) {
  TableCursor::MoveFirst();
}

// A text compares without case even where a table was declared without.
static std::string KeyText(const TableLayout& layout, const IndexKey& key) {
  const FieldDefinition& field = layout.fields[static_cast<std::size_t>(key.field)];
  return QuotedName(field.name) + (field.type == FieldType::Text ? " COLLATE NOCASE" : "");
}

// The row's own number needs no keys: it ends every order anyway.
const std::vector<IndexKey>& TableCursor::Keys() const {
  static const std::vector<IndexKey> none;
  return order && !order->storedName.empty() ? order->keys : none;
}

// Among equal keys the order of insertion, in an index that runs downwards too.
std::string TableCursor::Order(bool backwards) const {
  std::string text = " ORDER BY ";
  for (const IndexKey& key : Keys())
    text += KeyText(Layout(), key) + (key.descending != backwards ? " DESC, " : ", ");
  return text + (backwards ? "rowid DESC" : "rowid");
}

namespace {

// Nulls sort first, so in a descending order they come after every value.
std::string Beyond(const std::string& name, const std::string& value, bool descending) {
  std::string text = "(" + name;
  text += (descending ? " < " : " > ") + value;
  text += " OR (" + (descending ? name : value);
  text += " IS NULL AND " + (descending ? value : name);
  return text + " IS NOT NULL))";
}

std::string OrEqualAnd(const std::string& name, const std::string& value, const std::string& rest) {
  std::string text = " OR (" + name;
  text += " IS " + value;
  return text + " AND (" + rest + "))";
}

} // namespace

// The rows behind the position: parameters 1.. are its keys, the last one is its own number.
std::string TableCursor::After() const {
  const std::vector<IndexKey>& keys = Keys();
  std::string text = "rowid > " + Parameter(keys.size() + 1);
  for (std::size_t i = keys.size(); i-- > 0;) {
    const std::string name = KeyText(Layout(), keys[i]), value = Parameter(i + 1);
    text = Beyond(name, value, keys[i].descending) + OrEqualAnd(name, value, text);
  }
  return text;
}

bool TableCursor::Prepare(Statement& statement, const std::string& condition, bool backwards) {
  if (statement.Ready())
    return true;
  std::string text = "SELECT rowid";
  for (const Column& column : shape.columns)
    text += ", " + QuotedName(column.name);
  text += " FROM " + QuotedName(Layout().name);
  if (!condition.empty())
    text += " WHERE " + condition;
  const bool prepared = statement.Prepare(engine, text + Order(backwards) + " LIMIT ?99", true);
  failed = failed || !prepared;
  return prepared;
}

Row TableCursor::ReadRow(const Statement& rows) const {
  Row row;
  row.numbers = {rows.Number(0)};
  row.values.reserve(shape.columns.size());
  for (std::size_t i = 0; i < shape.columns.size(); ++i)
    row.values.push_back(rows.Column(static_cast<int>(i) + 1, shape.columns[i].field.type));
  return row;
}

// Reads the next rows of a prepared and bound statement; the position is the first of them. When reading breaks off,
// the rows read so far are good: the next read begins behind them, and only one without any row fails.
void TableCursor::StandOn(Statement& rows, int wanted) {
  constexpr int limit = 99;
  rows.Bind(limit, static_cast<std::int64_t>(wanted));
  std::vector<Row> found;
  while (static_cast<int>(found.size()) < wanted && rows.Step())
    found.push_back(ReadRow(rows));
  rows.Reset();
  version = Version();
  failed = failed || (found.empty() && rows.Failed());
  if (found.empty())
    return;
  window = std::move(found);
  at = 0;
  state = State::OnRow;
}

void TableCursor::MoveFirst() {
  failed = false;
  state = State::Empty;
  windowSize = 1;
  if (Prepare(first, "", false))
    StandOn(first, 1);
}

void TableCursor::MoveNext() {
  if (Eof())
    return;
  if (version == Version() && at + 1 < window.size()) {
    ++at;
    state = State::OnRow;
    return;
  }
  windowSize = version == Version() ? std::min(windowSize * 4, LargestWindow) : 1;
  state = State::End;
  if (!Prepare(after, After(), false))
    return;
  BindPosition(after);
  StandOn(after, windowSize);
}

// The parameters borrow texts of the window, which StandOn replaces only after the statement was reset.
void TableCursor::BindPosition(Statement& statement) {
  const Row& row = window[at];
  int place = 1;
  for (const IndexKey& key : Keys())
    statement.Bind(place++, row.values[static_cast<std::size_t>(key.field)]);
  statement.Bind(place, row.numbers[0]);
}

// A row that was just added is the last one: its key is known, and its fields are read only when asked for.
void TableCursor::MoveLast() {
  failed = false;
  windowSize = 1;
  const std::int64_t added = shape.tables[0].state->lastAdded;
  if (added > 0 && Keys().empty()) {
    window.resize(1);
    window[0].numbers.assign(1, added);
    window[0].loaded = false;
    at = 0;
    version = Version();
    state = State::OnRow;
    return;
  }
  state = State::Empty;
  if (Prepare(last, "", true))
    StandOn(last, 1);
}

int TableCursor::RecordCount() {
  Statement count;
  const bool counted = count.Prepare(engine, "SELECT count(*) FROM " + QuotedName(Layout().name)) && count.Step();
  failed = failed || !counted;
  return counted ? static_cast<int>(count.Number(0)) : 0;
}

bool TableCursor::Requery() {
  MoveFirst();
  return !failed;
}

bool TableCursor::SetIndex(const std::string& name) {
  const IndexLayout* found = Layout().FindIndex(name);
  if (!found)
    return engine.FailWith("no index " + name + " on " + Layout().name);
  order = found;
  for (Statement* each : {&first, &last, &after, &find})
    each->Finalize();
  MoveFirst();
  return true;
}

bool TableCursor::Seek(const FieldValue& key) {
  failed = false;
  if (!order || key.IsNull())
    return false;
  if (!Prepare(find, KeyText(Layout(), order->keys.front()) + " = ?1", false))
    return false;
  find.Bind(1, key);
  find.Bind(99, std::int64_t{1});
  const bool found = find.Step();
  failed = find.Failed();
  if (found) {
    window.assign(1, ReadRow(find));
    at = 0;
    windowSize = 1;
    version = Version();
    state = State::OnRow;
  }
  find.Reset();
  return found;
}

// Reads the current row again when something was written into the table since, or when only its key is known. False
// when there is none, or when it can't be read now.
bool TableCursor::Refresh() {
  if (state != State::OnRow || (version == Version() && window[at].loaded))
    return state == State::OnRow;
  const std::int64_t number = window[at].numbers[0];
  if (!Prepare(one, "rowid = ?1", false))
    return false;
  one.Bind(1, number);
  one.Bind(99, std::int64_t{1});
  Row row = window[at];
  const bool there = one.Step();
  if (one.Failed()) {
    failed = true;
    return false;
  }
  if (there)
    row = ReadRow(one);
  one.Reset();
  state = there ? State::OnRow : State::Gap;
  window.assign(1, row);
  at = 0;
  windowSize = 1;
  version = Version();
  return there;
}

bool TableCursor::HasRow() {
  return Refresh();
}

FieldValue TableCursor::Value(int place) {
  const bool ownNumber = state == State::OnRow && place == Layout().numberField && version == Version();
  if (ownNumber)
    return window[at].numbers[0];
  return Refresh() ? window[at].values[static_cast<std::size_t>(place)] : FieldValue();
}

Row* TableCursor::Hold() {
  return HasRow() ? &window[at] : nullptr;
}

// The position follows the row when its key was changed: the next row is the one behind its new place.
void TableCursor::Changed(const Row& row) {
  window.assign(1, Row(row));
  at = 0;
  windowSize = 1;
  window[0].loaded = false; // the fields that were not written may have been, by others
  version = Version();
}

void TableCursor::Deleted() {
  state = State::Gap;
}

} // namespace trekor
