#include "collection/RunFixture.h"

namespace trekor::tests {

class StatesOfTheRun : public RunFixture {
protected:
  void SetUp() override { Load(); }
};

TEST_F(StatesOfTheRun, AZeroStepIsAskedForEvenWhenTheLinkStarts) {
  OpenFile();
  state.position.StepSize.SetDefault(0);
  Answer("0.5");
  Link("CTRL START");
  EXPECT_EQ(prompts.size(), 1U);
  EXPECT_EQ(Roads(), Texts{"0.000 to 0.500"});
}

TEST_F(StatesOfTheRun, AStepThatIsNotPositiveLeavesTheStateIdleAndSaysNothing) {
  OpenFile();
  form.Texts7.SetText("-0.1"); // the box was never left
  Sent();
  Key(F2);
  EXPECT_EQ(State(), RunStates::Idle);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Rows(), 0);
  Type(form.Texts7, "0.1"); // the guard is free again
  Answer("1");
  Key(F2);
  EXPECT_EQ(State(), RunStates::Running);
}

TEST_F(StatesOfTheRun, FirstBoundaryLiesOnTheStepsOfTheRoad) {
  struct Case {
    const char* start;
    bool increasing;
    double next;
  };
  for (const Case& c : {Case{"10", true, 10.1}, Case{"10.05", true, 10.1}, Case{"10", false, 9.9},
                        Case{"10.05", false, 10.0}, Case{"0.0999999", true, 0.2}, Case{"-0.05", true, 0.0}}) {
    SCOPED_TRACE(std::string(c.start) + (c.increasing ? " up" : " down"));
    state.position.StepKm = 0.1;
    state.position.DmiIncreasing = c.increasing;
    form.Texts6.SetText(c.start);
    state.position.KeyStation.SetText(c.start);
    run.Subjects().stepBoxes.SetFirstBoundary();
    EXPECT_NEAR(state.position.NextStepKm, c.next, 1e-9);
    EXPECT_EQ(state.position.NextStation.Default(), state.position.NextStepKm);
  }
}

TEST_F(StatesOfTheRun, TheScreenStaysOnFromTheStartToTheStop) {
  const auto& on = fakes.screen.on;
  const auto sequence = [&](std::initializer_list<int> presses) {
    std::string seen;
    for (const int key : presses) {
      Press(key);
      seen += on ? 'x' : '.';
    }
    return seen;
  };
  EXPECT_FALSE(on);
  StartFromLink(10.0);
  EXPECT_TRUE(on);
  EXPECT_EQ(fakes.shell.boxesClosed, 1) << "a box would keep the keys";
  EXPECT_EQ(sequence({'A', F3, F2, F4}), "xxx.");
  StartFromLink(10.0);
  EXPECT_EQ(sequence({F3, F4}), "x.") << "from a pause";
  StartFromLink(10.0);
  form.OnQueryUnload();
  EXPECT_FALSE(on) << "at the close box";
}

TEST_F(StatesOfTheRun, KeyFormsHideWithTheMinimisedForm) {
  form.mnuViewKeyPad.Click();
  EXPECT_TRUE(run.Subjects().keyPictures.frmKeyPad.Shown);
  form.SetWindowState(WindowStates::Minimised);
  Tick(40);
  EXPECT_FALSE(run.Subjects().keyPictures.frmKeyPad.Shown);
  fakes.shell.acts.clear();
  form.SetWindowState(WindowStates::Maximised);
  Tick(40);
  EXPECT_TRUE(run.Subjects().keyPictures.frmKeyPad.Shown);
  EXPECT_EQ(form.WindowState(), WindowStates::Maximised) << "as it was left";
  form.SetWindowState(WindowStates::Normal);
  EXPECT_EQ(form.WindowState(), WindowStates::Normal);
}

TEST_F(StatesOfTheRun, AFloatingPictureFillsItsWindowDownToASmallestSize) {
  KeyBoardForm& board = run.Subjects().keyPictures.frmKeyBoard;
  const int border = 6 * 15;
  board.Width = 6000, board.Height = 4500;
  board.OnResize();
  EXPECT_EQ(board.fxgKeyBoard.Width, 6000 - border);
  EXPECT_EQ(board.fxgKeyBoard.Height, 4500 - border);
  board.Width = 300, board.Height = 300;
  board.OnResize();
  EXPECT_EQ(board.Width, 735);
  EXPECT_EQ(board.Height, 3000);
  EXPECT_EQ(board.fxgKeyBoard.Height, 3000 - border);
}

TEST_F(StatesOfTheRun, AFloatingPictureFollowsTheSetupAndLeavesTheKeysToTheMainForm) {
  ASSERT_TRUE(vocabulary.ObsDB->Execute("UPDATE Setups SET KeyCode=" + std::to_string(keys::Pad0 + 1) +
                                        " WHERE SetupID=1 AND ObsParID=1"));
  form.cboTestSetupNames.Select(1);
  form.cboTestSetupNames.Select(0);
  auto& keypad = run.Subjects().keyPictures.frmKeyPad;
  const auto one = [&] {
    return keypad.fxgKeyPad.Text(3, 0) + form.fxgKeyPad.CellPicture(3, 0) + keypad.fxgKeyPad.CellPicture(3, 0);
  };
  form.mnuViewKeyPad.Click();
  EXPECT_EQ(one(), "1IMGNOICONIMGNOICON");
  form.cboTestSetupNames.Select(1);
  EXPECT_EQ(one(), "1");
  form.cboTestSetupNames.Select(0);
  EXPECT_EQ(one(), "1IMGNOICONIMGNOICON");
  fakes.shell.SetFocus(form.Texts7);
  keypad.fxgKeyPad.OnClick(3, 0);
  EXPECT_EQ(form.ActiveControl, &form.Grid);
  keypad.fxgKeyPad.OnDblClick();
  EXPECT_FALSE(keypad.Shown || form.mnuViewKeyPad.Checked());
  form.TabStrip1.Select(2);
  EXPECT_EQ(form.fxgKeyPad.Width, form.fxgKeyBoard.Width);
  form.fxgKeyPad.SetRow(3);
  form.fxgKeyPad.SetCol(0);
  Key(Del);
  EXPECT_EQ(one(), "1");
  EXPECT_EQ(setup.Observations(Crack).KeyCode(), -1);
  form.mnuViewSocket.Click();
  EXPECT_TRUE(socket.form.Shown);
}

TEST_F(StatesOfTheRun, APauseMarksItsRowAndASetupIsChosenInIdleAlone) {
  StartFromLink(10.0);
  EXPECT_FALSE(form.mnuSetup.Enabled());
  Press(F3);
  EXPECT_TRUE(form.Grid.SelectionMarks());
  EXPECT_EQ(form.Grid.Row(), form.Grid.FixedRows());
  Press(F2);
  EXPECT_FALSE(form.Grid.SelectionMarks());
  Press(F4);
  EXPECT_TRUE(form.mnuSetup.Enabled());
}

} // namespace trekor::tests
