// On Windows the control centre presses no keys yet: drives with keys need X11.
#include "KeyPresser.h"

namespace control {

struct KeyPresser::Parts {};

KeyPresser::KeyPresser() = default;
KeyPresser::~KeyPresser() = default;

bool KeyPresser::Available() const {
  return false;
}

bool KeyPresser::Press(const std::string&) {
  return false;
}

void KeyPresser::Focus(long long) {}

bool KeyPresser::WindowShown(const std::string&) const {
  return false;
}

} // namespace control
