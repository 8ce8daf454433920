#include "store/RowWriter.h"

#include "store/FieldFit.h"

#include <algorithm>

#include <sqlite3.h>

namespace trekor {

RowWriter::RowWriter(Engine& onEngine, const Shape& ofShape, int source)
    : engine(onEngine), shape(ofShape), table(ofShape.tables[static_cast<std::size_t>(source)]) {
  for (std::size_t i = 0; i < shape.columns.size(); ++i)
    if (shape.columns[i].source == source)
      places.push_back(i);
}

bool RowWriter::PrepareInsert() {
  if (insert.Ready())
    return true;
  std::string names, marks;
  for (const std::size_t place : places) {
    names += (names.empty() ? "" : ", ") + QuotedName(ColumnAt(place).name);
    marks += marks.empty() ? "?" : ", ?";
  }
  return insert.Prepare(
      engine, "INSERT INTO " + QuotedName(table.layout->name) + " (" + names + ") VALUES (" + marks + ")", true);
}

// A number that the library would give anyway is left to it: it then need not look whether the number is taken.
bool RowWriter::NumberComesByItself(std::size_t place, const FieldValue& value) const {
  return ColumnAt(place).field.autoNumber && table.state->counterKnown && value.Integer() == table.state->stored + 1;
}

bool RowWriter::Insert(const std::vector<FieldValue>& values, std::int64_t& number) {
  if (!engine.MayWrite())
    return engine.FailWith("the transaction was taken back");
  if (!PrepareInsert())
    return false;
  int parameter = 1;
  static const FieldValue null;
  for (const std::size_t place : places)
    insert.Bind(parameter++, NumberComesByItself(place, values[place]) ? null : values[place]);
  if (!insert.Run())
    return false;
  number = sqlite3_last_insert_rowid(engine.db);
  table.state->stored = std::max(table.state->stored, number);
  ++table.state->changes;
  table.state->lastAdded = table.layout->HasAutoNumber() && table.state->counterKnown ? number : 0;
  return true;
}

bool RowWriter::PrepareChange(const std::vector<char>& touched) {
  std::string text;
  for (const std::size_t place : places)
    if (touched[place] != 0)
      text += (text.empty() ? "" : ", ") + QuotedName(ColumnAt(place).name) + " = ?";
  if (change.Ready() && text == changeText)
    return true;
  changeText = text;
  return change.Prepare(engine, "UPDATE " + QuotedName(table.layout->name) + " SET " + text + " WHERE rowid = ?", true);
}

bool RowWriter::Change(const std::vector<FieldValue>& values, const std::vector<char>& touched, std::int64_t& number) {
  std::vector<std::size_t> chosen;
  for (const std::size_t place : places)
    if (touched[place] != 0)
      chosen.push_back(place);
  if (chosen.empty())
    return true;
  if (!engine.MayWrite())
    return engine.FailWith("the transaction was taken back");
  if (!PrepareChange(touched))
    return false;
  int parameter = 1;
  std::int64_t after = number;
  for (const std::size_t place : chosen) {
    change.Bind(parameter++, values[place]);
    if (ColumnAt(place).layoutPlace == table.layout->numberField)
      after = values[place].Integer();
  }
  change.Bind(parameter, number);
  if (!change.Run())
    return false;
  number = after;
  ++table.state->changes;
  return sqlite3_changes(engine.db) > 0 || engine.FailWith("the row is gone");
}

bool RowWriter::Erase(std::int64_t number) {
  if (!engine.MayWrite())
    return engine.FailWith("the transaction was taken back");
  if (!erase.Ready() &&
      !erase.Prepare(engine, "DELETE FROM " + QuotedName(table.layout->name) + " WHERE rowid = ?", true))
    return false;
  erase.Bind(1, number);
  if (!erase.Run())
    return false;
  ++table.state->changes;
  table.state->lastAdded = 0;
  return true;
}

} // namespace trekor
