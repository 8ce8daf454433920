#include "forms/Control.h"

#include "forms/Form.h"

namespace trekor {

Control::Control(Form& form, Kind sort, std::string controlName, int place)
    : owner(form), kind(sort), name(std::move(controlName)), index(place) {
  owner.Register(*this);
}

Control::~Control() {
  owner.Forget(*this);
}

std::string Control::FullName() const {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

void Control::SetContainer(Control* frame) {
  Put(Container, frame, Change::Geometry);
}

void Control::SetVisible(bool on) {
  if (visible == on)
    return;
  visible = on;
  if (!on)
    owner.HandOverFocus(*this); // first, or the window system would choose another control
  Tell(Change::Visible);
}

void Control::SetEnabled(bool on) {
  if (enabled == on)
    return;
  enabled = on;
  if (!on)
    owner.HandOverFocus(*this);
  Tell(Change::Enabled);
}

void Control::SetToolTipText(std::string text) {
  Put(tip, std::move(text), Change::ToolTip);
}

void Control::SetFont(Font f) {
  Put(font, std::move(f), Change::Font);
}

void Control::Tell(Change what) {
  if (listener)
    listener->ControlChanged(*this, what);
}

} // namespace trekor
