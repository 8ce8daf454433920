#include "dbupdate/MergeDatabase.h"

#include "store/Recordset.h"
#include "values/Text.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace trekor {

namespace {

struct KeyOfTable {
  std::string index, field; // empty: no primary index
  bool autoNumber = false;
};

const FieldDefinition* FindField(const std::vector<FieldDefinition>& fields, const std::string& name) {
  const auto at = std::find_if(fields.begin(), fields.end(),
                               [&](const FieldDefinition& field) { return SameText(field.name, name); });
  return at == fields.end() ? nullptr : &*at;
}

// Columns that a site has added, among them language columns.
void MergeStructure(Database& old, Database& fresh, const std::string& table) {
  const auto known = fresh.Fields(table);
  for (const FieldDefinition& field : old.Fields(table))
    if (!FindField(known, field.name))
      fresh.AppendField(table, field);
}

KeyOfTable FindKey(const Database& fresh, const std::string& table) {
  KeyOfTable key;
  for (const IndexDefinition& index : fresh.Indexes(table))
    if (index.primary && key.field.empty()) {
      key.index = index.name;
      key.field = index.fields.front();
    }
  const auto fields = fresh.Fields(table);
  const FieldDefinition* field = FindField(fields, key.field);
  key.autoNumber = field && field->autoNumber;
  return key;
}

// Asking for a row uses up a number, so asking again moves the counter on by one. It can't go back: once the gap grows,
// the row keeps the number that it has got.
void ReachNumber(Recordset& fresh, const std::string& field, std::int64_t wanted) {
  const std::int64_t firstGap = std::llabs(wanted - fresh.Get(field).Integer());
  for (std::int64_t gap = firstGap; gap != 0 && gap <= firstGap;) {
    fresh.CancelUpdate();
    fresh.AddNew();
    gap = std::llabs(wanted - fresh.Get(field).Integer());
  }
}

// Nulls take the default that the release gives the field.
void CopyFields(const Recordset& old, Recordset& fresh, const std::vector<FieldDefinition>& freshFields) {
  for (int i = 0; i < old.FieldCount(); ++i) {
    const std::string name = old.FieldName(i);
    const FieldDefinition* field = FindField(freshFields, name);
    const FieldValue value = old.Get(i);
    if (field)
      fresh.Set(name, value.IsNull() ? field->defaultValue : value);
  }
}

void MergeRow(const Recordset& old, Recordset& fresh, const KeyOfTable& key,
              const std::vector<FieldDefinition>& freshFields) {
  const FieldValue number = key.field.empty() ? FieldValue() : old.Get(key.field);
  if (!key.field.empty() && fresh.Seek(number)) {
    fresh.Edit();
  } else {
    fresh.AddNew();
    if (key.autoNumber && !number.IsNull())
      ReachNumber(fresh, key.field, number.Integer());
  }
  CopyFields(old, fresh, freshFields);
  if (!fresh.Update())
    fresh.CancelUpdate();
}

void MergeRows(Database& old, Database& fresh, const std::string& table) {
  const auto oldRows = old.OpenTable(table), freshRows = fresh.OpenTable(table);
  if (!oldRows || !freshRows)
    return;
  const KeyOfTable key = FindKey(fresh, table);
  if (!key.index.empty())
    freshRows->SetIndex(key.index);
  const auto fields = fresh.Fields(table);
  for (; !oldRows->Eof(); oldRows->MoveNext())
    MergeRow(*oldRows, *freshRows, key, fields);
}

// A control that the release no longer has is not added; one that only the release has stays as it is. All columns of a
// row that both have are the site's: where the control stands, its flags, and its words in every language.
void MergeForm(Database& old, Database& fresh, const std::string& table) {
  const auto oldRows = old.OpenTable(table), freshRows = fresh.OpenTable(table);
  if (!oldRows || !freshRows || !freshRows->SetIndex("NameIndex"))
    return;
  oldRows->SetIndex("NameIndex");
  for (; !oldRows->Eof(); oldRows->MoveNext()) {
    if (!freshRows->Seek(oldRows->Get("Name")) || !freshRows->Edit())
      continue;
    for (int i = 0; i < oldRows->FieldCount(); ++i)
      if (!SameText(oldRows->FieldName(i), "Name"))
        freshRows->Set(oldRows->FieldName(i), oldRows->Get(i));
    freshRows->Update();
  }
}

} // namespace

void MergeDatabase(Database& old, Database& fresh) {
  fresh.Begin();
  for (const std::string& table : old.TableNames()) {
    if (SameText(table, "Version") || !fresh.HasTable(table))
      continue;
    MergeStructure(old, fresh, table);
    if (FindField(fresh.Fields(table), "CapEnglish"))
      MergeForm(old, fresh, table);
    else
      MergeRows(old, fresh, table);
  }
  fresh.Commit();
}

} // namespace trekor
