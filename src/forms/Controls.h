// The kinds of control except the grid. Above each stands what its handlers hear of.
#pragma once

#include "forms/Control.h"

#include <functional>
#include <vector>

namespace trekor {

using Handler = std::function<void()>;
inline void Raise(const Handler& handler) { // when one is set
  if (handler)
    handler();
}
// A key goes to the handler as a Windows key code and shift state (1 Shift, 2 Ctrl, 4 Alt); true: the key is taken.
using KeyHandler = std::function<bool(int keyCode, int shift)>;

// A line of text. Its handlers hear clicks of the operator.
class Label : public Control {
public:
  Label(Form& owner, std::string name, int index = -1) : Control(owner, Kind::Label, std::move(name), index) {}
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string text);
  int ForeColor() const { return colour; } // 0xRRGGBB, -1: the form's own
  void SetForeColor(int rgb);
  void Click();
  Handler OnClick, OnDblClick;

private:
  std::string caption;
  int colour = -1;
};

// One line, or several, of text. Change is raised by code and by the operator alike, and only when the text differs.
class TextBox : public Control {
public:
  TextBox(Form& owner, std::string name, int index = -1, Kind kind = Kind::TextBox)
      : Control(owner, kind, std::move(name), index) {}
  const std::string& Text() const { return text; }
  void SetText(std::string t);
  bool ReadOnly = false;
  int MaxLength = 0; // characters the operator may type; 0: no limit
  // The operator has changed the text since the box got the focus, and no code has replaced it.
  bool Edited() const { return edited; }
  int SelStart = 0, SelLength = 0; // characters
  void SelectAll();
  // Puts the caret at the start, nothing selected.
  void CaretToStart();

  // The operator's acts.
  void Type(std::string t); // the whole new text, cut to MaxLength
  void GetFocus();
  void LoseFocus();
  bool Press(int keyCode, int shift);
  void Click();
  void DblClick();

  Handler OnChange, OnGotFocus, OnLostFocus, OnClick, OnDblClick;
  KeyHandler OnKeyDown;
  // May turn a typed character into another or refuse it (0).
  std::function<char32_t(char32_t)> OnKeyPress;

private:
  std::string text;
  bool edited = false;
};

// 0 unticked, 1 ticked, 2 grey. Click is raised by the operator and by a write of code that changes the value.
class CheckBox : public Control {
public:
  CheckBox(Form& owner, std::string name, int index = -1) : Control(owner, Kind::CheckBox, std::move(name), index) {}
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string t);
  int Value() const { return value; }
  void SetValue(int v);
  void Click(); // the operator's: 0 becomes 1, else 0
  Handler OnClick;

private:
  std::string caption;
  int value = 0;
};

// One of the group in its container. Setting one clears the others; Click is raised when it becomes true.
class OptionButton : public Control {
public:
  OptionButton(Form& owner, std::string name, int index = -1)
      : Control(owner, Kind::OptionButton, std::move(name), index) {}
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string t);
  bool Value() const { return value; }
  void SetValue(bool v);
  void Click();
  Handler OnClick;

private:
  void ClearOthers();
  std::string caption;
  bool value = false;
};

// What the kinds with a list of entries share.
class ListControl : public Control {
public:
  void AddItem(std::string entry);
  void AddItems(const std::vector<std::string>& entries); // told once: a folder may have thousands
  int ListCount() const { return static_cast<int>(items.size()); }
  const std::string& List(int i) const;     // "" where no entry is
  int ListIndex() const { return current; } // -1: none

protected:
  using Control::Control;
  void Empty();
  bool HasEntry(int i) const;
  std::vector<std::string> items;
  int current = -1;
};

// A drop-down list; the list of drives is one. Click is raised by the operator's choice and by code that sets another
// ListIndex.
class ComboBox : public ListControl {
public:
  ComboBox(Form& owner, std::string name, int index = -1, Kind kind = Kind::ComboBox)
      : ListControl(owner, kind, std::move(name), index) {}
  bool DropDownList = true; // false: the text can be typed
  void Clear();
  void SetListIndex(int i);
  const std::string& Text() const;
  void SetText(std::string t); // any text when it can be typed, else chooses the entry of that text, if any
  void Select(int i);          // the operator's choice
  Handler OnClick, OnChange;

private:
  void Choose(int i);
  std::string text;
};

// A list with one selected entry, or several. Click is the operator's.
// Folder and file lists are lists too: their kind tells how they are stored, the logic fills them.
class ListBox : public ListControl {
public:
  ListBox(Form& owner, std::string name, Kind kind = Kind::ListBox) : ListControl(owner, kind, std::move(name)) {}
  bool MultiSelect = false; // with Shift and Ctrl; set before it is first shown
  bool Selected(int i) const;
  void Clear();
  void Select(int i);                                     // the operator's click: this entry alone
  void SelectSeveral(std::vector<int> entries, int last); // his choice of several; ListIndex is the last one
  void DblClick(int i);                                   // and double click
  bool Press(int keyCode, int shift);
  Handler OnClick, OnDblClick;
  KeyHandler OnKeyDown;

private:
  void Choose(int i);
  std::vector<int> chosen; // of several
};

