// A window as data: its controls in order, its own properties, and its handlers. Shell shows and hides it; Shown tells
// whether it is shown.
#pragma once

#include "forms/Control.h"
#include "forms/Controls.h"

#include <memory>

namespace trekor {

enum class WindowStates { Normal, Minimised, Maximised };

class Form : public Visual {
public:
  explicit Form(std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name; }
  const std::vector<Control*>& Controls() const { return controls; }
  // By name and index, compared without case; null when there is none.
  Control* Find(const std::string& controlName, int index = -1) const;

  const std::string& Caption() const { return caption; }
  void SetCaption(std::string text);
  // A line below the controls. It lies outside of Height and is no part of the stored look.
  const std::string& Remark() const { return remark; }
  void SetRemark(std::string text);
  // A grid of another form whose head and newest row this form does not cover while it is shown modal. It stands
  // elsewhere then than its own place, which it keeps, and is lower where there is no room.
  const Control* InSight = nullptr;
  int MinWidth = 0, MinHeight = 0; // the window can't be made smaller; set before it is first shown
  std::string Tag;
  Font FontOf; // write through SetFont
  void SetFont(Font f);
  int BackColor = -1; // 0xRRGGBB, -1: the system's
  bool Loaded = false;
  bool Shown = false;
  bool ToolWindow = false; // floats above the main form
  // The view writes it when the window changes; code through SetWindowState.
  WindowStates WindowState() const { return windowState; }
  void SetWindowState(WindowStates state);
  // Brings the picture up to date at once.
  void Refresh();

  // The control that has the focus, or null: the next showing then sets the focus anew. The view calls FocusMoved for
  // each move within the window; a text box is told that it has lost or got the focus.
  Control* ActiveControl = nullptr;
  void FocusMoved(Control* to);
  // Gets the focus when the control that has it is hidden or disabled. Null: the window system chooses.
  Control* FocusHome = nullptr;

  // The form's handlers. KeyDown comes before any control: true takes the key. KeyPress: true drops a typed character.
  KeyHandler OnKeyDown;
  std::function<bool(char32_t)> OnKeyPress;
  // Only on the main form. A key on its way into another window of the program that is not modal, before that window's
  // own form hears it; and the release of a key in any window.
  KeyHandler OnKeyElsewhere;
  std::function<void(int keyCode)> OnKeyUp;
  Handler OnActivate, OnResize, OnDblClick; // the last beside its controls
  // The close box: true lets the window go, after OnUnload has run; false keeps it (a form that only hides itself).
  std::function<bool()> OnQueryUnload;
  Handler OnUnload;

  // The element of a control array that a table row names; made when it does not exist yet. The form makes and owns
  // elements of the arrays Labels, Texts, Commands, Frames, Checks and Options, placed like the lowest element of their
  // array. Null for other names.
  virtual Control* LoadElement(const std::string& arrayName, int index);

  // How the view follows the form itself and controls that are added later.
  class Listener {
  public:
    virtual ~Listener() = default;
    virtual void FormChanged(Form& form, Change what) = 0;
    virtual void ControlAdded(Form& form, Control& control) = 0;
    virtual void FormRefresh(Form& form) = 0;
  };
  void SetListener(Listener* l) { listener = l; }

private:
  friend class Control;
  void Tell(Change what) override;
  void Register(Control& control);
  void Forget(Control& control);
  void HandOverFocus(const Control& from);

  std::string name, caption, remark;
  WindowStates windowState = WindowStates::Normal;
  std::vector<Control*> controls;
  std::vector<std::unique_ptr<Control>> elements; // made by LoadElement
  Listener* listener = nullptr;
};

} // namespace trekor
