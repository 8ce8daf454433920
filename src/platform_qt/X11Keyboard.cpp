#include "platform_qt/X11Keyboard.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace trekor {

namespace {

Display* Of(void* display) {
  return static_cast<Display*>(display);
}

} // namespace

X11Keyboard::~X11Keyboard() {
  if (display)
    XCloseDisplay(Of(display));
}

bool X11Keyboard::Open() {
  if (!haveX11 || display)
    return display != nullptr;
  display = XOpenDisplay(nullptr);
  haveX11 = display != nullptr; // not tried again
  if (display)
    mask = XkbKeysymToModifiers(Of(display), XK_Num_Lock);
  return display != nullptr;
}

bool X11Keyboard::NumLock() {
  XkbStateRec now{};
  return Open() && XkbGetState(Of(display), XkbUseCoreKbd, &now) == Success && (now.locked_mods & mask) != 0;
}

void X11Keyboard::PressNumLock() {
  if (!Open())
    return;
  const KeyCode key = XKeysymToKeycode(Of(display), XK_Num_Lock);
  int ignored = 0;
  if (key == 0 || !XTestQueryExtension(Of(display), &ignored, &ignored, &ignored, &ignored))
    return;
  XTestFakeKeyEvent(Of(display), key, True, CurrentTime);
  XTestFakeKeyEvent(Of(display), key, False, CurrentTime);
  XSync(Of(display), False); // the next reading must see it
}

} // namespace trekor
