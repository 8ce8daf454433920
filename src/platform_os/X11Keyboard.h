// The keyboard of an X11 display, which is opened at the first call. Without X11 NumLock reads as off, no character has
// a key, and pressing does nothing. Every call asks the display, so the idle tick makes none.
#pragma once

#include "platform/Keyboard.h"

namespace trekor {

class X11Keyboard : public Keyboard {
public:
  // `haveX11`: whether the program's own windows are on an X11 display. When not, none is opened even if one can be
  // reached, so that keys never go to another desktop.
  explicit X11Keyboard(bool haveX11) : haveX11(haveX11) {}
  ~X11Keyboard() override;
  X11Keyboard(const X11Keyboard&) = delete;
  X11Keyboard& operator=(const X11Keyboard&) = delete;

  bool NumLock() override;
  void PressNumLock() override;
  void KeyDown(int code) override { Fake(code, true); }
  void KeyUp(int code) override { Fake(code, false); }
  int ScanKey(char32_t character) override;

private:
  bool Open();
  bool CanFake();
  void Fake(int code, bool down);

  bool haveX11;
  void* display = nullptr; // a connection of our own, apart from the toolkit's
  unsigned mask = 0;       // the modifier bit that NumLock locks
};

} // namespace trekor
