#include "texts/KindTable.h"

#include "forms/Controls.h"
#include "forms/Grid.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

namespace trekor {

namespace {

std::string Join(int count, char separator, const std::function<std::string(int)>& part) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    if (i > 0)
      all += separator;
    all += part(i);
  }
  return all;
}

// No parts at all for a blank text, where the splitting itself gives one.
std::vector<std::string> Parts(const std::string& text, char separator) {
  return TrimView(text).empty() ? std::vector<std::string>() : SplitText(text, separator);
}

std::optional<int> WholeNumber(const std::string& text) {
  return IsNumeric(text) ? ToInteger32(TextToDouble(text)) : std::nullopt;
}

std::optional<bool> Truth(const std::string& text) {
  if (SameText(text, "True") || SameText(text, "False"))
    return SameText(text, "True");
  const auto number = WholeNumber(text);
  return number ? std::optional<bool>(*number != 0) : std::nullopt;
}

std::string FlagText(bool on) {
  return on ? "-1" : "0";
}

template <class Sort> const Sort& As(const Control& control) {
  return static_cast<const Sort&>(control);
}
template <class Sort> Sort& As(Control& control) {
  return static_cast<Sort&>(control);
}

template <class Sort> constexpr TextProperty Caption() {
  return {[](const Control& c) { return As<Sort>(c).Caption(); },
          [](Control& c, const std::string& text) { As<Sort>(c).SetCaption(text); }};
}

constexpr TextProperty BoxText{[](const Control& c) { return As<TextBox>(c).Text(); },
                               [](Control& c, const std::string& text) { As<TextBox>(c).SetText(text); }};

constexpr TextProperty BarText{[](const Control& c) { return As<StatusBar>(c).SimpleText(); },
                               [](Control& c, const std::string& text) { As<StatusBar>(c).SetSimpleText(text); }};

void FillList(ComboBox& box, const std::string& text) {
  const auto entries = Parts(text, '|');
  if (entries.empty())
    return;
  box.Clear();
  for (const auto& entry : entries)
    box.AddItem(entry);
}

std::string ComboCaption(const Control& c) {
  const auto& box = As<ComboBox>(c);
  return box.DropDownList ? Join(box.ListCount(), '|', [&](int i) { return box.List(i); }) : box.Text();
}

void SetComboCaption(Control& c, const std::string& text) {
  auto& box = As<ComboBox>(c);
  if (box.DropDownList)
    FillList(box, text);
  else
    box.SetText(text);
}

constexpr TextProperty ComboList{ComboCaption, SetComboCaption, '|'};

constexpr TextProperty ComboIndex{[](const Control& c) { return std::to_string(As<ComboBox>(c).ListIndex()); },
                                  [](Control& c, const std::string& text) {
                                    if (const auto i = WholeNumber(text))
                                      As<ComboBox>(c).SetListIndex(*i);
                                  }};

constexpr TextProperty CheckValue{[](const Control& c) { return std::to_string(As<CheckBox>(c).Value()); },
                                  [](Control& c, const std::string& text) {
                                    if (const auto v = WholeNumber(text))
                                      As<CheckBox>(c).SetValue(*v);
                                  }};

constexpr TextProperty OptionValue{[](const Control& c) { return FlagText(As<OptionButton>(c).Value()); },
                                   [](Control& c, const std::string& text) {
                                     if (const auto v = Truth(text))
                                       As<OptionButton>(c).SetValue(*v);
                                   }};

constexpr TextProperty MenuCheck{[](const Control& c) { return FlagText(As<Menu>(c).Checked()); },
                                 [](Control& c, const std::string& text) {
                                   if (const auto v = Truth(text))
                                     As<Menu>(c).SetChecked(*v);
                                 }};

constexpr TextProperty GridFormat{[](const Control& c) { return As<Grid>(c).FormatString(); },
                                  [](Control& c, const std::string& text) { As<Grid>(c).SetFormatString(text); }};

std::string GridWidths(const Control& c) {
  const auto& grid = As<Grid>(c);
  return Join(grid.Cols(), ';', [&](int i) { return std::to_string(grid.ColWidth(i)); });
}

void SetGridWidths(Control& c, const std::string& text) {
  int column = 0;
  for (const auto& part : Parts(text, ';')) {
    if (const auto width = WholeNumber(part))
      As<Grid>(c).SetColWidth(column, *width);
    ++column;
  }
}

constexpr TextProperty ColumnWidths{GridWidths, SetGridWidths, ';'};

std::string TabCaptions(const Control& c) {
  const auto& strip = As<TabStrip>(c);
  return Join(strip.Count(), '|', [&](int i) { return strip.Tabs(i).Caption; });
}

void SetTabCaptions(Control& c, const std::string& text) {
  int tab = 0;
  for (const auto& part : Parts(text, '|'))
    As<TabStrip>(c).SetCaption(tab++, part);
}

constexpr TextProperty Tabs{TabCaptions, SetTabCaptions, '|'};

constexpr TextProperty OpenTab{[](const Control& c) { return std::to_string(As<TabStrip>(c).Selected()); },
                               [](Control& c, const std::string& text) {
                                 if (const auto i = WholeNumber(text))
                                   As<TabStrip>(c).SetSelected(*i);
                               }};

constexpr TextProperty None{};

// A kind with None has no caption or no value to store.
constexpr std::array KindRows{
    // kind, type name, placed, shown, caption text goes to, Value goes to
    KindRow{Kind::Form, "Form", true, true, None, None}, // the row "Me" has its own rules
    KindRow{Kind::Label, "Label", true, true, Caption<Label>(), None},
    KindRow{Kind::TextBox, "TextBox", true, true, BoxText, None},
    KindRow{Kind::RichTextBox, "RichTextBox", true, true, BoxText, None},
    KindRow{Kind::CheckBox, "CheckBox", true, true, Caption<CheckBox>(), CheckValue},
    KindRow{Kind::OptionButton, "OptionButton", true, true, Caption<OptionButton>(), OptionValue},
    KindRow{Kind::ComboBox, "ComboBox", true, true, ComboList, ComboIndex},
    KindRow{Kind::ListBox, "ListBox", true, true, None, None},
    KindRow{Kind::CommandButton, "CommandButton", true, true, Caption<CommandButton>(), None},
    KindRow{Kind::Frame, "Frame", true, true, Caption<Frame>(), None},
    KindRow{Kind::Image, "Image", true, true, None, None},
    KindRow{Kind::FlexGrid, "MSFlexGrid", true, true, GridFormat, ColumnWidths},
    KindRow{Kind::TabStrip, "TabStrip", true, true, Tabs, OpenTab},
    KindRow{Kind::ToolBar, "Toolbar", true, true, None, None},
    KindRow{Kind::StatusBar, "StatusBar", true, true, BarText, None},
    KindRow{Kind::Menu, "Menu", false, true, Caption<Menu>(), MenuCheck},
    KindRow{Kind::Timer, "Timer", false, false, None, None},
    KindRow{Kind::ImageList, "ImageList", false, false, None, None},
    KindRow{Kind::TreeView, "TreeView", true, true, None, None},
    KindRow{Kind::DriveListBox, "DriveListBox", true, true, None, None},
    KindRow{Kind::DirListBox, "DirListBox", true, true, None, None},
    KindRow{Kind::FileListBox, "FileListBox", true, true, None, None},
};

} // namespace

const KindRow& KindRowOf(Kind kind) {
  const auto row = std::find_if(KindRows.begin(), KindRows.end(), [&](const KindRow& r) { return r.kind == kind; });
  return row == KindRows.end() ? KindRows.front() : *row;
}

} // namespace trekor
