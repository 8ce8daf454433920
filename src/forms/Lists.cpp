// The kinds that hold a list of entries.
#include "forms/Controls.h"
#include "forms/Entries.h"
#include "values/Text.h"

#include <algorithm>

namespace trekor {

void ListControl::Empty() {
  items.clear();
  current = -1;
  Tell(Change::List);
}

void ListControl::AddItem(std::string entry) {
  items.push_back(std::move(entry));
  Tell(Change::List);
}

void ListControl::AddItems(const std::vector<std::string>& entries) {
  items.insert(items.end(), entries.begin(), entries.end());
  Tell(Change::List);
}

const std::string& ListControl::List(int i) const {
  return HasEntry(i) ? At(items, i) : Nothing;
}

bool ListControl::HasEntry(int i) const {
  return Has(items, i);
}

void ComboBox::Clear() {
  text.clear();
  Empty();
}

void ComboBox::Choose(int i) {
  current = i;
  text = List(i);
  Tell(Change::Selection);
  Raise(OnClick);
}

void ComboBox::SetListIndex(int i) {
  if (i != current && (i == -1 || HasEntry(i)))
    Choose(i);
}

const std::string& ComboBox::Text() const {
  return text;
}

// A box without typing takes only a text of its list.
void ComboBox::SetText(std::string t) {
  if (DropDownList) {
    const auto place = std::find(items.begin(), items.end(), t);
    if (place != items.end())
      SetListIndex(static_cast<int>(place - items.begin()));
    return;
  }
  if (t == text)
    return;
  current = -1;
  text = std::move(t);
  Tell(Change::Text);
  Raise(OnChange);
}

void ComboBox::Select(int i) {
  if (Enabled() && HasEntry(i))
    Choose(i);
}

bool ListBox::Selected(int i) const {
  return std::find(chosen.begin(), chosen.end(), i) != chosen.end();
}

void ListBox::Clear() {
  chosen.clear();
  Empty();
}

void ListBox::SelectSeveral(std::vector<int> entries, int last) {
  if (!Enabled() || !MultiSelect)
    return;
  std::erase_if(entries, [this](int i) { return !HasEntry(i); });
  chosen = std::move(entries);
  current = HasEntry(last) ? last : -1;
  Tell(Change::Selection);
  Raise(OnClick);
}

void ListBox::Choose(int i) {
  current = i;
  chosen = {i};
  Tell(Change::Selection);
}

void ListBox::Select(int i) {
  if (!Enabled() || !HasEntry(i))
    return;
  Choose(i);
  Raise(OnClick);
}

void ListBox::DblClick(int i) {
  if (!Enabled() || !HasEntry(i))
    return;
  Choose(i);
  Raise(OnDblClick);
}

bool ListBox::Press(int keyCode, int shift) {
  return Enabled() && OnKeyDown && OnKeyDown(keyCode, shift);
}

void TabStrip::Clear() {
  tabs.clear();
  selected = -1;
  Tell(Change::List);
}

void TabStrip::Add(std::string key, std::string caption) {
  tabs.push_back({std::move(key), std::move(caption)});
  Tell(Change::List);
}

void TabStrip::SetCaption(int i, std::string caption) {
  if (!Has(tabs, i) || At(tabs, i).Caption == caption)
    return;
  At(tabs, i).Caption = std::move(caption);
  Tell(Change::List);
}

void TabStrip::SetSelected(int i) {
  if (i == selected || !Has(tabs, i))
    return;
  selected = i;
  Tell(Change::Selection);
  Raise(OnClick);
}

void TabStrip::Select(int i) {
  if (Enabled())
    SetSelected(i);
}

void ToolBar::Add(Button button) {
  buttons.push_back(std::move(button));
  Tell(Change::List);
}

ToolBar::Button* ToolBar::Find(const std::string& key) {
  const auto place =
      std::find_if(buttons.begin(), buttons.end(), [&](const Button& b) { return SameName(b.Key, key); });
  return place == buttons.end() ? nullptr : &*place;
}

void ToolBar::SetButtonEnabled(const std::string& key, bool on) {
  Button* button = Find(key);
  if (!button || button->Enabled == on)
    return;
  button->Enabled = on;
  Tell(Change::List);
}

void ToolBar::SetButtonTip(int i, std::string tip) {
  if (!Has(buttons, i) || At(buttons, i).ToolTip == tip)
    return;
  At(buttons, i).ToolTip = std::move(tip);
  Tell(Change::List);
}

void ToolBar::ClickButton(const std::string& key) {
  const Button* button = Find(key);
  if (Enabled() && button && button->Enabled && OnButtonClick)
    OnButtonClick(std::string(button->Key)); // a copy: the handler may rebuild the bar
}

void ImageList::Clear() {
  pictures.clear();
  Tell(Change::List);
}

bool ImageList::Add(Picture picture) {
  if (Find(picture.Key))
    return false;
  pictures.push_back(std::move(picture));
  Tell(Change::List);
  return true;
}

const ImageList::Picture* ImageList::Find(const std::string& key) const {
  const auto place =
      std::find_if(pictures.begin(), pictures.end(), [&](const Picture& p) { return SameName(p.Key, key); });
  return place == pictures.end() ? nullptr : &*place;
}

} // namespace trekor
