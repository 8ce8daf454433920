// Presses keys through the windowing system, so that they reach the window with the focus like real ones. Not available
// on Windows yet.
#pragma once

#include <memory>
#include <string>

namespace control {

class KeyPresser {
public:
  KeyPresser();
  ~KeyPresser();
  // Whether there is a windowing system that takes keys.
  bool Available() const;
  // "A", "7", "F5", "Space", "Return", "Escape", "Delete", "Up", "Num 3", "Num +", each with "Ctrl+", "Shift+", "Alt+"
  // in front as wanted. False when no key has that name.
  bool Press(const std::string& name);
  // Gives the focus to the program's window when no window has it, as happens without a window manager.
  void Focus(long long window);
  // Whether a shown window's title holds the text.
  bool WindowShown(const std::string& title) const;

private:
  struct Parts;
  std::unique_ptr<Parts> parts;
};

} // namespace control
