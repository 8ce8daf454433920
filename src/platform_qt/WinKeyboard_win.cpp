#include "platform_qt/WinKeyboard.h"

#include <windows.h>

namespace trekor {

bool WinKeyboard::NumLock() {
  return (GetKeyState(VK_NUMLOCK) & 1) != 0;
}

// Scan code 69, an extended key.
void WinKeyboard::PressNumLock() {
  keybd_event(VK_NUMLOCK, 69, KEYEVENTF_EXTENDEDKEY, 0);
  keybd_event(VK_NUMLOCK, 69, KEYEVENTF_EXTENDEDKEY | KEYEVENTF_KEYUP, 0);
}

} // namespace trekor
