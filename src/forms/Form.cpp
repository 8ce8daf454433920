#include "forms/Form.h"

#include "values/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace trekor {

Form::Form(std::string formName) : name(std::move(formName)) {}

Form::~Form() {
  listener = nullptr;
  while (!elements.empty())
    elements.pop_back();
}

Control* Form::Find(const std::string& controlName, int index) const {
  for (Control* c : controls)
    if (c->Index() == index && SameName(c->Name(), controlName))
      return c;
  return nullptr;
}

void Form::SetCaption(std::string text) {
  Put(caption, std::move(text), Change::Caption);
}

void Form::SetRemark(std::string text) {
  Put(remark, std::move(text), Change::Text);
}

void Form::SetFont(Font f) {
  Put(FontOf, std::move(f), Change::Font);
}

void Form::SetWindowState(WindowStates state) {
  Put(windowState, state, Change::Geometry);
}

void Form::Refresh() {
  if (listener)
    listener->FormRefresh(*this);
}

void Form::Tell(Change what) {
  if (listener)
    listener->FormChanged(*this, what);
}

namespace {

using Maker = std::unique_ptr<Control> (*)(Form& form, const std::string& name, int index);

template <class Sort> std::unique_ptr<Control> Make(Form& form, const std::string& name, int index) {
  return std::make_unique<Sort>(form, name, index);
}

struct GenericArray {
  const char* name;
  Maker make;
};

constexpr std::array<GenericArray, 6> GenericArrays{{{"Labels", Make<Label>},
                                                     {"Texts", Make<TextBox>},
                                                     {"Commands", Make<CommandButton>},
                                                     {"Frames", Make<Frame>},
                                                     {"Checks", Make<CheckBox>},
                                                     {"Options", Make<OptionButton>}}};

// A new element copies from the lowest one of its array what its row in the database need not say.
void TakeAfter(Control& element, const std::vector<Control*>& controls) {
  const Control* lowest = nullptr;
  for (const Control* c : controls)
    if (c != &element && c->Index() >= 0 && SameName(c->Name(), element.Name()) &&
        (!lowest || c->Index() < lowest->Index()))
      lowest = c;
  if (!lowest)
    return;
  element.Container = lowest->Container;
  element.Move(lowest->Left, lowest->Top, lowest->Width, lowest->Height);
}

} // namespace

Control* Form::LoadElement(const std::string& arrayName, int index) {
  if (index < 0)
    return nullptr;
  if (Control* there = Find(arrayName, index))
    return there;
  const auto* array = std::find_if(GenericArrays.begin(), GenericArrays.end(),
                                   [&](const GenericArray& a) { return SameName(a.name, arrayName); });
  if (array == GenericArrays.end())
    return nullptr;
  elements.push_back(array->make(*this, array->name, index));
  Control& element = *elements.back();
  TakeAfter(element, controls);
  if (listener)
    listener->ControlAdded(*this, element);
  return &element;
}

void Form::Register(Control& control) {
  controls.push_back(&control);
}

namespace {

TextBox* AsText(Control* control) {
  const bool text = control && (control->TypeOf() == Kind::TextBox || control->TypeOf() == Kind::RichTextBox);
  return text ? static_cast<TextBox*>(control) : nullptr;
}

bool Holds(const Control& holder, const Control* held) {
  while (held && held != &holder)
    held = held->Container;
  return held != nullptr;
}

} // namespace

void Form::FocusMoved(Control* to) {
  if (to == ActiveControl)
    return;
  Control* before = std::exchange(ActiveControl, to);
  if (TextBox* left = AsText(before))
    left->LoseFocus();
  if (TextBox* entered = ActiveControl == to ? AsText(to) : nullptr)
    entered->GetFocus();
}

void Form::HandOverFocus(const Control& from) {
  if (!FocusHome || !Holds(from, ActiveControl) || Holds(from, FocusHome))
    return;
  FocusMoved(FocusHome);
  FocusHome->Tell(Change::Focus);
}

// Controls are destroyed in reverse order, so the search begins at the end.
void Form::Forget(Control& control) {
  const auto place = std::find(controls.rbegin(), controls.rend(), &control);
  if (place != controls.rend())
    controls.erase(std::next(place).base());
  if (ActiveControl == &control)
    ActiveControl = nullptr;
  if (FocusHome == &control)
    FocusHome = nullptr;
  for (Control* c : controls)
    if (c->Container == &control)
      c->SetContainer(nullptr);
}

} // namespace trekor
