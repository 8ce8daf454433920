#include "texts/FormTable.h"

#include "values/NumberText.h"

#include <charconv>

namespace trekor {

namespace {

std::optional<int> Number(const FieldValue& v) {
  return v.IsNull() ? std::nullopt : std::optional<int>(ToInteger32(v.Number()));
}

std::optional<std::string> Words(const FieldValue& v) {
  return v.IsNull() ? std::nullopt : std::optional<std::string>(v.Text());
}

} // namespace

FormColumns::FormColumns(const Recordset& table, const CommandLineFlags& command)
    : Name(table.FieldPlace("Name")), Left(table.FieldPlace("Left")), Top(table.FieldPlace("Top")),
      Width(table.FieldPlace("Width")), Height(table.FieldPlace("Height")), Value(table.FieldPlace("Value")),
      Visible(table.FieldPlace("Visible")), Tag(table.FieldPlace("Tag")), Caption(table.FieldPlace(command.CapColumn)),
      Tip(table.FieldPlace(command.TipColumn)), CaptionEnglish(table.FieldPlace("CapEnglish")),
      TipEnglish(table.FieldPlace("TipEnglish")) {}

FormRow ReadFormRow(const Recordset& table, const FormColumns& columns) {
  const auto get = [&](int place) { return place < 0 ? FieldValue() : table.Get(place); };
  FormRow row;
  row.Name = get(columns.Name).Text();
  row.Left = Number(get(columns.Left));
  row.Top = Number(get(columns.Top));
  row.Width = Number(get(columns.Width));
  row.Height = Number(get(columns.Height));
  row.Value = Words(get(columns.Value));
  row.Tag = Words(get(columns.Tag));
  if (const FieldValue visible = get(columns.Visible); !visible.IsNull())
    row.Visible = visible.Flag();
  row.Caption = get(columns.Caption).Text();
  row.Tip = get(columns.Tip).Text();
  row.CaptionEnglish = get(columns.CaptionEnglish).Text();
  row.TipEnglish = get(columns.TipEnglish).Text();
  return row;
}

std::optional<ControlName> ParseControlName(const std::string& rowName) {
  const std::size_t open = rowName.find('(');
  if (open == std::string::npos)
    return ControlName{rowName, -1};
  int index = -1;
  const char* digits = rowName.data() + open + 1;
  const char* end = rowName.data() + rowName.size();
  const auto read = std::from_chars(digits, end, index);
  if (read.ec != std::errc() || read.ptr == end || *read.ptr != ')' || index < 0)
    return std::nullopt;
  return ControlName{rowName.substr(0, open), index};
}

bool HasFlag(const std::string& tag, char letter) {
  return tag.find(letter) != std::string::npos;
}

// A blank is filled first, so that a control that is locked and freed again and again does not outgrow the column.
void AddFlag(std::string& tag, char letter) {
  if (HasFlag(tag, letter))
    return;
  if (const std::size_t blank = tag.find(' '); blank != std::string::npos)
    tag[blank] = letter;
  else
    tag += letter;
}

void BlankFlag(std::string& tag, char letter) {
  for (char& c : tag)
    if (c == letter)
      c = ' ';
}

int InsideHeight(int stored, bool withoutCaption) {
  return withoutCaption ? stored : stored + OldCaptionGrowth - CaptionBarHeight;
}

} // namespace trekor
