#include "views/KeyCodes.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <iterator>

namespace trekor {

namespace {

struct KeyPair {
  int key, code;
};

constexpr unsigned EuropeanKey = 86; // number of the machine

// Keys with the same code wherever they lie.
constexpr KeyPair NamedKeys[] = {
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12}, // the pad's 5 with NumLock off
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},     {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},
    {Qt::Key_Pause, 19},       {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},         {Qt::Key_Home, 36},     {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},          {Qt::Key_Right, 39},    {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},       {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},
    {Qt::Key_Help, 47},        {Qt::Key_Meta, 91},     {Qt::Key_Super_L, 91},
    {Qt::Key_Super_R, 92},     {Qt::Key_Menu, 93},     {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

// Of the number pad. The decimal key is 110 whether it writes a point or a comma.
constexpr KeyPair PadKeys[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

// Signs, plain and shifted, with the code of their key on a US keyboard; then the letters and signs of a Danish one
// that a US keyboard lacks.
constexpr KeyPair SignKeys[] = {
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
    {Qt::Key_AE, 192},
    {Qt::Key_Ooblique, 222},
    {Qt::Key_Aring, 221},
    {Qt::Key_Dead_Acute, 219},
    {Qt::Key_Dead_Grave, 219},
    {Qt::Key_Dead_Diaeresis, 186},
    {Qt::Key_Dead_Circumflex, 186},
    {Qt::Key_Dead_Tilde, 186},
    {Qt::Key_onehalf, 220},
    {Qt::Key_section, 220},
    // Above the digits, where the machine's number of the key is not known.
    {Qt::Key_Exclam, 49},
    {Qt::Key_At, 50},
    {Qt::Key_NumberSign, 51},
    {Qt::Key_Dollar, 52},
    {Qt::Key_Percent, 53},
    {Qt::Key_AsciiCircum, 54},
    {Qt::Key_Ampersand, 55},
    {Qt::Key_Asterisk, 56},
    {Qt::Key_ParenLeft, 57},
    {Qt::Key_ParenRight, 48},
};

template <class Table> int Find(const Table& table, int key) {
  const auto place = std::find_if(std::begin(table), std::end(table), [&](const KeyPair& p) { return p.key == key; });
  return place == std::end(table) ? 0 : place->code;
}

bool Between(int key, int first, int last) {
  return key >= first && key <= last;
}

int PadCode(int key) {
  return Between(key, Qt::Key_0, Qt::Key_9) ? 96 + key - Qt::Key_0 : Find(PadKeys, key);
}

} // namespace

int KeyCodeOf(int key, bool keypad, unsigned scan) {
  if (const int code = keypad ? PadCode(key) : 0)
    return code;
  if (Between(key, Qt::Key_F1, Qt::Key_F24))
    return 112 + key - Qt::Key_F1;
  if (const int code = Find(NamedKeys, key))
    return code;
  if (Between(key, Qt::Key_A, Qt::Key_Z) || Between(key, Qt::Key_0, Qt::Key_9))
    return key; // letters and digits are their own codes
  if (!keypad && scan >= 2 && scan <= 11)
    return '0' + static_cast<int>(scan - 1) % 10;
  // The key that European boards have between Shift and Z, whatever it writes; the British one is the backslash.
  if (scan == EuropeanKey && key != Qt::Key_Backslash && key != Qt::Key_Bar)
    return 226;
  return Find(SignKeys, key);
}

} // namespace trekor
