// One form on the screen: a window with a menu bar, when the form has menus, and below it the controls, each placed by
// its twips. Timers and image lists work from the load on; the window is made when the form is first shown.
#pragma once

#include "forms/Form.h"
#include "views/Binding.h"

#include <QEventLoop>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace trekor {

class FormWindow;

class FormView : public QObject, public Form::Listener, public BindingPlace {
public:
  FormView(Form& form, PictureStore& pictures);
  ~FormView() override;
  // Leaves the model and removes the window; the view itself may be deleted later.
  void Detach();

  void Show(QWidget* above);
  void Hide();
  // Returns when the form has been hidden, or the program ends.
  void ShowModal(QWidget* above);
  bool IsModal() const { return modal != nullptr; }
  QWidget* Window();  // makes it
  QWidget* Focused(); // the widget that has the focus when the window has the keyboard
  // A key press, offered to the form, then to the control with the focus, then to the buttons that Enter and Esc press.
  // True: taken.
  bool OfferKey(int keyCode, int shift);
  // A typed character on its way into a control: the character to enter instead, 0 for none.
  char32_t OfferCharacter(char32_t typed);

  // BindingPlace
  QWidget* ParentOf(const Control& control) override;
  QMenuBar* MenuBar() override;
  Binding* BindingOf(const Control& control) override;
  PictureStore& Pictures() override { return pictures; }
  QFont FontOf(const Control& control) override;
  QRect PlaceOf(const Control& control) const override;
  const Form& Model() const override { return form; }
  Form& Model() { return form; }

  // Called by the window.
  void WindowResized(QSize inside);
  void WindowMoved(QPoint corner);
  void WindowStateChanged(Qt::WindowStates state);
  void WindowActivated();
  void DoubleClicked();
  void CloseAsked();
  bool eventFilter(QObject* watched, QEvent* event) override;
  // The first picture of this form is on the screen; called once.
  std::function<void()> OnFirstPicture;

private:
  void FormChanged(Form& form, Change what) override;
  void ControlAdded(Form& form, Control& control) override;
  void FormRefresh(Form& form) override;
  void MakeWindow();
  void EnsureWidgets();
  void FollowGeometry();
  QRect OwnPlace() const;
  void StandAside();
  FormView* ViewBelow() const;
  void HideLater(FormView& below);
  bool LeaveScreen();
  void FocusMoved(QWidget* from, QWidget* to);
  Binding* Holder(QWidget* w) const;
  bool PressButton(bool CommandButton::*which);

  Form& form;
  PictureStore& pictures;
  std::vector<std::unique_ptr<Binding>> bindings;
  QPointer<FormWindow> window;
  QPointer<QWidget> opener;        // the window above which this one was shown; gets the keyboard back
  QPointer<FormView> leavingAbove; // a question whose window is still to be hidden
  QEventLoop* modal = nullptr;
  bool following = false; // the window is being set from the model: its events are not sent back
  bool detached = false;
  bool aside = false; // the window stands elsewhere than the form, or is smaller
};

} // namespace trekor
