#include "platform_os/X11Keyboard.h"

#include "values/KeyCodes.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <initializer_list>

namespace trekor {

namespace {

Display* Of(void* display) {
  return static_cast<Display*>(display);
}

// Virtual-key codes outside the runs of letters, digits and F keys. A code with several symbols is the key on which the
// layout has one of them unshifted: Equal writes "=" in America and "+" in Denmark.
constexpr struct {
  int code;
  KeySym sym;
} Keys[] = {
    {keys::Backspace, XK_BackSpace},
    {keys::Tab, XK_Tab},
    {keys::Enter, XK_Return},
    {keys::Shift, XK_Shift_L},
    {keys::Control, XK_Control_L},
    {keys::Alt, XK_Alt_L},
    {keys::Pause, XK_Pause},
    {keys::CapsLock, XK_Caps_Lock},
    {keys::Esc, XK_Escape},
    {keys::Space, XK_space},
    {keys::PageUp, XK_Prior},
    {keys::PageDown, XK_Next},
    {keys::End, XK_End},
    {keys::Home, XK_Home},
    {keys::Left, XK_Left},
    {keys::Up, XK_Up},
    {keys::Right, XK_Right},
    {keys::Down, XK_Down},
    {keys::Print, XK_Print},
    {keys::Insert, XK_Insert},
    {keys::Delete, XK_Delete},
    {keys::Help, XK_Help},
    {keys::NumLock, XK_Num_Lock},
    {keys::ScrollLock, XK_Scroll_Lock},
    {keys::Semicolon, XK_semicolon},
    {keys::Equal, XK_equal},
    {keys::Equal, XK_plus},
    {keys::Comma, XK_comma},
    {keys::Minus, XK_minus},
    {keys::Period, XK_period},
    {keys::Slash, XK_slash},
    {keys::Backquote, XK_grave},
    {keys::Backquote, XK_ae},
    {keys::OpenBracket, XK_bracketleft},
    {keys::Backslash, XK_backslash},
    {keys::CloseBracket, XK_bracketright},
    {keys::CloseBracket, XK_aring},
    {keys::Quote, XK_apostrophe},
    {keys::Quote, XK_oslash},
    {keys::European, XK_less},
};

// Whether a symbol stands on a key at one of the first levels: 0 plain, 1 with Shift.
bool Writes(Display* display, KeyCode key, KeySym sym, int levels) {
  for (int level = 0; key != 0 && level < levels; ++level)
    if (XkbKeycodeToKeysym(display, key, 0, level) == sym)
      return true;
  return false;
}

// 0 when no key has the symbol at one of these levels.
KeyCode KeyWith(Display* display, KeySym sym, int levels = 1) {
  const KeyCode key = XKeysymToKeycode(display, sym);
  return Writes(display, key, sym, levels) ? key : KeyCode{0};
}

// 0 for a code that this keyboard lacks, the pad's codes among them.
KeyCode KeyOf(Display* display, int code) {
  if (keys::IsDigit(code))
    return KeyWith(display, XK_0 + static_cast<KeySym>(code - '0'), 2); // shifted on a French keyboard
  if (keys::IsLetter(code))
    return KeyWith(display, XK_a + static_cast<KeySym>(code - 'A'));
  if (code >= keys::F1 && code <= keys::F24)
    return KeyWith(display, XK_F1 + static_cast<KeySym>(code - keys::F1));
  for (const auto& key : Keys)
    if (const KeyCode found = key.code == code ? KeyWith(display, key.sym) : KeyCode{0})
      return found;
  return 0;
}

// A symbol of Latin-1 has the character's own number, any other a number that contains it. Of the control characters
// only those with a key have a symbol; a line feed is Enter as well.
KeySym SymbolOf(char32_t character) {
  if (character == '\b' || character == '\t' || character == '\r' || character == 27)
    return 0xFF00 | character;
  if (character < 32)
    return character == '\n' ? XK_Return : NoSymbol;
  return character < 256 ? character : 0x1000000 | character;
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
  // The lock itself: a key event would come back to the form, and one while the real key is held down is lost.
  XkbLockModifiers(Of(display), XkbUseCoreKbd, mask, NumLock() ? 0 : mask);
  XSync(Of(display), False); // the next reading must see it
}

bool X11Keyboard::CanFake() {
  int ignored = 0;
  return Open() && XTestQueryExtension(Of(display), &ignored, &ignored, &ignored, &ignored);
}

void X11Keyboard::Fake(int code, bool down) {
  const KeyCode key = CanFake() ? KeyOf(Of(display), code) : KeyCode{0};
  if (key == 0)
    return;
  XTestFakeKeyEvent(Of(display), key, down ? True : False, CurrentTime);
  XFlush(Of(display));
}

// Looks only at keys that have a code, so that what is scanned can be pressed: a keyboard map may give a symbol a
// special key besides, which has none. Keys that write it plain or with Shift come before those that need the third or
// fourth level.
int X11Keyboard::ScanKey(char32_t character) {
  const KeySym sym = SymbolOf(character);
  if (sym == NoSymbol || !Open())
    return 0;
  for (const int levels : {2, 4})
    for (int code = 8; code < 256; ++code)
      if (Writes(Of(display), KeyOf(Of(display), code), sym, levels))
        return code;
  return 0;
}

} // namespace trekor
