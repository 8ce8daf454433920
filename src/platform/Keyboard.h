// The lock key and synthetic presses of the machine's keyboard. Key codes are Windows virtual-key codes.
#pragma once

namespace trekor {

class Keyboard {
public:
  virtual ~Keyboard() = default;
  // The toggle state of NumLock.
  virtual bool NumLock() = 0;
  // Presses and releases NumLock (code 144) when the state is not the wanted one.
  virtual void PressNumLock() = 0;
};

} // namespace trekor
