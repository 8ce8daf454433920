#include "forms/Controls.h"

#include "forms/Form.h"

namespace trekor {

namespace {

void Raise(const Handler& handler) {
  if (handler)
    handler();
}

} // namespace

void Label::SetCaption(std::string text) {
  if (caption == text)
    return;
  caption = std::move(text);
  Tell(Change::Caption);
}

void Label::SetForeColor(int rgb) {
  if (colour == rgb)
    return;
  colour = rgb;
  Tell(Change::Colour);
}

void Label::Click() {
  if (Enabled())
    Raise(OnClick);
}

void CheckBox::SetCaption(std::string t) {
  if (caption == t)
    return;
  caption = std::move(t);
  Tell(Change::Caption);
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
  if (caption == t)
    return;
  caption = std::move(t);
  Tell(Change::Caption);
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
  if (caption == t)
    return;
  caption = std::move(t);
  Tell(Change::Caption);
}

void CommandButton::Click() {
  if (Enabled())
    Raise(OnClick);
}

void Frame::SetCaption(std::string t) {
  if (caption == t)
    return;
  caption = std::move(t);
  Tell(Change::Caption);
}

void Image::SetPicture(std::string key) {
  if (picture == key)
    return;
  picture = std::move(key);
  Tell(Change::Picture);
}

void Image::Click() {
  if (Enabled())
    Raise(OnClick);
}

void StatusBar::SetSimpleText(std::string t) {
  if (text == t)
    return;
  text = std::move(t);
  Tell(Change::Text);
}

void Menu::SetCaption(std::string t) {
  if (caption == t)
    return;
  caption = std::move(t);
  Tell(Change::Caption);
}

void Menu::SetChecked(bool on) {
  if (checked == on)
    return;
  checked = on;
  Tell(Change::Value);
}

void Menu::Click() {
  if (Enabled())
    Raise(OnClick);
}

void Timer::SetInterval(int milliseconds) {
  if (interval == milliseconds)
    return;
  interval = milliseconds;
  Tell(Change::Interval);
}

void Timer::SetRunning(bool on) {
  if (running == on)
    return;
  running = on;
  Tell(Change::Interval);
}

void Timer::Fire() {
  if (running)
    Raise(OnTimer);
}

} // namespace trekor
