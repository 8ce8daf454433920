// Sees every key press of the program before menus, shortcuts and controls do, and offers it to the form of the window
// that it was meant for. What the form takes goes no further; so F10, Alt, Tab and Space are ordinary keys during a
// run.
//
// Before the form of another window, and before an open menu or list, the main form may take it: in a run every key is
// the run's. A modal form asks something, and its keys are the answer.
//
// The toolkit tells of one press twice: first as a question whether a shortcut may have it, then as the press. The form
// hears of it once, at the question.
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;

namespace trekor {

class Form;
class FormView;

class KeyFilter : public QObject {
public:
  // Installs itself. `mainForm` gives nothing as long as none was shown.
  explicit KeyFilter(std::function<Form*()> mainForm);
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  int CodeOf(const QKeyEvent& key) const;
  bool Offer(FormView* view, const QKeyEvent& key) const;
  bool Question(FormView* view, QKeyEvent& key);
  bool Press(FormView* view, QKeyEvent& key);
  void Release(const QKeyEvent& key) const;
  std::function<Form*()> mainForm;
  bool machineNumbers;               // the platform reports evdev key numbers, eight higher
  bool asked = false, taken = false; // the answer to the last question
};

} // namespace trekor
