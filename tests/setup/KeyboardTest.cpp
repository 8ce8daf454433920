#include "Vocabulary.h"

#include "setup/ClassKeyBoard.h"
#include "values/KeyCodes.h"

namespace trekor::tests {

struct KeyForm : Form {
  KeyForm() : Form("Measurements") {}
  Grid fxgKeyBoard{*this, "fxgKeyBoard"}, fxgKeyPad{*this, "fxgKeyPad"};
};

class KeyPictures : public Vocabulary {
protected:
  KeyPictures() {
    board.MakeKeyBoard(keys.fxgKeyBoard, false);
    pad.MakeKeyPad(keys.fxgKeyPad, false);
  }
  void OnKeys(std::initializer_list<int> codes) {
    for (const int code : codes) {
      ClassObservation& obs = setup.AddObservation();
      obs.ObsParID = setup.ObsCount();
      obs.SetObsIcon("crack.png");
      obs.SetKeyCode(code);
    }
  }
  // "row:firstcolumn-lastcolumn" of each run of cells with a picture.
  static std::string Painted(const Grid& grid) {
    std::string runs;
    for (int r = 0; r < grid.Rows(); ++r) {
      for (int c = 0; c < grid.Cols(); ++c) {
        const bool begins = c == 0 || grid.CellPicture(r, c - 1).empty(), ends = grid.CellPicture(r, c + 1).empty();
        if (!grid.CellPicture(r, c).empty())
          runs +=
              (begins ? std::to_string(r) + ":" + std::to_string(c) : "") + (ends ? "-" + std::to_string(c) + " " : "");
      }
    }
    return runs;
  }
  KeyForm keys, floatingKeys;
  KeyTables tables;
  ClassKeyBoard board{tables, setup}, pad{tables, setup};
};

// The three ways to say which keys may carry an observation must agree.
TEST_F(KeyPictures, HaveExactlyTheValidKeysInTheirTables) {
  for (int code = 0; code <= TestSetup::LastKeyCode; ++code) {
    const std::string onBoard = board.KeyText(code), onPad = pad.KeyText(code);
    EXPECT_EQ(Valid_KeyCode(code), !onBoard.empty() || !onPad.empty()) << "code " << code;
    EXPECT_EQ(onBoard.empty() ? -1 : code, KeyBoard_KeyCode(onBoard)) << "code " << code;
    EXPECT_EQ(onPad.empty() ? -1 : code, KeyPad_KeyCode(onPad)) << "code " << code;
  }
  EXPECT_EQ(board.KeyText(-1) + board.KeyText(TestSetup::LastKeyCode + 1), "");
  EXPECT_EQ(tables.KeyPadRow.at(keys::PadPlus + 1), 2) << "the plus key keeps its lower row";
  for (const char* text : {"F4", "F11", "Enter", " ", "", "q", "+", "QQ"})
    EXPECT_EQ(KeyBoard_KeyCode(text), -1) << text;
  for (const char* text : {"Enter", "A", ".", " ", ""})
    EXPECT_EQ(KeyPad_KeyCode(text), -1) << text;
}

TEST_F(KeyPictures, CarryTheIconInAllCellsOfAKey) {
  OnKeys({'Q', keys::Space, -1, keys::PadPlus, keys::Pad0});
  board.AddSetup();
  pad.AddSetup();
  EXPECT_EQ(Painted(keys.fxgKeyBoard), "2:2-5 4:33-47 ");
  EXPECT_EQ(Painted(keys.fxgKeyPad), "1:3-3 2:3-3 4:0-1 ");
  EXPECT_EQ(keys.fxgKeyBoard.CellPicture(2, 2), "CRACK.PNG");
  board.RemoveKey(1);
  pad.RemoveSetup();
  EXPECT_EQ(Painted(keys.fxgKeyBoard), "4:33-47 ");
  EXPECT_EQ(Painted(keys.fxgKeyPad), "");
}

TEST_F(KeyPictures, FloatWithOneCellAKeyAndLeaveTheTablesAlone) {
  const KeyTables before = tables;
  ClassKeyBoard floating(tables, setup);
  floating.AddSetup(); // not attached yet: nothing
  floating.MakeKeyBoard(floatingKeys.fxgKeyBoard, true);
  EXPECT_EQ(before.KeyBoardCol, tables.KeyBoardCol);
  OnKeys({'Q', keys::Space});
  floating.AddSetup();
  EXPECT_EQ(Painted(floatingKeys.fxgKeyBoard), "2:2-2 4:33-33 ");
}

TEST_F(KeyPictures, TellTheValuesThatGoOnAndTheLastKey) {
  OnKeys({'Q', 'W', keys::PadPlus, -1});
  for (int i = 1; i <= setup.ObsCount(); ++i) {
    ClassObservation& obs = setup.Observations(i);
    obs.DataTypeID = DataType::Integer;
    obs.RegModeCode = i == 2 ? RegMode::PresentStep : RegMode::Continues;
    obs.SetDefault(i == 1 ? 3 : 0);
    setup.SetKeyToObs(obs.KeyCode(), i);
  }
  const auto told = [](const Grid& grid, int row, int col) {
    const Grid::Note& note = grid.CellNote(row, col);
    return note.text + (note.strong ? "!" : "");
  };
  board.ShowValues(true);
  pad.ShowValues(true);
  EXPECT_EQ(told(keys.fxgKeyBoard, 2, 2), "3!");
  EXPECT_EQ(told(keys.fxgKeyBoard, 2, 6), "") << "counted anew in each step";
  EXPECT_EQ(told(keys.fxgKeyPad, 2, 3), "0");
  keys.fxgKeyBoard.TakeChanges();
  board.ShowValues(true);
  EXPECT_TRUE(keys.fxgKeyBoard.TakeChanges().steps.empty()) << "nothing has changed";
  board.ShowValues(false);
  EXPECT_EQ(told(keys.fxgKeyBoard, 2, 2), "");

  board.MarkKey('W');
  EXPECT_TRUE(keys.fxgKeyBoard.SelectionMarks() && keys.fxgKeyBoard.Row() == 2 && keys.fxgKeyBoard.Col() == 6);
  board.MarkKey(keys::PadPlus);
  EXPECT_FALSE(keys.fxgKeyBoard.SelectionMarks()) << "a key of the other picture";
}

} // namespace trekor::tests
