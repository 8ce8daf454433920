// The base of all control models. A form is a list of named controls: a database sets their looks, a view shows them,
// the logic listens to them.
//
// There are two ways to write. Set... is the program writing: the model changes and the view follows. The operator's
// acts come in through verbs (Type, Click, Select, Press ...), which store them and raise the control's handler.
// Whether a write by the program raises the handler too is the same for a whole kind and said above it.
#pragma once

#include "forms/Visual.h"

#include <string>
#include <utility>

namespace trekor {

class Form;
class Control;

class ControlListener {
public:
  virtual ~ControlListener() = default;
  virtual void ControlChanged(Control& control, Change what) = 0;
};

// The kinds of control; texts/KindTable has their names in the databases and how each is stored.
enum class Kind {
  Form,
  Label,
  TextBox,
  RichTextBox,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  CommandButton,
  Frame,
  Image,
  FlexGrid,
  TabStrip,
  ToolBar,
  StatusBar,
  Menu,
  Timer,
  ImageList,
  TreeView,
  DriveListBox,
  DirListBox,
  FileListBox,
};

struct Font {
  std::string Name; // empty: the form's own
  double Size = 0;  // points; 0: the form's own
  bool Bold = false;
  int Charset = 1;
  bool operator==(const Font&) const = default;
};

class Control : public Visual {
public:
  // Registers itself with the form, which must outlive it, in the order of declaration. `index` is -1 for a control
  // that is no element of an array.
  Control(Form& owner, Kind kind, std::string name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& Owner() const { return owner; }
  Kind TypeOf() const { return kind; }
  const std::string& Name() const { return name; }
  int Index() const { return index; }
  // "Texts(7)" for an element of an array, else the name.
  std::string FullName() const;

  // The frame that holds this control; null for the form itself. Once a view may listen, write through SetContainer,
  // which is told as Geometry.
  Control* Container = nullptr;
  void SetContainer(Control* frame);

  // When a control that has the focus, or holds one that has, is hidden or disabled, the focus goes to the form's
  // FocusHome.
  bool Visible() const { return visible; }
  void SetVisible(bool on);
  bool Enabled() const { return enabled; }
  void SetEnabled(bool on);
  const std::string& Tag() const { return tag; }
  void SetTag(std::string text) { tag = std::move(text); }
  const std::string& ToolTipText() const { return tip; }
  void SetToolTipText(std::string text);
  const Font& FontOf() const { return font; }
  void SetFont(Font f);

  // One listener, the view, borrowed; null for none.
  void SetListener(ControlListener* l) { listener = l; }
  ControlListener* Listener() const { return listener; }

protected:
  void Tell(Change what) override;

private:
  friend class Form;
  Form& owner;
  Kind kind;
  std::string name;
  int index;
  bool visible = true, enabled = true;
  std::string tag, tip;
  Font font;
  ControlListener* listener = nullptr;
};

} // namespace trekor
