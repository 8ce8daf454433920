#include "views/KeyTranslation.h"

#include "values/KeyCodes.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace trekor {

namespace {

struct KeyPair {
  int key, code;
};

constexpr unsigned EuropeanKey = 86; // number of the machine

// Keys with the same code wherever they lie.
constexpr KeyPair NamedKeys[] = {
    {Qt::Key_Backspace, keys::Backspace},
    {Qt::Key_Tab, keys::Tab},
    {Qt::Key_Backtab, keys::Tab},
    {Qt::Key_Clear, keys::Clear},
    {Qt::Key_Return, keys::Enter},
    {Qt::Key_Enter, keys::Enter},
    {Qt::Key_Shift, keys::Shift},
    {Qt::Key_Control, keys::Control},
    {Qt::Key_Alt, keys::Alt},
    {Qt::Key_AltGr, keys::Alt},
    {Qt::Key_Pause, keys::Pause},
    {Qt::Key_CapsLock, keys::CapsLock},
    {Qt::Key_Escape, keys::Esc},
    {Qt::Key_Space, keys::Space},
    {Qt::Key_PageUp, keys::PageUp},
    {Qt::Key_PageDown, keys::PageDown},
    {Qt::Key_End, keys::End},
    {Qt::Key_Home, keys::Home},
    {Qt::Key_Left, keys::Left},
    {Qt::Key_Up, keys::Up},
    {Qt::Key_Right, keys::Right},
    {Qt::Key_Down, keys::Down},
    {Qt::Key_Print, keys::PrintScreen},
    {Qt::Key_Insert, keys::Insert},
    {Qt::Key_Delete, keys::Delete},
    {Qt::Key_Help, keys::Help},
    {Qt::Key_Meta, keys::LeftWindow},
    {Qt::Key_Super_L, keys::LeftWindow},
    {Qt::Key_Super_R, keys::RightWindow},
    {Qt::Key_Menu, keys::Menu},
    {Qt::Key_NumLock, keys::NumLock},
    {Qt::Key_ScrollLock, keys::ScrollLock},
};

// Of the number pad. The decimal key is 110 whether it writes a point or a comma.
constexpr KeyPair PadKeys[] = {
    {Qt::Key_Asterisk, keys::PadTimes}, {Qt::Key_Plus, keys::PadPlus},     {Qt::Key_Minus, keys::PadMinus},
    {Qt::Key_Period, keys::PadDecimal}, {Qt::Key_Comma, keys::PadDecimal}, {Qt::Key_Slash, keys::PadDivide},
};

// Signs, plain and shifted, with the code of their key on a US keyboard; then the letters and signs of a Danish one
// that a US keyboard lacks.
constexpr KeyPair SignKeys[] = {
    {Qt::Key_Semicolon, keys::Semicolon},
    {Qt::Key_Colon, keys::Semicolon},
    {Qt::Key_Equal, keys::Equal},
    {Qt::Key_Plus, keys::Equal},
    {Qt::Key_Comma, keys::Comma},
    {Qt::Key_Less, keys::Comma},
    {Qt::Key_Minus, keys::Minus},
    {Qt::Key_Underscore, keys::Minus},
    {Qt::Key_Period, keys::Period},
    {Qt::Key_Greater, keys::Period},
    {Qt::Key_Slash, keys::Slash},
    {Qt::Key_Question, keys::Slash},
    {Qt::Key_QuoteLeft, keys::Backquote},
    {Qt::Key_AsciiTilde, keys::Backquote},
    {Qt::Key_BracketLeft, keys::OpenBracket},
    {Qt::Key_BraceLeft, keys::OpenBracket},
    {Qt::Key_Backslash, keys::Backslash},
    {Qt::Key_Bar, keys::Backslash},
    {Qt::Key_BracketRight, keys::CloseBracket},
    {Qt::Key_BraceRight, keys::CloseBracket},
    {Qt::Key_Apostrophe, keys::Quote},
    {Qt::Key_QuoteDbl, keys::Quote},
    {Qt::Key_AE, keys::Backquote},
    {Qt::Key_Ooblique, keys::Quote},
    {Qt::Key_Aring, keys::CloseBracket},
    {Qt::Key_Dead_Acute, keys::OpenBracket},
    {Qt::Key_Dead_Grave, keys::OpenBracket},
    {Qt::Key_Dead_Diaeresis, keys::Semicolon},
    {Qt::Key_Dead_Circumflex, keys::Semicolon},
    {Qt::Key_Dead_Tilde, keys::Semicolon},
    {Qt::Key_onehalf, keys::Backslash},
    {Qt::Key_section, keys::Backslash},
    // Above the digits, where the machine's number of the key is not known.
    {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'},
};

template <class Table> int Find(const Table& table, int key) {
  const auto place = std::find_if(std::begin(table), std::end(table), [&](const KeyPair& p) { return p.key == key; });
  return place == std::end(table) ? 0 : place->code;
}

bool Between(int key, int first, int last) {
  return key >= first && key <= last;
}

// The letter of a US keyboard at a place of the main block, 0 for none.
int LetterAt(unsigned scan) {
  struct KeyRow {
    unsigned first;
    std::string_view letters;
  };
  for (const KeyRow& row : {KeyRow{16, "QWERTYUIOP"}, KeyRow{30, "ASDFGHJKL"}, KeyRow{44, "ZXCVBNM"}})
    if (scan >= row.first && scan < row.first + row.letters.size())
      return row.letters[scan - row.first];
  return 0;
}

int PadCode(int key) {
  return Between(key, Qt::Key_0, Qt::Key_9) ? keys::Pad0 + key - Qt::Key_0 : Find(PadKeys, key);
}

} // namespace

int KeyCodeOf(int key, bool keypad, unsigned scan) {
  if (const int code = keypad ? PadCode(key) : 0)
    return code;
  if (Between(key, Qt::Key_F1, Qt::Key_F24))
    return keys::F1 + key - Qt::Key_F1;
  if (const int code = Find(NamedKeys, key))
    return code;
  if (Between(key, Qt::Key_A, Qt::Key_Z) || Between(key, Qt::Key_0, Qt::Key_9))
    return key; // letters and digits are their own codes
  if (!keypad && scan >= 2 && scan <= 11)
    return '0' + static_cast<int>(scan - 1) % 10;
  // The key that European boards have between Shift and Z, whatever it writes; the British one is the backslash.
  if (scan == EuropeanKey && key != Qt::Key_Backslash && key != Qt::Key_Bar)
    return keys::European;
  const int sign = Find(SignKeys, key);
  return sign != 0 || keypad ? sign : LetterAt(scan);
}

} // namespace trekor
