#include "views/KeyTranslation.h"

#include <QtCore/qnamespace.h>

#include <gtest/gtest.h>

namespace trekor {
namespace {

// Where the toolkit and Windows differ: the pad with NumLock on, with a decimal comma too, and off; signs of the plain
// keyboard that are not those of the pad; the extra key of European boards, which is neither the comma's shifted sign
// nor the British backslash; shifted digits, by the key's number whatever the language (a Danish Shift+7 is "/"), by
// the sign without it; keys of Russian boards, whose letters are those of the same place, but a sign keeps its meaning
// (a French comma is where M is). Codes stand here as numbers, since databases hold those.
TEST(KeyCodesTest, AKeyIsKnownByItsPlaceAndNotByItsSign) {
  const std::tuple<int, bool, unsigned, int> cases[] = {
      {Qt::Key_Z, false, 44, 90},      {Qt::Key_F24, false, 194, 135},
      {Qt::Key_Backtab, false, 15, 9}, {Qt::Key_Enter, true, 96, 13},
      {Qt::Key_9, true, 73, 105},      {Qt::Key_Asterisk, true, 55, 106},
      {Qt::Key_Slash, true, 98, 111},  {Qt::Key_Period, true, 83, 110},
      {Qt::Key_Comma, true, 83, 110},  {Qt::Key_Clear, true, 76, 12},
      {Qt::Key_Delete, true, 83, 46},  {Qt::Key_Minus, false, 12, 189},
      {Qt::Key_Comma, false, 51, 188}, {Qt::Key_AE, false, 39, 192},
      {Qt::Key_Less, false, 86, 226},  {Qt::Key_Greater, false, 86, 226},
      {Qt::Key_Less, false, 51, 188},  {Qt::Key_Backslash, false, 86, 220},
      {Qt::Key_Slash, false, 8, 55},   {Qt::Key_Equal, false, 11, 48},
      {Qt::Key_Exclam, false, 0, 49},  {0x0424, false, 30, 65},
      {0x042F, false, 44, 90},         {0x0417, false, 25, 80},
      {0x0425, false, 26, 0},          {Qt::Key_Comma, false, 50, 188},
      {Qt::Key_M, false, 39, 77},      {Qt::Key_VolumeUp, false, 115, 0},
      {Qt::Key_unknown, false, 0, 0}};
  for (const auto& [key, keypad, scan, code] : cases)
    EXPECT_EQ(KeyCodeOf(key, keypad, scan), code)
        << "key 0x" << std::hex << key << (keypad ? " of the pad" : "") << std::dec << ", number " << scan;
}

} // namespace
} // namespace trekor
