// The computer's screen, which dims and sleeps when nobody touches mouse or keyboard.
#pragma once

namespace trekor {

class Screen {
public:
  virtual ~Screen() = default;
  // Keeps the screen on and the computer awake, until it is called with false or the program ends. Returns at once; a
  // system that can't be asked is left as it is.
  virtual void KeepOn(bool on) = 0;
};

} // namespace trekor
