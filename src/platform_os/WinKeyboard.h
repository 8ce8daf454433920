// The keyboard on Windows.
#pragma once

#include "platform/Keyboard.h"

namespace trekor {

class WinKeyboard : public Keyboard {
public:
  // Whether there is an X11 display, as X11Keyboard is asked; nothing depends on it here.
  explicit WinKeyboard(bool) {}
  bool NumLock() override;
  void PressNumLock() override;
  void KeyDown(int code) override;
  void KeyUp(int code) override;
  int ScanKey(char32_t character) override;
};

} // namespace trekor
