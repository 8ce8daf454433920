#include "collection/RunFixture.h"

namespace trekor::tests {

class RunStates : public RunFixture {
protected:
  void SetUp() override { Load(); }
};

TEST_F(RunStates, OperatorsStartAsksForTheStationAndTellsTheLink) {
  OpenFile();
  Sent();
  StartAt(10.0);
  EXPECT_EQ(Sent(), (Texts{"SET DMI  0 1  10", "CTRL PREPARE  10", "STATUS PREPARE  10", "CTRL START  10",
                           "STATUS START  10  10 1"}));
  EXPECT_EQ(Roads(), Texts{"10.000 to 10.100"});
  EXPECT_EQ(Stations(), Texts{"10 0"});
  EXPECT_FALSE(form.Texts7.Enabled());
  EXPECT_FALSE(form.UpDnPicture.Enabled());
  EXPECT_FALSE(form.mnuFile.Enabled());
  EXPECT_FALSE(form.tbControlBar.ButtonEnabled("play"));
  EXPECT_EQ(form.Grid.Top, form.tbControlBar.Height);
}

TEST_F(RunStates, AZeroStepIsAskedForEvenWhenTheLinkStarts) {
  OpenFile();
  state.position.StepSize.SetDefault(0);
  Answer("0.5");
  Link("CTRL START");
  EXPECT_EQ(prompts.size(), 1U);
  EXPECT_EQ(Roads(), Texts{"0.000 to 0.500"});
}

TEST_F(RunStates, AStepThatIsNotPositiveLeavesTheStateIdleAndSaysNothing) {
  OpenFile();
  form.Texts7.SetText("-0.1"); // the box was never left
  Sent();
  Key(F2);
  EXPECT_EQ(State(), 0);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(Rows(), 0);
  Type(form.Texts7, "0.1"); // the guard is free again
  Answer("1");
  Key(F2);
  EXPECT_EQ(State(), 1);
}

TEST_F(RunStates, FirstBoundaryLiesOnTheStepsOfTheRoad) {
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
    run.parts().stepping.Set_FirstBoundary();
    EXPECT_NEAR(state.position.NextStepKm, c.next, 1e-9);
    EXPECT_EQ(state.position.NextStation.Default(), state.position.NextStepKm);
  }
}

TEST_F(RunStates, KeysMoveBetweenTheStates) {
  OpenFile();
  StartFromLink(10.0);
  struct Case {
    int key, state;
    Texts sent;
  };
  for (const Case& c : {Case{F2, 1, {"CTRL START", "STATUS START"}}, Case{F3, 2, {"CTRL PAUSE"}},
                        Case{F3, 2, {"CTRL PAUSE"}}, Case{F2, 1, {"CTRL START", "STATUS START"}},
                        Case{F11, 1, {"EVENT CLICK"}}, Case{Esc, 0, {"CTRL STOP  10", "STATUS STOP  10"}},
                        Case{F3, 0, {}}, Case{F4, 0, {}}, Case{F11, 0, {"EVENT CLICK"}}}) {
    Press(c.key);
    EXPECT_EQ(State(), c.state) << "key " << c.key;
    EXPECT_EQ(Sent(), c.sent) << "key " << c.key;
  }
}

TEST_F(RunStates, ToolbarGivesKeysOnlyInItsStates) {
  form.tbControlBar.ClickButton("Camera1");
  EXPECT_EQ(Sent(), Texts{"EVENT CLICK"});
  StartFromLink(1.0);
  form.tbControlBar.ClickButton("play"); // greyed: F2 would repeat the start
  form.tbControlBar.ClickButton("pause");
  Tick();
  EXPECT_EQ(State(), 2);
  form.tbControlBar.ClickButton("stop");
  Tick();
  EXPECT_EQ(State(), 0);
}

