// X11 with its test extension. Without a display nothing is available and nothing is pressed.
#include "KeyPresser.h"

#include <QHash>
#include <QString>
#include <string_view>
#include <vector>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace control {

struct KeyPresser::Parts {
  Display* display = XOpenDisplay(nullptr);
};

namespace {

// A window may close between two calls; the library's own error handler would end the process.
int IgnoreError(Display*, XErrorEvent*) {
  return 0;
}

KeySym PadKey(const QString& text) {
  static const QHash<QString, KeySym> table{{"*", XK_KP_Multiply}, {"+", XK_KP_Add},     {"-", XK_KP_Subtract},
                                            {",", XK_KP_Decimal},  {".", XK_KP_Decimal}, {"/", XK_KP_Divide},
                                            {"Enter", XK_KP_Enter}};
  bool digit = false;
  const unsigned number = text.toUInt(&digit);
  return digit && text.size() == 1 ? XK_KP_0 + number : table.value(text, NoSymbol);
}

KeySym KeyNamed(const QString& name) {
  static const QHash<QString, QString> spoken{
      {"Space", "space"}, {"Enter", "Return"}, {"Esc", "Escape"}, {"Del", "Delete"}, {"NumLock", "Num_Lock"}};
  if (name.startsWith("Num "))
    return PadKey(name.mid(4));
  if (name.size() == 1 && name[0].unicode() < 127)
    return static_cast<KeySym>(name[0].toLower().unicode());
  return XStringToKeysym(qPrintable(spoken.value(name, name)));
}

KeySym Modifier(const QString& name) {
  return name == "Ctrl" ? XK_Control_L : name == "Shift" ? XK_Shift_L : name == "Alt" ? XK_Alt_L : NoSymbol;
}

// Takes "Ctrl+" and the like off the front of a key's name.
std::vector<KeyCode> TakeModifiers(Display* display, QString& key) {
  std::vector<KeyCode> held;
  for (auto plus = key.indexOf('+'); plus > 0 && Modifier(key.left(plus)) != NoSymbol; plus = key.indexOf('+')) {
    held.push_back(XKeysymToKeycode(display, Modifier(key.left(plus))));
    key = key.mid(plus + 1);
  }
  return held;
}

// The pad's digits stand on the second level, which NumLock reaches: without it the pad would give arrows.
bool WantsShift(Display* display, const QString& key) {
  unsigned locks = 0;
  XkbGetIndicatorState(display, XkbUseCoreKbd, &locks);
  return key.startsWith("Num ") && key.size() == 5 && key[4].isDigit() && (locks & 2) == 0;
}

void Strike(Display* display, const std::vector<KeyCode>& held, KeyCode code) {
  for (const KeyCode modifier : held)
    XTestFakeKeyEvent(display, modifier, True, CurrentTime);
  XTestFakeKeyEvent(display, code, True, CurrentTime);
  XTestFakeKeyEvent(display, code, False, CurrentTime);
  for (auto modifier = held.rbegin(); modifier != held.rend(); ++modifier)
    XTestFakeKeyEvent(display, *modifier, False, CurrentTime);
  XSync(display, False);
}

bool TitleHolds(Display* display, Window window, const std::string& title) {
  XWindowAttributes attributes;
  if (!XGetWindowAttributes(display, window, &attributes))
    return false;
  char* name = nullptr;
  bool found = false;
  if (attributes.map_state == IsViewable && XFetchName(display, window, &name) && name)
    found = std::string_view(name).find(title) != std::string_view::npos;
  if (name)
    XFree(name);
  Window root = 0, parent = 0, *children = nullptr;
  unsigned count = 0;
  if (!found && XQueryTree(display, window, &root, &parent, &children, &count)) {
    for (unsigned i = 0; i < count && !found; ++i)
      found = TitleHolds(display, children[i], title);
    if (children)
      XFree(children);
  }
  return found;
}

} // namespace

KeyPresser::KeyPresser() : parts(std::make_unique<Parts>()) {
  if (parts->display)
    XSetErrorHandler(IgnoreError);
}

KeyPresser::~KeyPresser() {
  if (parts->display)
    XCloseDisplay(parts->display);
}

bool KeyPresser::Available() const {
  return parts->display != nullptr;
}

bool KeyPresser::Press(const std::string& name) {
  Display* display = parts->display;
  if (!display)
    return false;
  QString key = QString::fromStdString(name);
  std::vector<KeyCode> held = TakeModifiers(display, key);
  const KeySym symbol = KeyNamed(key);
  const KeyCode code = symbol == NoSymbol ? KeyCode(0) : XKeysymToKeycode(display, symbol);
  if (code == 0)
    return false;
  if (WantsShift(display, key))
    held.push_back(XKeysymToKeycode(display, XK_Shift_L));
  Strike(display, held, code);
  return true;
}

void KeyPresser::Focus(long long window) {
  if (!parts->display || window == 0)
    return;
  Window focused = 0;
  int revert = 0;
  XGetInputFocus(parts->display, &focused, &revert);
  if (focused == None || focused == PointerRoot)
    XSetInputFocus(parts->display, static_cast<Window>(window), RevertToParent, CurrentTime);
  XSync(parts->display, False);
}

bool KeyPresser::WindowShown(const std::string& title) const {
  return parts->display && TitleHolds(parts->display, DefaultRootWindow(parts->display), title);
}

} // namespace control
