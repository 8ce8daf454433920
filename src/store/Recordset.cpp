#include "store/Recordset.h"

#include "store/FieldFit.h"
#include "store/RecordsetParts.h"
#include "values/Text.h"

namespace trekor {

Recordset::Recordset() = default;
Recordset::~Recordset() = default;

bool Recordset::SetIndex(const std::string& name) {
  parts->Drop();
  return parts->cursor->SetIndex(name);
}

bool Recordset::Seek(const FieldValue& key) {
  parts->Drop();
  return parts->cursor->Seek(key);
}

bool Recordset::Eof() const {
  return parts->cursor->Eof();
}

void Recordset::MoveFirst() {
  parts->Drop();
  parts->cursor->MoveFirst();
}

void Recordset::MoveNext() {
  parts->Drop();
  parts->cursor->MoveNext();
}

void Recordset::MoveLast() {
  parts->Drop();
  parts->cursor->MoveLast();
}

int Recordset::RecordCount() {
  return parts->cursor->RecordCount();
}

bool Recordset::Requery() {
  parts->Drop();
  return parts->cursor->Requery();
}

bool Recordset::Failed() const {
  return parts->cursor->Failed();
}

int Recordset::FieldCount() const {
  return static_cast<int>(parts->shape.columns.size());
}

std::string Recordset::FieldName(int place) const {
  const bool known = place >= 0 && place < FieldCount();
  return known ? parts->shape.columns[static_cast<std::size_t>(place)].name : std::string();
}

int Recordset::FieldPlace(std::string_view name) const {
  const std::vector<Column>& columns = parts->shape.columns;
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (SameName(columns[i].name, name))
      return static_cast<int>(i);
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos)
    return -1;
  const std::string_view table = name.substr(0, dot), field = name.substr(dot + 1);
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (SameName(columns[i].table, table) && SameName(columns[i].name, field))
      return static_cast<int>(i);
  return -1;
}

FieldValue Recordset::Get(std::string_view name) const {
  return Get(FieldPlace(name));
}

FieldValue Recordset::Get(int place) const {
  if (place < 0 || place >= FieldCount())
    return {};
  if (parts->buffering != Parts::Buffer::None)
    return parts->buffer[static_cast<std::size_t>(place)];
  return parts->cursor->Value(place);
}

bool Recordset::AddNew(std::int64_t atLeast) {
  parts->Drop();
  if (parts->shape.tables.size() != 1)
    return parts->engine->FailWith("rows of a join can't be added");
  const TableLayout& layout = *parts->shape.tables[0].layout;
  const auto& columns = parts->shape.columns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!columns[i].field.autoNumber) {
      parts->buffer[i] = columns[i].field.defaultValue;
      continue;
    }
    const std::int64_t number = parts->engine->NextNumber(layout, *parts->shape.tables[0].state, atLeast);
    if (number == 0)
      return false;
    parts->buffer[i] = FieldValue(number);
  }
  parts->buffering = Parts::Buffer::Adding;
  return true;
}

bool Recordset::Edit() {
  parts->Drop();
  const Row* row = parts->shape.tables.empty() ? nullptr : parts->cursor->Hold();
  if (!row)
    return parts->engine->FailWith("no row to edit");
  parts->buffer = row->values;
  parts->touched.assign(parts->shape.columns.size(), 0);
  parts->buffering = Parts::Buffer::Editing;
  return true;
}

bool Recordset::Set(std::string_view name, const FieldValue& value) {
  return Set(FieldPlace(name), value);
}

bool Recordset::Set(int place, const FieldValue& value) {
  if (!parts->CanSet(place))
    return false;
  const auto at = static_cast<std::size_t>(place);
  if (!FitToField(parts->shape.columns[at].field, value, parts->buffer[at]))
    return false;
  if (parts->buffering == Parts::Buffer::Editing)
    parts->touched[at] = 1;
  return true;
}

bool Recordset::AppendChunk(std::string_view name, const unsigned char* bytes, std::size_t count) {
  const int place = FieldPlace(name);
  if (!parts->CanSet(place))
    return false;
  const auto at = static_cast<std::size_t>(place);
  if (parts->shape.columns[at].field.type != FieldType::LongBinary)
    return false;
  parts->buffer[at].Append(bytes, count);
  if (parts->buffering == Parts::Buffer::Editing)
    parts->touched[at] = 1;
  return true;
}

// After a failure the buffer stays as it is: the caller may set another value and try again, or go on to another row.
bool Recordset::Update() {
  if (parts->buffering == Parts::Buffer::None)
    return false;
  const bool stored = parts->buffering == Parts::Buffer::Adding ? parts->StoreNew() : parts->StoreChanges();
  if (stored)
    parts->Drop();
  return stored;
}

void Recordset::CancelUpdate() {
  parts->Drop();
}

bool Recordset::Delete() {
  parts->Drop();
  const Row* row = parts->shape.tables.empty() ? nullptr : parts->cursor->Hold();
  if (!row)
    return parts->engine->FailWith("no row to delete");
  // In a join, the row of the table that is first in the query.
  if (!parts->Writer(0).Erase(row->numbers[0]))
    return false;
  parts->cursor->Deleted();
  return true;
}

} // namespace trekor