TEST_F(RunStates, AbortDoesNothingAndResumeInIdleStarts) {
  Type(form.Texts7, "0.1");
  Link("CTRL RESUME");
  EXPECT_EQ(State(), 1);
  Link("CTRL ABORT");
  Tick();
  EXPECT_EQ(State(), 1);
}

TEST_F(RunStates, StopStoresTheRowsOldestFirstAndPutsEverythingBack) {
  OpenFile();
  StartFromLink(10.0);
  Press('A');
  Dmi(10.1);
  Dmi(10.15);
  Link("GPS 5 56.123456789 10.2 30 1 7");
  Press(F4);
  EXPECT_EQ(Stations(), (Texts{"10 0", "10.1 0", "10.15 0"}));
  EXPECT_EQ(Query("SELECT Latitude FROM Stations ORDER BY StationID"), (Texts{"0", "0", "56.123456789"}));
  EXPECT_EQ(Query("SELECT ObsCode, FromID, ToID, RegData FROM Registrations WHERE ObsCode=101"), Texts{"101 1 2 1"});
  EXPECT_EQ(Query("SELECT StationMin, StationMax FROM Sessions"), Texts{"10 10.15"});
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(form.Texts8.Text(), "10.150");
  EXPECT_TRUE(form.mnuFile.Enabled());
  EXPECT_FALSE(form.Texts7.Enabled()) << "the step is fixed for the life of the session";
  EXPECT_EQ(form.Grid.Top, form.TabStrip1.Top + form.TabStrip1.Height);
  EXPECT_EQ(Bar(Crack), "BAR:0");
}

TEST_F(RunStates, ARunWithoutAFileShowsRowsAndStoresNothing) {
  Fields().GridDepth = 5;
  StartFromLink(10.0); // the new-file form was closed untouched
  EXPECT_EQ(std::count(fakes.shell.acts.begin(), fakes.shell.acts.end(), "Modal FileNewDialog2"), 1);
  for (int step = 1; step <= 8; ++step)
    Dmi(10.0 + step * 0.1);
  EXPECT_EQ(Rows(), 5);
  Press(F4);
  EXPECT_EQ(Sent(), (Texts{"CTRL STOP  10.8", "STATUS STOP  10.8"}));
  EXPECT_FALSE(state.run.DataFileOpen);
}

TEST_F(RunStates, CloseBoxInAPauseStopsAndCloses) {
  OpenFile();
  StartFromLink(10.0);
  Press('B');
  Press(F3);
  Select(1, 0);
  Sent();
  EXPECT_TRUE(form.OnQueryUnload());
  EXPECT_EQ(State(), 0);
  EXPECT_FALSE(state.run.DataFileOpen);
  EXPECT_EQ(Stations(), (Texts{"10 0", "10 1", "10 0"}));
  EXPECT_EQ(Sent().back(), "FILE CLOSE");
}

TEST_F(RunStates, NumLockIsFrozenInARunAndRestoredAfterIt) {
  form.chkNumLockFreeze.SetValue(1);
  StartFromLink(10.0);
  EXPECT_TRUE(fakes.keyboard.numLock);
  fakes.keyboard.numLock = false;
  Key(144);
  EXPECT_TRUE(fakes.keyboard.numLock);
  fakes.keyboard.numLock = false;
  form.OnActivate();
  EXPECT_TRUE(fakes.keyboard.numLock);
  Press(F4);
  Tick();
  EXPECT_FALSE(fakes.keyboard.numLock);
}

TEST_F(RunStates, KeyFormsHideWithTheMinimisedForm) {
  form.mnuViewKeyPad.Click();
  EXPECT_TRUE(run.parts().keyPictures.frmKeyPad.Shown);
  form.SetWindowState(1);
  Tick(40);
  EXPECT_FALSE(run.parts().keyPictures.frmKeyPad.Shown);
  form.SetWindowState(0);
  Tick(40);
  EXPECT_TRUE(run.parts().keyPictures.frmKeyPad.Shown);
}

} // namespace trekor::tests
