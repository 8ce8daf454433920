// The Windows virtual-key codes: what setups store for a key, what forms hear and what the keyboard seam presses, on
// every machine. Stored in the databases, so fixed. Letters and the digits above them are their own characters ('A',
// '7').
#pragma once

namespace trekor::keys {

constexpr int Backspace = 8, Tab = 9;
constexpr int Clear = 12; // the pad's 5 while NumLock is off
constexpr int Enter = 13, Shift = 16, Control = 17, Alt = 18, Pause = 19, CapsLock = 20, Esc = 27, Space = 32;
constexpr int PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40;
constexpr int Print = 42; // of old keyboards; the key that takes the screen today is PrintScreen
constexpr int PrintScreen = 44, Insert = 45, Delete = 46, Help = 47;
constexpr int LeftWindow = 91, RightWindow = 92, Menu = 93;

// Of the number pad, the digits with NumLock on only. No keyboard sends PadSeparator; it stands for the pad's Enter
// where the pad is drawn.
constexpr int Pad0 = 96, Pad9 = 105, PadTimes = 106, PadPlus = 107, PadSeparator = 108, PadMinus = 109,
              PadDecimal = 110, PadDivide = 111;

constexpr int F1 = 112, F2 = 113, F3 = 114, F4 = 115, F5 = 116, F6 = 117, F7 = 118, F8 = 119, F9 = 120, F10 = 121,
              F11 = 122, F12 = 123, F24 = 135;
constexpr int NumLock = 144, ScrollLock = 145;

// Signs, named as a US keyboard labels them; other languages have letters there.
constexpr int Semicolon = 186, Equal = 187, Comma = 188, Minus = 189, Period = 190, Slash = 191, Backquote = 192;
constexpr int OpenBracket = 219, Backslash = 220, CloseBracket = 221, Quote = 222;
constexpr int European = 226; // between Shift and Z, where American keyboards have none

constexpr bool IsDigit(int code) {
  return code >= '0' && code <= '9';
}
constexpr bool IsLetter(int code) {
  return code >= 'A' && code <= 'Z';
}
constexpr bool IsPadDigit(int code) {
  return code >= Pad0 && code <= Pad9;
}

} // namespace trekor::keys
