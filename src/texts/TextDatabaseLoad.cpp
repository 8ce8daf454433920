// Setting the look of a form from its table.
#include "texts/FormTable.h"
#include "texts/KindTable.h"
#include "texts/LanguageFont.h"
#include "texts/TextDatabase.h"
#include "values/Text.h"

#include <vector>

namespace trekor {

namespace {

const std::string& OrEnglish(const std::string& words, const std::string& english) {
  return TrimView(words).empty() ? english : words;
}

class Dresser {
public:
  Dresser(Form& dressed, const ProgramState& programState) : form(dressed), state(programState) {}

  void Dress(const FormRow& row) {
    if (SameText(row.Name, "Me"))
      return DressForm(row);
    if (Control* control = FindOrLoad(row.Name))
      DressControl(*control, row);
  }

  // Option buttons exclude each other, so they are set last, when each is in its frame.
  void DressOptions() {
    for (Control* control : form.Controls())
      if (control->TypeOf() == Kind::OptionButton && control->Index() > -1)
        PutIntoFrame(*control);
    for (const auto& [control, value] : optionValues)
      KindRowOf(Kind::OptionButton).value.write(*control, value);
  }

private:
  void DressForm(const FormRow& row) {
    const std::string& title = OrEnglish(row.Caption, row.CaptionEnglish);
    if (!TrimView(title).empty())
      form.SetCaption(title);
    const bool withoutCaption = HasFlag(row.Tag.value_or(""), HeightWithoutCaption);
    const int height = row.Height ? InsideHeight(*row.Height, withoutCaption) : form.Height;
    form.Move(row.Left.value_or(form.Left), row.Top.value_or(form.Top), row.Width.value_or(form.Width), height);
    Font font = form.FontOf;
    SetLanguageFont(font, state.command.Language);
    form.SetFont(font);
  }

  Control* FindOrLoad(const std::string& rowName) {
    const auto name = ParseControlName(rowName);
    if (!name)
      return nullptr;
    if (Control* there = form.Find(name->Name, name->Index))
      return there;
    Control* loaded = name->Index < 0 ? nullptr : form.LoadElement(name->Name, name->Index);
    if (loaded)
      loaded->SetVisible(true);
    return loaded;
  }

  void DressControl(Control& control, const FormRow& row) {
    const KindRow& kind = KindRowOf(control.TypeOf());
    if (kind.placed)
      control.Move(row.Left.value_or(control.Left), row.Top.value_or(control.Top), row.Width.value_or(control.Width),
                   row.Height.value_or(control.Height));
    if (kind.shown && row.Visible)
      control.SetVisible(*row.Visible);
    if (row.Tag)
      control.SetTag(*row.Tag);
    LockForUsers(control);
    const std::string& tip = OrEnglish(row.Tip, row.TipEnglish);
    if (kind.shown && !TrimView(tip).empty())
      control.SetToolTipText(tip);
    DressByKind(control, kind, row);
    Font font = control.FontOf();
    SetLanguageFont(font, state.command.Language);
    control.SetFont(font);
  }

  void LockForUsers(Control& control) const {
    if (state.run.UserLevel >= levels::Administrator)
      return;
    if (HasFlag(control.Tag(), DisabledForUsers))
      control.SetEnabled(false);
    if (HasFlag(control.Tag(), HiddenForUsers))
      control.SetVisible(false);
  }

  void DressByKind(Control& control, const KindRow& kind, const FormRow& row) {
    if (kind.caption.write)
      kind.caption.write(control, OrEnglish(row.Caption, row.CaptionEnglish));
    if (!kind.value.write || !row.Value)
      return;
    if (kind.kind == Kind::OptionButton)
      optionValues.emplace_back(&control, *row.Value);
    else
      kind.value.write(control, *row.Value);
  }

  // A button of an array belongs to the frame of its own index, whatever its container was.
  void PutIntoFrame(Control& control) {
    if (Control* frame = form.Find("Frames", control.Index()))
      control.SetContainer(frame);
  }

  Form& form;
  const ProgramState& state;
  std::vector<std::pair<Control*, std::string>> optionValues;
};

} // namespace

// One walk over the table, as a start waits for it with every form.
void TextDatabase::LoadFormProperties(Form& form) {
  undressed.insert(&form);
  const auto table = database ? database->OpenTable(form.Name()) : nullptr;
  if (!table)
    return;
  table->SetIndex("NameIndex");
  const FormColumns columns(*table, state.command);
  std::vector<FormRow> rows;
  for (table->MoveFirst(); !table->Eof(); table->MoveNext())
    rows.push_back(ReadFormRow(*table, columns));
  if (table->Failed())
    return;
  undressed.erase(&form);
  Dresser dresser(form, state);
  for (const FormRow& row : rows)
    dresser.Dress(row);
  if (!rows.empty())
    dresser.DressOptions();
}

} // namespace trekor
