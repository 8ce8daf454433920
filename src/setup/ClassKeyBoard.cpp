#include "setup/ClassKeyBoard.h"

#include "values/KeyCodes.h"

#include <cmath>

namespace trekor {

namespace {

constexpr int BoardRows = 5, BoardColumns = 48, BoardColumnsPerUnit = 4; // 12 units wide
constexpr int PadRows = 5, PadColumns = 4, PadColumnsPerUnit = 1;
constexpr int SpaceFirstColumn = 33, SpaceLastColumn = 47;

// Key names that are no single letter or digit, and their codes.
struct NamedKey {
  const char* text;
  int code;
};
constexpr NamedKey BoardNames[] = {{"F5", keys::F5}, {"F6", keys::F6},   {"F7", keys::F7},      {"F8", keys::F8},
                                   {"F9", keys::F9}, {"F10", keys::F10}, {"Space", keys::Space}};
constexpr NamedKey PadNames[] = {{"/", keys::PadDivide},
                                 {"*", keys::PadTimes},
                                 {"+", keys::PadPlus},
                                 {"-", keys::PadMinus},
                                 {",", keys::PadDecimal}};

template <std::size_t N> int NamedCode(const NamedKey (&names)[N], const std::string& text) {
  for (const NamedKey& key : names)
    if (text == key.text)
      return key.code;
  return -1;
}

bool OneOf(const std::string& text, char first, char last) {
  return text.size() == 1 && text[0] >= first && text[0] <= last;
}

std::size_t TableIndex(int code) {
  return static_cast<std::size_t>(code) + 1;
}

} // namespace

int KeyBoard_KeyCode(const std::string& text) {
  if (OneOf(text, '0', '9') || OneOf(text, 'A', 'Z'))
    return text[0]; // the code is the character
  return NamedCode(BoardNames, text);
}

int KeyPad_KeyCode(const std::string& text) {
  if (OneOf(text, '0', '9'))
    return keys::Pad0 + text[0] - '0';
  return NamedCode(PadNames, text);
}

KeyTables::KeyTables() {
  for (auto* table : {&KeyBoardRow, &KeyBoardCol, &KeyPadRow, &KeyPadCol})
    table->fill(-1);
}

ClassKeyBoard::ClassKeyBoard(KeyTables& keyTables, const TestSetup& testSetup) : tables(keyTables), setup(testSetup) {}

void ClassKeyBoard::Attach(Grid& target, bool onKeyPad, bool onFloating, int rows, int columns) {
  grid = &target;
  keypad = onKeyPad;
  floating = onFloating;
  columnsPerUnit = onKeyPad ? PadColumnsPerUnit : BoardColumnsPerUnit;
  grid->SetFixedRows(0);
  grid->SetRows(rows);
  grid->SetCols(columns);
  grid->SetFont({"Times New Roman", 9.75, true});
  for (int c = 0; c < columns; ++c)
    grid->SetColAlignment(c, Align::Centre);
}

// A blank key is one blank and the blank key beside it two, as cells of equal text would show as one key.
void ClassKeyBoard::MakeKeyBoard(Grid& target, bool onFloating) {
  Attach(target, false, onFloating, BoardRows, BoardColumns);
  Make_KeyRow({"F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F11", "F12"}, 0, 0, 11);
  Make_KeyRow({"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", " ", "  "}, 1, 0, 11);
  Make_KeyRow({"Q", "W", "E", "R", "T", "Y", "U", "I", "O", "P", " "}, 2, 0.5, 11.5);
  Make_KeyRow({" "}, 2, 0, 0.5);
  Make_KeyRow({"  "}, 2, 11.5, 11);
  Make_KeyRow({"A", "S", "D", "F", "G", "H", "J", "K", "L", " ", "  "}, 3, 0.75, 11.75);
  Make_KeyRow({" "}, 3, 0, 0.75);
  Make_KeyRow({" "}, 3, 11.75, 11);
  Make_KeyRow({"Z", "X", "C", "V", "B", "N", "M"}, 4, 1.25, 8.25);
  Make_KeyRow({"  "}, 4, 0, 1.25);
  Make_KeyRow({"Space"}, 4, 8.25, 12); // up to the end of the row
}

void ClassKeyBoard::MakeKeyPad(Grid& target, bool onFloating) {
  Attach(target, true, onFloating, PadRows, PadColumns);
  grid->SetMergeCol(3, true); // "+" and "Enter" are two rows tall
  Make_KeyRow({" ", "/", "*", "-"}, 0, 0, 3);
  Make_KeyRow({"7", "8", "9", "+"}, 1, 0, 3);
  Make_KeyRow({"4", "5", "6", "+"}, 2, 0, 3);
  Make_KeyRow({"1", "2", "3", "Enter"}, 3, 0, 3);
  Make_KeyRow({"0", "0", ",", "Enter"}, 4, 0, 3);
}

void ClassKeyBoard::Make_KeyRow(const std::vector<std::string>& keys, int row, double start, double end) {
  if (grid == nullptr || keys.empty())
    return;
  if (end == std::floor(end))
    end += 1;
  const double first = start * columnsPerUnit, beyond = end * columnsPerUnit;
  const double columnsPerKey = std::nearbyint((beyond - first) / static_cast<double>(keys.size()));
  grid->SetMergeRow(row, true);
  std::string before;
  bool inKey = false;
  for (int c = 0; c < grid->Cols(); ++c) {
    if (first > c || c >= beyond)
      continue;
    const auto k = static_cast<std::size_t>((c - first) / columnsPerKey);
    if (k >= keys.size())
      continue;
    grid->SetText(row, c, keys[k]);
    if (!inKey || keys[k] != before)
      EnterKey(keys[k], row, c);
    before = keys[k];
    inKey = true;
  }
}

// Floating pictures have the same layout and do not write the tables. For a key on two rows ("+") the lower one counts.
void ClassKeyBoard::EnterKey(const std::string& text, int row, int column) {
  if (floating)
    return;
  const int code = keypad ? KeyPad_KeyCode(text) : KeyBoard_KeyCode(text);
  if (code == -1)
    return;
  (keypad ? tables.KeyPadRow : tables.KeyBoardRow).at(TableIndex(code)) = static_cast<std::int16_t>(row);
  (keypad ? tables.KeyPadCol : tables.KeyBoardCol).at(TableIndex(code)) = static_cast<std::int16_t>(column);
}

int ClassKeyBoard::KeyRow(int code) const {
  return code < 0 || code > TestSetup::LastKeyCode ? -1
                                                   : (keypad ? tables.KeyPadRow : tables.KeyBoardRow)[TableIndex(code)];
}

int ClassKeyBoard::KeyCol(int code) const {
  return code < 0 || code > TestSetup::LastKeyCode ? -1
                                                   : (keypad ? tables.KeyPadCol : tables.KeyBoardCol)[TableIndex(code)];
}

std::string ClassKeyBoard::KeyText(int code) const {
  return grid == nullptr ? std::string() : grid->Text(KeyRow(code), KeyCol(code));
}

void ClassKeyBoard::Paint_Setup(bool show) {
  for (int i = 1; i <= setup.ObsCount(); ++i)
    Paint_Key(show, i);
}

void ClassKeyBoard::Paint_Key(bool show, int i) {
  if (grid == nullptr || !setup.Has(i))
    return;
  const ClassObservation& obs = setup.Observations(i);
  const int row = KeyRow(obs.KeyCode()), col = KeyCol(obs.KeyCode());
  if (row == -1 || col == -1)
    return;
  const std::string picture = show ? obs.ObsIcon() : std::string();
  if (!show)
    grid->SetCellNote(row, col, "");
  if (keypad)
    PaintPadKey(picture, obs.KeyCode(), row, col);
  else
    PaintBoardKey(picture, obs.KeyCode(), row, col);
}

void ClassKeyBoard::ShowValues(bool show) {
  for (int i = 1; i <= setup.ObsCount(); ++i) {
    const ClassObservation& obs = setup.Observations(i);
    if (grid && obs.IsCarried() && setup.KeyToObs(obs.KeyCode()) == i)
      grid->SetCellNote(KeyRow(obs.KeyCode()), KeyCol(obs.KeyCode()), show ? obs.DefaultText() : "", obs.HasValue());
  }
}

void ClassKeyBoard::MarkKey(int code) {
  if (grid == nullptr)
    return;
  const bool here = KeyRow(code) != -1;
  if (here) {
    grid->SetRow(KeyRow(code));
    grid->SetCol(KeyCol(code));
  }
  grid->SetSelectionMarks(here);
}

// Three keys of the pad are two cells large.
void ClassKeyBoard::PaintPadKey(const std::string& picture, int code, int row, int col) {
  grid->SetCellPicture(row, col, picture);
  if (code == keys::PadPlus) {
    grid->SetCellPicture(1, 3, picture);
    grid->SetCellPicture(2, 3, picture);
  } else if (code == keys::PadSeparator) {
    grid->SetCellPicture(3, 3, picture);
    grid->SetCellPicture(4, 3, picture);
  } else if (code == keys::Pad0) {
    grid->SetCellPicture(4, 0, picture);
    grid->SetCellPicture(4, 1, picture);
  }
}

// On a floating picture the cells of a key merge into one, so its first cell is enough.
void ClassKeyBoard::PaintBoardKey(const std::string& picture, int code, int row, int col) {
  int first = col, last = floating ? col : col + columnsPerUnit - 1;
  if (code == keys::Space && !floating) {
    first = SpaceFirstColumn;
    last = SpaceLastColumn;
  }
  for (int c = first; c <= last; ++c)
    grid->SetCellPicture(row, c, picture);
}

} // namespace trekor
