// NumLock and synthetic key presses on the machine's keyboard. Key codes are Windows virtual-key codes.
#pragma once

namespace trekor {

class Keyboard {
public:
  virtual ~Keyboard() = default;
  // The toggle state of NumLock.
  virtual bool NumLock() = 0;
  // Toggles it, as a press of the key (code 144) does.
  virtual void PressNumLock() = 0;
  // Presses a key and leaves it down; releases it. A code without a key does nothing.
  virtual void KeyDown(int code) = 0;
  virtual void KeyUp(int code) = 0;
  // The code of the key that writes a character in the present layout, whatever Shift it needs besides. Without such a
  // key 0, or on Windows 255 for a character of the basic plane (its scan answers -1, and the low eight bits are
  // taken); neither is a key's code.
  virtual int ScanKey(char32_t character) = 0;
};

} // namespace trekor
