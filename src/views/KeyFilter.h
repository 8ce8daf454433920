// Sees every key press of the program before menus, shortcuts and controls do, and offers it to the form of the window
// that it was meant for. A key that the form takes goes no further, so F10, Alt, Tab and Space are ordinary keys during
// a run.
//
// The main form may take a key before the form of another window, an open menu or a list gets it: in a run every key
// belongs to the run. Keys of a modal form stay with it, as they answer its question.
//
// The toolkit reports a press twice: first as a question whether a shortcut may have it, then as the press. The form is
// offered it once, at the question.
#pragma once

#include <QObject>

#include <functional>
#include <optional>

class QKeyEvent;

namespace trekor {

class Form;
class FormView;

class KeyFilter : public QObject {
public:
  // Installs itself. `mainForm` answers null while the main form is not shown.
  explicit KeyFilter(std::function<Form*()> mainForm);
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  int CodeOf(const QKeyEvent& key) const;
  bool Offer(FormView* view, const QKeyEvent& key) const;
  bool Question(FormView* view, QKeyEvent& key);
  bool Press(FormView* view, QKeyEvent& key);
  void Release(const QKeyEvent& key) const;
  std::function<Form*()> mainForm;
  // From where the platform counts the keys; then come evdev's numbers, which in the main block are those of Windows.
  std::optional<unsigned> numbersBegin;
  bool asked = false, taken = false; // the answer to the last question, until its press comes
};

} // namespace trekor
