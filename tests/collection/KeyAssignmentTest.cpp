// Keys assigned with the mouse: what a drop, a refusal and Delete leave in the setup, its database, the pictures and
// the grid's head.
#include "RunFixture.h"

namespace trekor::tests {

class KeyAssignmentStories : public RunFixture {
protected:
  KeyAssignmentStories() { Load(); }
  // Where a key lies on the pictures.
  struct KeyPlace {
    Grid& grid;
    int row, col;
  };
  KeyPlace OnBoard(const std::string& key) { return Find(form.fxgKeyBoard, key); }
  KeyPlace OnPad(const std::string& key) { return Find(form.fxgKeyPad, key); }
  KeyPlace Afloat(const std::string& key) { return Find(Board().fxgKeyBoard, key); }
  KeyPlace Icon(int obs) { return {form.Grid, RunGrid::IconRow, obs}; }
  KeyBoardForm& Board() { return run.Subjects().keyPictures.frmKeyBoard; }

  // True when there was something to drag.
  static bool Drag(const KeyPlace& from, const KeyPlace& to) {
    if (from.grid.OnPickUp(from.row, from.col).empty())
      return false;
    to.grid.OnDrop(from.grid, to.row, to.col);
    return true;
  }
  void TakeKeyOf(const std::string& key) {
    form.TabStrip1.Select(Layout::TabKeyboard);
    form.fxgKeyBoard.SetRow(OnBoard(key).row);
    form.fxgKeyBoard.SetCol(OnBoard(key).col);
    Key(Del);
  }
  static bool Shows(const KeyPlace& key) { return !key.grid.CellPicture(key.row, key.col).empty(); }
  std::string Head(int obs) const { return form.Grid.Text(RunGrid::KeyRow, obs); }
  long long Stored(int obs) {
    const auto row = vocabulary.ObsDB->OpenQuery("SELECT KeyCode FROM Setups WHERE SetupID=1 AND ObsParID=" +
                                                 std::to_string(setup.Observations(obs).ObsParID));
    return row->Get(0).Integer();
  }
  // Everything that says which key an observation has, which must agree.
  void ExpectKey(int obs, int code, const std::string& head) {
    EXPECT_EQ(setup.Observations(obs).KeyCode(), code);
    EXPECT_EQ(Stored(obs), code);
    EXPECT_EQ(Head(obs), head);
    EXPECT_TRUE(code == -1 || setup.KeyToObs(code) == obs);
  }

private:
  static KeyPlace Find(Grid& grid, const std::string& key) {
    for (int r = 0; r < grid.Rows(); ++r)
      for (int c = 0; c < grid.Cols(); ++c)
        if (grid.Text(r, c) == key)
          return {grid, r, c};
    ADD_FAILURE() << "no key " << key;
    return {grid, 0, 0};
  }
};

TEST_F(KeyAssignmentStories, DeleteTakesTheKeyAway) {
  TakeKeyOf("A");
  ExpectKey(Crack, -1, "");
  EXPECT_EQ(setup.KeyToObs('A'), -1);
  EXPECT_FALSE(Shows(OnBoard("A")) || Shows(Afloat("A")));
  Key(Del); // nothing more to take
  ExpectKey(Hole, 'B', "B");
  form.cboTestSetupNames.Select(1);
  form.cboTestSetupNames.Select(0);
  EXPECT_EQ(Head(Crack), "[ ]") << "from the next choice on";
}

TEST_F(KeyAssignmentStories, AFreeObservationIsDraggedFromTheHeadToAKey) {
  EXPECT_FALSE(Drag(Icon(Crack), OnBoard("Q"))) << "one with a key is picked up from its key";
  TakeKeyOf("A");
  EXPECT_EQ(form.Grid.OnPickUp(RunGrid::NameRow, Crack), "") << "only its icon";
  EXPECT_EQ(form.Grid.OnPickUp(RunGrid::IconRow, 0), "");
  EXPECT_EQ(form.Grid.OnPickUp(RunGrid::IconRow, setup.ObsCount() + 1), "");
  ASSERT_TRUE(Drag(Icon(Crack), OnBoard("Q")));
  ExpectKey(Crack, 'Q', "Q");
  EXPECT_TRUE(Shows(OnBoard("Q")) && Shows(Afloat("Q")));
  EXPECT_EQ(form.Grid.Row(), RunGrid::KeyRow);
  EXPECT_EQ(form.Grid.Col(), Crack);
  StartFromLink(10.0);
  Press('Q');
  EXPECT_EQ(Cell(0, Crack), "1") << "it collects";
}

TEST_F(KeyAssignmentStories, AKeyIsMovedAndTheOldOneIsFree) {
  ASSERT_TRUE(Drag(OnBoard("A"), OnBoard("F9")));
  ExpectKey(Crack, keys::F9, "F9");
  EXPECT_EQ(setup.KeyToObs('A'), -1);
  EXPECT_FALSE(Shows(OnBoard("A")) || Shows(Afloat("A")));
  EXPECT_FALSE(Drag(OnBoard("A"), OnBoard("Q"))) << "nothing is left there";
  ASSERT_TRUE(Drag(OnBoard("F9"), OnBoard("F9"))) << "onto itself";
  ExpectKey(Crack, keys::F9, "F9");
  ASSERT_TRUE(Drag(Afloat("F9"), OnBoard("A"))) << "the floating picture is the same keyboard";
  ExpectKey(Crack, 'A', "A");
  ASSERT_TRUE(Drag(OnBoard("A"), Afloat("Z")));
  ExpectKey(Crack, 'Z', "Z");
  EXPECT_TRUE(Shows(OnBoard("Z")) && Shows(Afloat("Z")));
}

TEST_F(KeyAssignmentStories, ARefusedDropChangesNothing) {
  for (const char* key : {"F1", "F11", " ", "B"}) { // the program's own, a blank one, another observation's
    SCOPED_TRACE(key);
    ASSERT_TRUE(Drag(OnBoard("A"), OnBoard(key)));
    ExpectKey(Crack, 'A', "A");
    EXPECT_TRUE(Shows(OnBoard("A")));
  }
  ExpectKey(Hole, 'B', "B");
  ASSERT_TRUE(Drag(OnBoard("A"), OnPad("7"))) << "from the keyboard to the keypad";
  ExpectKey(Crack, 'A', "A");
  TakeKeyOf("A");
  ASSERT_TRUE(Drag(Icon(Crack), OnPad("Enter")));
  ExpectKey(Crack, -1, "[ ]");
}

TEST_F(KeyAssignmentStories, TheSpaceBarIsNamedAndTheKeypadHasItsOwnCodes) {
  ASSERT_TRUE(Drag(OnBoard("Space"), OnBoard("Q")));
  ExpectKey(Sign, 'Q', "Q");
  ASSERT_TRUE(Drag(OnBoard("Q"), OnBoard("Space")));
  ExpectKey(Sign, keys::Space, "Space");
  TakeKeyOf("A");
  ASSERT_TRUE(Drag(Icon(Crack), OnPad("0")));
  ExpectKey(Crack, keys::Pad0, "0");
  EXPECT_EQ(form.fxgKeyPad.CellPicture(4, 1), form.fxgKeyPad.CellPicture(4, 0)) << "a wide key";
}

TEST_F(KeyAssignmentStories, AKeyIsMovedInARunAndTheRunKeepsItsPlace) {
  form.mnuViewKeyBoard.OnClick();
  StartFromLink(10.0);
  Press('D');
  ASSERT_TRUE(Drag(Afloat("D"), Afloat("Q")));
  ExpectKey(Edge, 'Q', "Q");
  EXPECT_EQ(Afloat("D").grid.CellNote(Afloat("D").row, Afloat("D").col).text, "") << "its value has gone with it";
  Dmi(10.1);
  Press('D'); // no one's any more
  Press('Q');
  EXPECT_EQ(Cell(0, Edge), "0");
  Press(F3);
  ASSERT_TRUE(Drag(Afloat("Q"), Afloat("F9")));
  Tick();
  EXPECT_EQ(run.Subjects().runGrid.CurrentRow, form.Grid.FixedRows()) << "keys go on into the row that was chosen";
  Press(keys::F9);
  EXPECT_EQ(Cell(0, Edge), "1");
}

TEST_F(KeyAssignmentStories, ADragDiesWhenAnotherSetupIsChosen) {
  ASSERT_NE(OnBoard("A").grid.OnPickUp(OnBoard("A").row, OnBoard("A").col), "");
  form.cboTestSetupNames.Select(1); // its first item is another one
  OnBoard("Q").grid.OnDrop(form.fxgKeyBoard, OnBoard("Q").row, OnBoard("Q").col);
  form.cboTestSetupNames.Select(0);
  ExpectKey(Crack, 'A', "A");
  EXPECT_EQ(setup.KeyToObs('Q'), -1);
}

} // namespace trekor::tests
