// The lock key and synthetic presses of the machine's keyboard. Key codes are Windows virtual-key codes.
#pragma once

namespace trekor {

class Keyboard {
public:
  virtual ~Keyboard() = default;
  // The toggle state of NumLock.
  virtual bool NumLock() = 0;
  // Turns it over, as a press of the key (code 144) does.
  virtual void PressNumLock() = 0;
  // A key goes down and stays down, comes up again. A code that the keyboard lacks does nothing.
  virtual void KeyDown(int code) = 0;
  virtual void KeyUp(int code) = 0;
  // The code (low eight bits) of the key that writes a character in the present layout, without the Shift that it may
  // need besides; 0 when there is none.
  virtual int ScanKey(char32_t character) = 0;
};

} // namespace trekor
