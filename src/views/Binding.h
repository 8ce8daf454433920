// Ties one control of a form to its widget. Changes of the model go to the widget with its signals blocked; the
// operator's acts come back through the model's verbs. One Bind overload for each kind of control.
//
// The widget is made when the control is shown for the first time, as most forms are never opened in a session.
#pragma once

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Grid.h"
#include "views/PictureStore.h"

#include <QFont>
#include <QWidget>

#include <memory>

class QMenuBar;

namespace trekor {

class Binding;

// What a binding needs of the window: parents for the widgets, fonts, pictures.
class BindingPlace {
public:
  virtual ~BindingPlace() = default;
  virtual QWidget* ParentOf(const Control& control) = 0;
  virtual QMenuBar* MenuBar() = 0;
  virtual Binding* BindingOf(const Control& control) = 0;
  virtual PictureStore& Pictures() = 0;
  virtual QFont FontOf(const Control& control) = 0;
  virtual QRect PlaceOf(const Control& control) const = 0; // pixels within its container
  virtual const Form& Model() const = 0;
};

class Binding : public QObject, public ControlListener {
public:
  Binding(Control& control, BindingPlace& place);
  ~Binding() override;

  Control& Model() const { return control; }
  // Null until the control is first shown, and for kinds that show nothing. Owned by its parent widget.
  QWidget* Widget() const { return widget; }
  // Makes the widget, when there is none yet, and sets all its properties.
  QWidget* Ensure();
  // The parent for the widgets of the controls that this one holds.
  virtual QWidget* Inside() { return Ensure(); }
  // The window was made: parts that belong to it without being widgets (menus) can be made now.
  virtual void WindowMade() {}
  // The form goes away: from now on the model is neither listened to nor written.
  virtual void Detach();
  void ControlChanged(Control& control, Change what) override;

protected:
  virtual QWidget* Make(QWidget* parent) = 0;
  // A change that is particular to this kind of control.
  virtual void Follow(Change what) = 0;
  // All of them, for a new widget.
  virtual void FollowAll() = 0;
  virtual QRect Place() const;

  Control& control;
  BindingPlace& place;
  QWidget* widget = nullptr; // owned by its parent widget

private:
  void Common(Change what);
};

std::unique_ptr<Binding> Bind(Label& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(TextBox& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(CheckBox& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(OptionButton& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(ComboBox& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(ListBox& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(CommandButton& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(Frame& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(Image& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(TabStrip& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(ToolBar& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(StatusBar& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(Menu& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(Timer& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(ImageList& c, BindingPlace& p);
std::unique_ptr<Binding> Bind(Grid& c, BindingPlace& p);

// By the control's kind; null for a kind that no view shows.
std::unique_ptr<Binding> BindAny(Control& c, BindingPlace& p);

} // namespace trekor
