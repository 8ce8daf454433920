// A picture of the keyboard or the keypad in a grid: which cell is which key, and whose icon is on it.
#pragma once

#include "forms/Grid.h"
#include "setup/TestSetup.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace trekor {

// The key code for the text on a key; -1 for keys that carry no observation.
int KeyBoard_KeyCode(const std::string& text);
int KeyPad_KeyCode(const std::string& text);

// Row and first column of each key in the docked grids, by key code + 1; -1 where there is no key.
struct KeyTables {
  KeyTables();
  std::array<std::int16_t, 202> KeyBoardRow, KeyBoardCol, KeyPadRow, KeyPadCol;
};

// The pad's Enter is painted on its two cells like other large keys, but no text leads to its code: it never carries an
// observation. Its painting is kept for the day when it may.
class ClassKeyBoard {
public:
  ClassKeyBoard(KeyTables& tables, const TestSetup& setup);
  // Spreads keys over a row from unit `start` to unit `end`, a unit being the width of an ordinary key. A whole `end`
  // means the end of that unit, a fractional one an exact edge.
  void Make_KeyRow(const std::vector<std::string>& keys, int row, double start, double end);
  void MakeKeyBoard(Grid& grid, bool floating);
  void MakeKeyPad(Grid& grid, bool floating);
  // One key, all keys. A key alone is added by the editor of setups, which is still to come.
  void AddKey(int i) { Paint_Key(true, i); }
  void RemoveKey(int i) { Paint_Key(false, i); }
  void AddSetup() { Paint_Setup(true); }
  void RemoveSetup() { Paint_Setup(false); }
  // The present values of the observations that go on, on their keys: a value other than 0 strongly. Or none.
  void ShowValues(bool show);
  // Marks the key of a code; none for a code that is not on this picture.
  void MarkKey(int code);
  // The text on the key of a code, "" when the key is not on this picture.
  std::string KeyText(int code) const;

private:
  void Attach(Grid& target, bool onKeyPad, bool onFloating, int rows, int columns);
  void EnterKey(const std::string& text, int row, int column);
  int KeyRow(int code) const;
  int KeyCol(int code) const;
  void Paint_Key(bool show, int i);
  void Paint_Setup(bool show);
  void PaintPadKey(const std::string& picture, int code, int row, int col);
  void PaintBoardKey(const std::string& picture, int code, int row, int col);
  KeyTables& tables;
  const TestSetup& setup;
  Grid* grid = nullptr;
  int columnsPerUnit = 1; // a unit is the width of an ordinary key
  bool floating = false, keypad = false;
};

} // namespace trekor