// Click is the operator's.
class CommandButton : public Control {
public:
  CommandButton(Form& owner, std::string name, int index = -1)
      : Control(owner, Kind::CommandButton, std::move(name), index) {}
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string t);
  bool Default = false, Cancel = false; // Enter or Esc anywhere on the form presses it
  void Click();
  Handler OnClick;

private:
  std::string caption;
};

class Frame : public Control {
public:
  Frame(Form& owner, std::string name, int index = -1) : Control(owner, Kind::Frame, std::move(name), index) {}
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string t);

private:
  std::string caption;
};

// Shows the picture of a key (see ImageList); the empty key shows nothing. A disabled picture does not react.
class Image : public Control {
public:
  Image(Form& owner, std::string name, int index = -1) : Control(owner, Kind::Image, std::move(name), index) {}
  const std::string& Picture() const { return picture; }
  void SetPicture(std::string key);
  void Click();
  Handler OnClick;

private:
  std::string picture;
};

// The tabs above an area that shows one frame at a time. Click is raised by the operator and by code that selects
// another tab.
class TabStrip : public Control {
public:
  TabStrip(Form& owner, std::string name) : Control(owner, Kind::TabStrip, std::move(name)) {}
  struct Tab {
    std::string Key, Caption;
  };
  void Clear();
  void Add(std::string key, std::string caption);
  int Count() const { return static_cast<int>(tabs.size()); }
  const Tab& Tabs(int i) const { return tabs.at(static_cast<std::size_t>(i)); }
  void SetCaption(int i, std::string caption);
  int Selected() const { return selected; } // 0-based, -1: none
  void SetSelected(int i);
  void Select(int i);
  Handler OnClick;

private:
  std::vector<Tab> tabs;
  int selected = -1;
};

// Buttons by key. The handler hears the key of the button that the operator has clicked.
class ToolBar : public Control {
public:
  ToolBar(Form& owner, std::string name) : Control(owner, Kind::ToolBar, std::move(name)) {}
  struct Button {
    std::string Key, Caption, ToolTip, Picture;
    bool Enabled = true;
  };
  void Add(Button button);
  int Count() const { return static_cast<int>(buttons.size()); }
  const Button& Buttons(int i) const { return buttons.at(static_cast<std::size_t>(i)); }
  void SetButtonEnabled(const std::string& key, bool on);
  void SetButtonTip(int i, std::string tip);
  void ClickButton(const std::string& key);
  std::function<void(const std::string& key)> OnButtonClick;

private:
  Button* Find(const std::string& key);
  std::vector<Button> buttons;
};

class StatusBar : public Control {
public:
  StatusBar(Form& owner, std::string name) : Control(owner, Kind::StatusBar, std::move(name)) {}
  const std::string& SimpleText() const { return text; }
  void SetSimpleText(std::string t);

private:
  std::string text;
};

// An entry of the menu bar; an entry with children opens them. Click is the operator's.
class Menu : public Control {
public:
  Menu(Form& owner, std::string name, Menu* parent = nullptr)
      : Control(owner, Kind::Menu, std::move(name)), Parent(parent) {}
  Menu* const Parent;
  const std::string& Caption() const { return caption; }
  void SetCaption(std::string t);
  bool Checked() const { return checked; }
  void SetChecked(bool on);
  // The key that does the same, as it is shown beside the caption. The form's own key handler carries it out. Set
  // before the form is first shown.
  std::string Shortcut;
  void Click();
  Handler OnClick;

private:
  std::string caption;
  bool checked = false;
};

// Fires every Interval milliseconds while running; the view's timer calls Fire, and tests call it themselves.
class Timer : public Control {
public:
  Timer(Form& owner, std::string name) : Control(owner, Kind::Timer, std::move(name)) {}
  int Interval() const { return interval; }
  void SetInterval(int milliseconds);
  bool Running() const { return running; }
  void SetRunning(bool on);
  void Fire(); // nothing while not running
  Handler OnTimer;

private:
  int interval = 0;
  bool running = false;
};

// Pictures by key; not shown itself. A key is the file name in upper case; Tag is the file name as it stands; File is
// the path of drive letter and backslashes, empty for a picture built into the program.
class ImageList : public Control {
public:
  ImageList(Form& owner, std::string name) : Control(owner, Kind::ImageList, std::move(name)) {}
  struct Picture {
    std::string Key, Tag, File;
  };
  void Clear();
  // False, and nothing changes, when there is a picture of that key already.
  bool Add(Picture picture);
  int Count() const { return static_cast<int>(pictures.size()); }
  const Picture& At(int i) const { return pictures.at(static_cast<std::size_t>(i)); }
  // Null when the list has no such key; keys compare without case.
  const Picture* Find(const std::string& key) const;

private:
  std::vector<Picture> pictures;
};

} // namespace trekor
