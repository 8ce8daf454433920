#include "platform_os/WinKeyboard.h"

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

// No scan code, and every key as an extended one: the arrows, which are what is sent, are not the pad's.
void WinKeyboard::KeyDown(int code) {
  keybd_event(static_cast<BYTE>(code), 0, KEYEVENTF_EXTENDEDKEY, 0);
}

void WinKeyboard::KeyUp(int code) {
  keybd_event(static_cast<BYTE>(code), 0, KEYEVENTF_EXTENDEDKEY | KEYEVENTF_KEYUP, 0);
}

// A character without a key scans as -1, whose low bits are 255: a code that no key has, and that is sent all the same.
int WinKeyboard::ScanKey(char32_t character) {
  return character > 0xFFFF ? 0 : VkKeyScanW(static_cast<WCHAR>(character)) & 0xFF;
}

} // namespace trekor
