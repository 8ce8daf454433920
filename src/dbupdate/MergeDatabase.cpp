#include "dbupdate/MergeDatabase.h"

#include "store/Recordset.h"
#include "values/Text.h"

#include <algorithm>
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

// The counter can't go back: a row whose number is already passed takes the next number but one, as the refused one is
// used up too.
void AddNumbered(Recordset& fresh, const std::string& field, std::int64_t wanted) {
  if (fresh.AddNew(wanted) && fresh.Get(field).Integer() != wanted)
    fresh.AddNew();
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
  if (!key.field.empty() && fresh.Seek(number))
    fresh.Edit();
  else if (key.autoNumber && !number.IsNull())
    AddNumbered(fresh, key.field, number.Integer());
  else
    fresh.AddNew();
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

// A control that the release no longer has is not added; one that only the release has stays as it is. A row in both
// takes all columns of the site (place, flags, words in every language) except Visible: which controls are shown is for
// the release to say.
void MergeForm(Database& old, Database& fresh, const std::string& table) {
  const auto oldRows = old.OpenTable(table), freshRows = fresh.OpenTable(table);
  if (!oldRows || !freshRows || !freshRows->SetIndex("NameIndex"))
    return;
  oldRows->SetIndex("NameIndex");
  for (; !oldRows->Eof(); oldRows->MoveNext()) {
    if (!freshRows->Seek(oldRows->Get("Name")) || !freshRows->Edit())
      continue;
    for (int i = 0; i < oldRows->FieldCount(); ++i)
      if (!SameText(oldRows->FieldName(i), "Name") && !SameText(oldRows->FieldName(i), "Visible"))
        freshRows->Set(oldRows->FieldName(i), oldRows->Get(i));
    freshRows->Update();
  }
}

} // namespace

bool MergeDatabase(Database& old, Database& fresh) {
  if (!fresh.Begin())
    return false;
  for (const std::string& table : old.TableNames()) {
    if (SameText(table, "Version") || !fresh.HasTable(table))
      continue;
    MergeStructure(old, fresh, table);
    if (FindField(fresh.Fields(table), "CapEnglish"))
      MergeForm(old, fresh, table);
    else
      MergeRows(old, fresh, table);
  }
  if (old.Failed()) {
    fresh.Rollback();
    return false;
  }
  return fresh.Commit() && !fresh.Failed();
}

} // namespace trekor
