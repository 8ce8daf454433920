#include "views/KeyCodes.h"

#include <QtCore/qnamespace.h>

#include <gtest/gtest.h>

namespace trekor {
namespace {

struct KeyCase {
  int key;
  bool keypad;
  unsigned scan;
  int code;
};

TEST(KeyCodesTest, EveryKeyHasItsWindowsCode) {
  const KeyCase cases[] = {
      {Qt::Key_A, false, 30, 65},
      {Qt::Key_Z, false, 44, 90},
      {Qt::Key_0, false, 11, 48},
      {Qt::Key_9, false, 10, 57},
      {Qt::Key_F1, false, 59, 112},
      {Qt::Key_F2, false, 60, 113},
      {Qt::Key_F10, false, 68, 121},
      {Qt::Key_F24, false, 194, 135},
      {Qt::Key_Escape, false, 1, 27},
      {Qt::Key_Space, false, 57, 32},
      {Qt::Key_Tab, false, 15, 9},
      {Qt::Key_Backtab, false, 15, 9},
      {Qt::Key_Return, false, 28, 13},
      {Qt::Key_Enter, true, 96, 13},
      {Qt::Key_Delete, false, 111, 46},
      {Qt::Key_Up, false, 103, 38},
      {Qt::Key_Alt, false, 56, 18},
      {Qt::Key_Shift, false, 42, 16},
      {Qt::Key_Control, false, 29, 17},
      {Qt::Key_NumLock, true, 69, 144},
      // The pad with NumLock on, with a decimal comma too.
      {Qt::Key_0, true, 82, 96},
      {Qt::Key_9, true, 73, 105},
      {Qt::Key_Asterisk, true, 55, 106},
      {Qt::Key_Plus, true, 78, 107},
      {Qt::Key_Minus, true, 74, 109},
      {Qt::Key_Period, true, 83, 110},
      {Qt::Key_Comma, true, 83, 110},
      {Qt::Key_Slash, true, 98, 111},
      // and off.
      {Qt::Key_Insert, true, 82, 45},
      {Qt::Key_End, true, 79, 35},
      {Qt::Key_Down, true, 80, 40},
      {Qt::Key_PageDown, true, 81, 34},
      {Qt::Key_Left, true, 75, 37},
      {Qt::Key_Clear, true, 76, 12},
      {Qt::Key_Right, true, 77, 39},
      {Qt::Key_Home, true, 71, 36},
      {Qt::Key_Up, true, 72, 38},
      {Qt::Key_PageUp, true, 73, 33},
      {Qt::Key_Delete, true, 83, 46},
      // Signs of the plain keyboard are not those of the pad.
      {Qt::Key_Minus, false, 12, 189},
      {Qt::Key_Plus, false, 13, 187},
      {Qt::Key_Comma, false, 51, 188},
      {Qt::Key_Period, false, 52, 190},
      {Qt::Key_Slash, false, 53, 191},
      {Qt::Key_QuoteLeft, false, 41, 192},
      {Qt::Key_BracketLeft, false, 26, 219},
      {Qt::Key_Apostrophe, false, 40, 222},
      {Qt::Key_AE, false, 39, 192},
      {Qt::Key_Ooblique, false, 40, 222},
      {Qt::Key_Aring, false, 26, 221},
      // Shifted digits: by the key's number whatever the language (a Danish Shift+7 is "/"), by the sign without it.
      {Qt::Key_Slash, false, 8, 55},
      {Qt::Key_Equal, false, 11, 48},
      {Qt::Key_Exclam, false, 2, 49},
      {Qt::Key_Exclam, false, 0, 49},
      {Qt::Key_Asterisk, false, 0, 56},
      // Nothing of ours.
      {Qt::Key_VolumeUp, false, 115, 0},
      {Qt::Key_unknown, false, 0, 0},
  };
  for (const KeyCase& c : cases)
    EXPECT_EQ(KeyCodeOf(c.key, c.keypad, c.scan), c.code)
        << "key 0x" << std::hex << c.key << (c.keypad ? " of the pad" : "") << std::dec << ", number " << c.scan;
}

} // namespace
} // namespace trekor
