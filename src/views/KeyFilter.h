// Sees every key press of the program before menus, shortcuts and controls do, and offers it to the form of the window
// that it was meant for. What the form takes goes no further; so F10, Alt, Tab and Space are ordinary keys during a
// run.
//
// The toolkit tells of one press twice: first as a question whether a shortcut may have it, then as the press. The form
// hears of it once, at the question.
#pragma once

#include <QObject>

class QKeyEvent;

namespace trekor {

class FormView;

class KeyFilter : public QObject {
public:
  // Installs itself.
  KeyFilter();
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  bool Offer(FormView& view, const QKeyEvent& key) const;
  bool Question(FormView& view, QKeyEvent& key);
  bool Press(FormView& view, QKeyEvent& key);
  bool machineNumbers;               // the platform reports evdev key numbers, eight higher
  bool asked = false, taken = false; // the answer to the last question
};

} // namespace trekor
