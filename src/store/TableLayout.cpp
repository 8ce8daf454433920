#include "store/TableLayout.h"

#include "store/Engine.h"
#include "store/FieldFit.h"
#include "values/Text.h"

#include <algorithm>

#include <sqlite3.h>

namespace trekor {

namespace {

FieldValue Evaluated(Engine& engine, const std::string& expression) {
  Statement statement;
  if (expression.empty() || !statement.Prepare(engine, "SELECT " + expression) || !statement.Step())
    return {};
  return statement.Column(0);
}

bool IsAutoNumber(Engine& engine, const std::string& table, const std::string& field) {
  int autoNumber = 0;
  sqlite3_table_column_metadata(engine.db, nullptr, table.c_str(), field.c_str(), nullptr, nullptr, nullptr, nullptr,
                                &autoNumber);
  return autoNumber != 0;
}

struct KeyField {
  int field = 0;
  std::int64_t order = 0; // from 1
};

// Columns of table_info: cid, name, type, notnull, dflt_value, pk.
std::vector<KeyField> ReadFields(Engine& engine, const std::string& table, TableLayout& layout) {
  std::vector<KeyField> keys;
  Statement rows;
  rows.Prepare(engine, "PRAGMA table_info(" + QuotedName(table) + ")");
  while (rows.Step()) {
    FieldDefinition field;
    const std::string declaration = rows.Column(2).Text();
    field.name = rows.Column(1).Text();
    field.type = TypeOfDeclaration(declaration);
    field.size = field.type == FieldType::Text ? SizeOfDeclaration(declaration) : 0;
    field.required = rows.Number(3) != 0;
    field.autoNumber = IsAutoNumber(engine, table, field.name);
    FitToField(field, Evaluated(engine, rows.Column(4).Text()), field.defaultValue);
    if (rows.Number(5) > 0)
      keys.push_back({static_cast<int>(layout.fields.size()), rows.Number(5)});
    // Only this very word makes the field the row's own number.
    if (rows.Number(5) == 1 && SameName(declaration, "INTEGER"))
      layout.numberField = static_cast<int>(layout.fields.size());
    layout.fields.push_back(field);
  }
  std::sort(keys.begin(), keys.end(), [](const KeyField& a, const KeyField& b) { return a.order < b.order; });
  if (keys.size() != 1)
    layout.numberField = -1;
  return keys;
}

void AddOwnNumber(TableLayout& layout) {
  if (layout.numberField < 0)
    return;
  IndexLayout index;
  index.definition.name = layout.fields[static_cast<std::size_t>(layout.numberField)].name;
  index.definition.fields = {index.definition.name};
  index.definition.unique = index.definition.primary = true;
  index.keys = {{layout.numberField, false}};
  layout.indexes.push_back(index);
}

// Columns of index_xinfo: seqno, cid, name, desc, coll, key. An index on an expression has a key without a field and
// serves no order here.
bool ReadKeys(Engine& engine, const TableLayout& layout, IndexLayout& index) {
  Statement rows;
  rows.Prepare(engine, "PRAGMA index_xinfo(" + QuotedName(index.storedName) + ")");
  while (rows.Step()) {
    if (rows.Number(5) == 0)
      continue;
    const auto place = static_cast<int>(rows.Number(1));
    if (place < 0 || place >= static_cast<int>(layout.fields.size()))
      return false;
    index.keys.push_back({place, rows.Number(3) != 0});
    index.definition.fields.push_back(layout.fields[static_cast<std::size_t>(place)].name);
  }
  return !index.keys.empty();
}

std::string NameWithoutTable(const std::string& stored, const std::string& table) {
  const bool prefixed = stored.size() > table.size() + 1 && stored[table.size()] == '_' &&
                        SameName(std::string_view(stored).substr(0, table.size()), table);
  return prefixed ? stored.substr(table.size() + 1) : stored;
}

// Columns of index_list: seq, name, unique, origin, partial. The newest index stands first there.
void ReadIndexes(Engine& engine, TableLayout& layout) {
  Statement rows;
  rows.Prepare(engine, "PRAGMA index_list(" + QuotedName(layout.name) + ")");
  std::vector<IndexLayout> found;
  while (rows.Step()) {
    IndexLayout index;
    index.storedName = rows.Column(1).Text();
    index.definition.unique = rows.Number(2) != 0;
    index.definition.primary = rows.Column(3).Text() == "pk";
    const bool named = rows.Column(3).Text() == "c";
    if (rows.Number(4) != 0 || !ReadKeys(engine, layout, index))
      continue;
    index.definition.name = named ? NameWithoutTable(index.storedName, layout.name) : index.definition.fields.front();
    found.push_back(index);
  }
  layout.indexes.insert(layout.indexes.end(), found.rbegin(), found.rend());
}

} // namespace

int TableLayout::FieldPlace(std::string_view field) const {
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (SameName(fields[i].name, field))
      return static_cast<int>(i);
  return -1;
}

const IndexLayout* TableLayout::FindIndex(const std::string& wanted) const {
  const auto find = [this](auto fits) {
    const auto at = std::find_if(indexes.begin(), indexes.end(), fits);
    return at == indexes.end() ? nullptr : &*at;
  };
  const std::string prefixed = name + "_" + wanted;
  if (const auto* index = find([&](const IndexLayout& each) { return SameName(each.storedName, prefixed); }))
    return index;
  if (const auto* index = find([&](const IndexLayout& each) { return SameName(each.storedName, wanted); }))
    return index;
  return find([&](const IndexLayout& each) { return SameName(each.definition.name, wanted); });
}

bool ReadLayout(Engine& engine, const std::string& table, TableLayout& layout) {
  Statement find;
  const FieldValue wanted(table);
  if (!find.Prepare(engine, "SELECT name FROM sqlite_master WHERE type='table' AND name=? COLLATE NOCASE"))
    return false;
  find.Bind(1, wanted);
  if (!find.Step())
    return !find.Failed() && engine.FailWith("no table " + table);
  layout.name = find.Column(0).Text();
  const int failuresBefore = engine.Failures();
  ReadFields(engine, layout.name, layout);
  AddOwnNumber(layout);
  ReadIndexes(engine, layout);
  return engine.Failures() == failuresBefore && !layout.fields.empty();
}

} // namespace trekor
