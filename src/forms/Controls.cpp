#include "forms/Controls.h"

#include "forms/Form.h"

namespace trekor {

void Label::SetCaption(std::string text) {
  Put(caption, std::move(text), Change::Caption);
}

void Label::SetForeColor(int rgb) {
  Put(colour, rgb, Change::Colour);
}

void Label::Click() {
  if (Enabled())
    Raise(OnClick);
}

void CheckBox::SetCaption(std::string t) {
  Put(caption, std::move(t), Change::Caption);
}

void CheckBox::SetValue(int v) {
  if (v < 0 || v > 2 || v == value)
    return;
  value = v;
  Tell(Change::Value);
  Raise(OnClick);
}

void CheckBox::Click() {
  if (Enabled())
    SetValue(value == 0 ? 1 : 0);
}

void OptionButton::SetCaption(std::string t) {
  Put(caption, std::move(t), Change::Caption);
}

void OptionButton::ClearOthers() {
  for (Control* c : Owner().Controls()) {
    if (c == this || c->TypeOf() != Kind::OptionButton || c->Container != Container)
      continue;
    auto& other = static_cast<OptionButton&>(*c);
    if (!other.value)
      continue;
    other.value = false;
    other.Tell(Change::Value);
  }
}

void OptionButton::SetValue(bool v) {
  if (value == v)
    return;
  value = v;
  if (v)
    ClearOthers();
  Tell(Change::Value);
  if (v)
    Raise(OnClick);
}

void OptionButton::Click() {
  if (Enabled())
    SetValue(true);
}

void CommandButton::SetCaption(std::string t) {
  Put(caption, std::move(t), Change::Caption);
}

void CommandButton::Click() {
  if (Enabled())
    Raise(OnClick);
}

void Frame::SetCaption(std::string t) {
  Put(caption, std::move(t), Change::Caption);
}

void Image::SetPicture(std::string key) {
  Put(picture, std::move(key), Change::Picture);
}

void Image::Click() {
  if (Enabled())
    Raise(OnClick);
}

void StatusBar::SetSimpleText(std::string t) {
  Put(text, std::move(t), Change::Text);
}

void Menu::SetCaption(std::string t) {
  Put(caption, std::move(t), Change::Caption);
}

void Menu::SetChecked(bool on) {
  Put(checked, on, Change::Value);
}

void Menu::Click() {
  if (Enabled())
    Raise(OnClick);
}

void Timer::SetInterval(int milliseconds) {
  Put(interval, milliseconds, Change::Interval);
}

void Timer::SetRunning(bool on) {
  Put(running, on, Change::Interval);
}

void Timer::Fire() {
  if (running)
    Raise(OnTimer);
}

} // namespace trekor
