// The NumLock key on Windows.
#pragma once

#include "platform/Keyboard.h"

namespace trekor {

class WinKeyboard : public Keyboard {
public:
  explicit WinKeyboard(bool) {}
  bool NumLock() override;
  void PressNumLock() override;
};

} // namespace trekor
