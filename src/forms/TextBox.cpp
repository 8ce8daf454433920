#include "forms/Controls.h"
#include "values/Text.h"

namespace trekor {

void TextBox::SetText(std::string t) {
  if (text == t)
    return;
  text = std::move(t);
  edited = false;
  SelStart = SelLength = 0;
  Tell(Change::Text);
  Raise(OnChange);
}

void TextBox::SelectAll() {
  SelStart = 0;
  SelLength = CharCount(text);
  Tell(Change::Selection);
}

void TextBox::CaretToStart() {
  SelStart = SelLength = 0;
  Tell(Change::Selection);
}

// The view is told although it sent the text: what the box did not take must be removed from the screen.
void TextBox::Type(std::string t) {
  if (!Enabled() || ReadOnly)
    return Tell(Change::Text);
  if (MaxLength > 0)
    t = CutText(t, MaxLength);
  const bool differs = t != text;
  edited = edited || differs;
  text = std::move(t);
  SelStart = CharCount(text);
  SelLength = 0;
  Tell(Change::Text);
  if (differs)
    Raise(OnChange);
}

void TextBox::GetFocus() {
  edited = false;
  Raise(OnGotFocus);
}

void TextBox::LoseFocus() {
  Raise(OnLostFocus);
}

bool TextBox::Press(int keyCode, int shift) {
  return Enabled() && OnKeyDown && OnKeyDown(keyCode, shift);
}

void TextBox::Click() {
  if (Enabled())
    Raise(OnClick);
}

void TextBox::DblClick() {
  if (Enabled())
    Raise(OnDblClick);
}

} // namespace trekor
