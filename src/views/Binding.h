// Ties one control of a form to its widget. The model's changes go to the widget with its signals blocked; the
// operator's acts come back through the model's verbs. One Bind overload for each kind of control.
//
// The widget is made when the control is shown for the first time, as most forms of a session are never opened.
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

// Where a form's widgets live, and what they need of their window.
class BindingPlace {
public:
  virtual ~BindingPlace() = default;
  virtual QWidget* ParentOf(const Control& control) = 0;
  virtual QMenuBar* MenuBar() = 0;
  virtual Binding* BindingOf(const Control& control) = 0;
  virtual PictureStore& Pictures() = 0;
  virtual QFont FontOf(const Control& control) = 0;
  virtual const Form& Model() const = 0;
};

class Binding : public QObject, public ControlListener {
public:
  Binding(Control& control, BindingPlace& place);
  ~Binding() override;

  Control& Model() const { return control; }
  // Null as long as the control was never shown, and for kinds that show nothing.
  QWidget* Widget() const { return widget; }
  // Makes and dresses the widget when it isn't there yet.
  QWidget* Ensure();
  // The window has been made: what belongs to it and is no widget of its own can be made now.
  virtual void WindowMade() {}
  // The form goes: the model is not listened to, and not told, any more.
  virtual void Detach();
  void ControlChanged(Control& control, Change what) override;

protected:
  virtual QWidget* Make(QWidget* parent) = 0;
  // A change that only this kind knows.
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
