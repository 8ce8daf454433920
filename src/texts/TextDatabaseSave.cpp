// Storing the look of a form in its table.
#include "texts/FormTable.h"
#include "texts/KindTable.h"
#include "texts/TextDatabase.h"
#include "values/Text.h"

#include <string_view>
#include <unordered_map>

namespace trekor {

namespace {

// What a row is to hold; empty fields are left as they are.
struct WantedRow {
  std::string Name;
  std::optional<int> Left, Top, Width, Height;
  std::optional<bool> Visible;
  std::optional<std::string> Tag, Value, Caption, Tip;
};

// By upper-case name, as names compare without case.
using StoredRows = std::unordered_map<std::string, FormRow>;

StoredRows ReadRows(Recordset& table, const FormColumns& columns) {
  StoredRows rows;
  for (table.MoveFirst(); !table.Eof(); table.MoveNext()) {
    FormRow row = ReadFormRow(table, columns);
    rows.emplace(Upper(row.Name), std::move(row));
  }
  return rows;
}

const FormRow* StoredRow(const StoredRows& rows, const std::string& name) {
  const auto place = rows.find(Upper(name));
  return place == rows.end() ? nullptr : &place->second;
}

// The longest text of each column in characters, 0 without limit.
using ColumnSizes = std::vector<int>;

ColumnSizes SizesOf(const Database& database, const std::string& table) {
  ColumnSizes sizes;
  for (const FieldDefinition& field : database.Fields(table))
    sizes.push_back(field.size);
  return sizes;
}

// A text as its column will hold it. A list loses the parts that do not fit as a whole: half an entry or half a width
// would be read back as another one.
void FitText(std::optional<std::string>& text, int size, char separator) {
  if (!text || size <= 0 || CharCount(*text) <= size)
    return;
  const std::string longer = CutText(*text, size + 1);
  const std::size_t end = separator ? longer.rfind(separator) : std::string::npos;
  text = end == std::string::npos ? CutText(*text, size) : longer.substr(0, end);
}

WantedRow WantedForForm(const Form& form, const FormRow* stored) {
  WantedRow row;
  row.Name = "Me";
  row.Left = form.Left;
  row.Top = form.Top;
  row.Width = form.Width;
  row.Height = form.Height; // the inside: without the caption bar, as the flag says
  row.Tag = stored ? stored->Tag.value_or("") : "";
  AddFlag(*row.Tag, HeightWithoutCaption);
  row.Caption = form.Caption();
  return row;
}

WantedRow WantedForControl(const Control& control, int userLevel) {
  const KindRow& kind = KindRowOf(control.TypeOf());
  WantedRow row;
  row.Name = control.FullName();
  if (kind.placed) {
    row.Left = control.Left;
    row.Top = control.Top;
    row.Width = control.Width;
    row.Height = control.Height;
  }
  row.Tag = control.Tag();
  // What the flag hides from this user stays visible for the next one, who may see it.
  if (kind.shown && !(userLevel < levels::Administrator && HasFlag(control.Tag(), HiddenForUsers)))
    row.Visible = control.Visible();
  if (kind.value.read)
    row.Value = kind.value.read(control);
  if (kind.caption.read)
    row.Caption = kind.caption.read(control);
  if (kind.shown)
    row.Tip = control.ToolTipText();
  return row;
}

// A missing column never differs, and null equals the empty text.
bool SamePart(int column, const std::optional<std::string>& wanted, const std::string& stored) {
  return column < 0 || !wanted || *wanted == stored;
}

template <class Plain> bool SamePlain(const std::optional<Plain>& wanted, const std::optional<Plain>& stored) {
  return !wanted || wanted == stored;
}

bool SameRow(const FormColumns& columns, const WantedRow& wanted, const FormRow& stored) {
  return SamePlain(wanted.Left, stored.Left) && SamePlain(wanted.Top, stored.Top) &&
         SamePlain(wanted.Width, stored.Width) && SamePlain(wanted.Height, stored.Height) &&
         SamePlain(wanted.Visible, stored.Visible) && SamePart(columns.Tag, wanted.Tag, stored.Tag.value_or("")) &&
         SamePart(columns.Value, wanted.Value, stored.Value.value_or("")) &&
         SamePart(columns.Caption, wanted.Caption, stored.Caption) && SamePart(columns.Tip, wanted.Tip, stored.Tip);
}

template <class Content> void Put(Recordset& table, int column, const std::optional<Content>& content) {
  if (column >= 0 && content)
    table.Set(column, FieldValue(*content));
}

void Write(Recordset& table, const FormColumns& columns, const WantedRow& row) {
  if (!(table.Seek(row.Name) ? table.Edit() : table.AddNew()))
    return;
  table.Set(columns.Name, row.Name);
  Put(table, columns.Left, row.Left);
  Put(table, columns.Top, row.Top);
  Put(table, columns.Width, row.Width);
  Put(table, columns.Height, row.Height);
  Put(table, columns.Visible, row.Visible);
  Put(table, columns.Tag, row.Tag);
  Put(table, columns.Value, row.Value);
  Put(table, columns.Caption, row.Caption);
  Put(table, columns.Tip, row.Tip);
  if (!table.Update())
    table.CancelUpdate();
}

class Keeper {
public:
  Keeper(const Database& database, const Form& form, Recordset& formTable, const ProgramState& programState)
      : table(formTable), state(programState), columns(formTable, programState.command),
        sizes(SizesOf(database, form.Name())), stored(ReadRows(formTable, columns)) {}

  std::vector<WantedRow> ChangedRows(const Form& form) {
    std::vector<WantedRow> changed;
    Keep(changed, WantedForForm(form, StoredRow(stored, "Me")), KindRowOf(Kind::Form));
    for (const Control* control : form.Controls())
      Keep(changed, WantedForControl(*control, state.run.UserLevel), KindRowOf(control->TypeOf()));
    return changed;
  }

  void Write(const WantedRow& row) { trekor::Write(table, columns, row); }

private:
  void Keep(std::vector<WantedRow>& changed, WantedRow row, const KindRow& kind) const {
    FitText(row.Tag, SizeOf(columns.Tag), 0);
    FitText(row.Tip, SizeOf(columns.Tip), 0);
    FitText(row.Value, SizeOf(columns.Value), kind.value.separator);
    FitText(row.Caption, SizeOf(columns.Caption), kind.caption.separator);
    // Captions and tips in Chinese are maintained by its translators only.
    if (state.command.Language == "Chinese") {
      row.Caption.reset();
      row.Tip.reset();
    }
    const FormRow* there = StoredRow(stored, row.Name);
    if (!there || !SameRow(columns, row, *there))
      changed.push_back(std::move(row));
  }

  int SizeOf(int column) const {
    return column >= 0 && column < static_cast<int>(sizes.size()) ? sizes[static_cast<std::size_t>(column)] : 0;
  }

  Recordset& table;
  const ProgramState& state;
  FormColumns columns;
  ColumnSizes sizes;
  StoredRows stored;
};

} // namespace

// The operator waits for this at the end of the program, so rows are compared with one walk and only what has changed
// is written, in one transaction.
void TextDatabase::SaveFormProperties(Form& form) {
  const auto table = database && !undressed.contains(&form) ? database->OpenTable(form.Name()) : nullptr;
  if (!table || !table->SetIndex("NameIndex"))
    return;
  Keeper keeper(*database, form, *table, state);
  const auto changed = keeper.ChangedRows(form);
  if (table->Failed() || changed.empty() || !database->Begin())
    return;
  for (const auto& row : changed)
    keeper.Write(row);
  if (!database->Commit())
    database->Rollback();
}

} // namespace trekor
