#include "platform_os/X11Keyboard.h"

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
// layout has one of them unshifted: 187 writes "=" in America and "+" in Denmark.
constexpr struct {
  int code;
  KeySym sym;
} Keys[] = {
    {8, XK_BackSpace},   {9, XK_Tab},           {13, XK_Return},     {16, XK_Shift_L},
    {17, XK_Control_L},  {18, XK_Alt_L},        {19, XK_Pause},      {20, XK_Caps_Lock},
    {27, XK_Escape},     {32, XK_space},        {33, XK_Prior},      {34, XK_Next},
    {35, XK_End},        {36, XK_Home},         {37, XK_Left},       {38, XK_Up},
    {39, XK_Right},      {40, XK_Down},         {42, XK_Print},      {45, XK_Insert},
    {46, XK_Delete},     {47, XK_Help},         {144, XK_Num_Lock},  {145, XK_Scroll_Lock},
    {186, XK_semicolon}, {187, XK_equal},       {187, XK_plus},      {188, XK_comma},
    {189, XK_minus},     {190, XK_period},      {191, XK_slash},     {192, XK_grave},
    {192, XK_ae},        {219, XK_bracketleft}, {220, XK_backslash}, {221, XK_bracketright},
    {221, XK_aring},     {222, XK_apostrophe},  {222, XK_oslash},    {226, XK_less},
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
  if (code >= '0' && code <= '9')
    return KeyWith(display, XK_0 + static_cast<KeySym>(code - '0'), 2); // shifted on a French keyboard
  if (code >= 'A' && code <= 'Z')
    return KeyWith(display, XK_a + static_cast<KeySym>(code - 'A'));
  if (code >= 112 && code <= 135)
    return KeyWith(display, XK_F1 + static_cast<KeySym>(code - 112));
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
