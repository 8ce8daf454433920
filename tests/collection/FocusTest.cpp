// The focus wanders: lists are locked, windows come and go. What a box sends is what was typed into it, in idle.
#include "collection/RunFixture.h"

#include <utility>

namespace trekor::tests {

class Focus : public RunFixture {
protected:
  void SetUp() override { Load(); }
  void Enter(Control& control) { fakes.shell.SetFocus(control); }
};

TEST_F(Focus, AStartAtSpeedLeavesTheCountAloneWhereverTheFocusWas) {
  EXPECT_EQ(form.ActiveControl, &form.cboTestSetupNames);
  for (Control* box : {static_cast<Control*>(nullptr), static_cast<Control*>(&form.Texts6),
                       static_cast<Control*>(&form.Texts7), static_cast<Control*>(&form.Texts8),
                       static_cast<Control*>(&form.txtGridDepth), static_cast<Control*>(&form.chkNumLockFreeze)}) {
    SCOPED_TRACE(box ? box->FullName() : "the list that the file locks");
    if (!box)
      Enter(form.cboTestSetupNames);
    OpenFile(box ? "ROAD" + box->Name() + std::to_string(box->Index()) : "ROAD");
    EXPECT_EQ(form.ActiveControl, &form.Grid);
    if (box)
      Enter(*box);
    Link("CTRL PREPARE 10");
    Dmi(10.025);
    Sent();
    Link("CTRL START");
    EXPECT_EQ(Sent(), Texts{"ACK Trekor CTRL START"});
    Enter(form.Texts6); // a click in the middle of the run, and back
    Enter(form.Grid);
    Dmi(10.1);
    Press(F3);
    Enter(form.Texts6);
    Enter(form.txtGridDepth);
    Enter(form.Grid);
    Press(F4);
    EXPECT_EQ(Sent(), (Texts{"CTRL PAUSE", "CTRL STOP  10.1", "STATUS STOP  10.1"}));
    EXPECT_EQ(Stations(), (Texts{"10 0", "10.1 0", "10.1 0"}));
    CloseFile();
  }
}

TEST_F(Focus, ABoxThatIsLeftSendsWhatWasTypedAndNothingElse) {
  Enter(form.Texts6);
  EXPECT_EQ(form.Texts6.SelLength, 1) << "the first key takes the place of the 0";
  Enter(form.txtGridDepth); // a look around
  Enter(form.Texts8);
  EXPECT_TRUE(Sent().empty());
  state.position.DmiStation.SetDefault(3);
  Type(form.Texts6, "12.5");
  EXPECT_EQ(Sent(), Texts{"SET DMI  0 1  12.5"});
  Enter(form.Texts6); // has been sent
  Enter(form.Grid);
  EXPECT_TRUE(Sent().empty());
  Enter(form.Texts6);
  form.Texts6.Type("1");
  Link("CTRL PREPARE 40"); // takes the place of what was typed
  Enter(form.Grid);
  EXPECT_EQ(Sent(), Texts{"ACK Trekor CTRL PREPARE"});
  Enter(form.Texts6);
  form.Texts6.Type("7");
  form.TabStrip1.Select(1); // the tab with the box goes, and the focus with it
  EXPECT_EQ(form.ActiveControl, &form.Grid);
  EXPECT_EQ(Sent(), Texts{"SET DMI  0 1  7"});
}

TEST_F(Focus, AStartTakesTheBoxesAsTheyStandAndTheOperatorsCountIsTheOneOfHisAnswer) {
  OpenFile();
  Enter(form.txtGridDepth);
  form.txtGridDepth.Type("3"); // 5 is the least
  Enter(form.Texts7);
  form.Texts7.Type("0.2");
  Enter(form.Texts6);
  form.Texts6.Type("12");
  Sent();
  Answer("11");
  Key(F2); // none of the last two boxes was left
  EXPECT_EQ(form.ActiveControl, &form.Grid);
  EXPECT_EQ(Sent(), (Texts{"SET DMI  0 1  11", "CTRL PREPARE  11", "STATUS PREPARE  11", "CTRL START  11",
                           "STATUS START  11  11 1"}));
  EXPECT_EQ(Roads(), Texts{"11.000 to 11.200"});
  EXPECT_EQ(run.Subjects().runGrid.rows.Depth(), 5);
  Press(F4);
  Enter(form.txtGridDepth);
  form.txtGridDepth.Type("7");
  Answer("20");
  Key(F2);
  EXPECT_EQ(run.Subjects().runGrid.rows.Depth(), 7);
}

TEST_F(Focus, TheBufferComesDownToItsDepthWhateverHappenedToTheDepth) {
  OpenFile();
  run.Subjects().runGrid.rows.SetDepth(9);
  StartFromLink(10.0);
  for (int step = 1; step <= 8; ++step)
    Dmi(10.0 + step * 0.1);
  EXPECT_EQ(Rows(), 9);
  run.Subjects().runGrid.rows.SetDepth(5);
  Dmi(10.9);
  EXPECT_EQ(Rows(), 5);
  EXPECT_EQ(Stations().size(), 6U);
  Dmi(11.0);
  EXPECT_EQ(Rows(), 5);
}

TEST_F(Focus, InARunTheKeysOfEveryWindowAreTheRuns) {
  Form& keypad = run.Subjects().keyPictures.frmKeyPad;
  form.mnuViewKeyPad.Click();
  EXPECT_FALSE(form.OnKeyElsewhere(F2, 0)) << "in idle a window has its own keys";
  OpenFile();
  StartFromLink(10.0);
  EXPECT_TRUE(form.OnKeyElsewhere('A', 0));
  EXPECT_TRUE(form.OnKeyElsewhere(F3, 0));
  Tick(2);
  EXPECT_EQ(Cell(0, Crack), "1");
  EXPECT_EQ(State(), RunStates::Paused);
  EXPECT_TRUE(form.OnKeyElsewhere(F4, 0)); // would put the keypad away
  Tick();
  EXPECT_EQ(State(), RunStates::Idle);
  EXPECT_TRUE(keypad.Shown);
  // In idle its keys go to the shared ones first.
  state.run.UserLevel = levels::Administrator;
  keypad.ActiveControl = keypad.Controls().front();
  EXPECT_TRUE(keypad.OnKeyDown('D', 3));
  EXPECT_FALSE(keypad.Controls().front()->Enabled());
  EXPECT_TRUE(keypad.OnKeyDown(F4, 0));
  EXPECT_FALSE(keypad.Shown);
}

TEST_F(Focus, NumLockIsLockedAgainAtItsReleaseAndGivenBackByEveryWayOut) {
  form.chkNumLockFreeze.SetValue(0);
  StartFromLink(10.0);
  form.OnActivate();
  Press(F4);
  EXPECT_EQ(fakes.keyboard.presses, 0) << "nobody has asked for it";
  form.chkNumLockFreeze.SetValue(1);
  auto& lock = fakes.keyboard.numLock;
  StartFromLink(10.0);
  ASSERT_TRUE(lock);
  for (const std::function<void()>& again : {std::function([this] { Key(keys::NumLock); }),
                                             {[this] { form.OnKeyUp(keys::NumLock); }},
                                             {[this] { form.OnActivate(); }}}) {
    lock = false;
    again();
    EXPECT_TRUE(lock) << "key, release or another window has unlocked it";
  }
  Press(F4);
  Tick();
  EXPECT_FALSE(lock);
  form.OnKeyUp(keys::NumLock);
  EXPECT_FALSE(lock) << "nothing is frozen in idle";
  state.position.StepSize.SetDefault(0);
  Answer("0"); // no run with such a step: the prompt has frozen the key for nothing
  Key(F2);
  EXPECT_EQ(State(), RunStates::Idle);
  EXPECT_FALSE(lock);
  lock = true;
  fakes.shell.scripts["FileNewDialog2"] = [this](Form&) { Link("CTRL EXIT"); };
  Key(F2);
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(lock) << "as it was when the program went";
}

TEST_F(Focus, NothingIsTypedTurnedOrUnlockedWhileAStartWaits) {
  form.chkNumLockFreeze.SetValue(1);
  OpenFile();
  Enter(form.Texts7); // keeps the focus behind the prompt for the station
  int waits = 0;
  fakes.pump.AtPump(500, [&] {
    ++waits;
    EXPECT_TRUE(form.OnKeyPress(U'1'));
    form.UpDnPicture.Click();
    Key(keys::Down, 1);
    fakes.keyboard.numLock = false;
    form.OnKeyUp(keys::NumLock);
  });
  StartAt(5.0);
  EXPECT_EQ(waits, 1);
  EXPECT_EQ(Sent().back(), "STATUS START  5  5 1");
  EXPECT_TRUE(state.position.DmiIncreasing);
  EXPECT_TRUE(fakes.keyboard.numLock);
  Press(F4);
  EXPECT_FALSE(fakes.keyboard.numLock);
  EXPECT_FALSE(form.OnKeyPress(U'1'));
}

TEST_F(Focus, APromptGivesWhatWasTypedAtEnterAndTabAloneElseWhatItAskedWith) {
  using keys::Enter, keys::Tab;
  constexpr int closeBox = 0;
  for (const int key : {Enter, Tab, Esc, F4, closeBox}) {
    SCOPED_TRACE(key);
    const std::string old = "old " + std::to_string(key);
    setup.Observations(Note).SetDefault(old);
    fakes.shell.scripts["TextPrompt"] = [key](Form& prompt) {
      auto& box = dynamic_cast<PromptForm&>(prompt).txtBox;
      EXPECT_EQ(prompt.ActiveControl, &box);
      box.Type(std::string(300, 'x'));
      key == closeBox ? prompt.OnQueryUnload() : prompt.OnKeyDown(key, 0);
      EXPECT_FALSE(prompt.Shown);
    };
    const bool takes = key == Enter || key == Tab; // as many characters as a field of the file holds
    EXPECT_EQ(run.Subjects().asking.Ask_Text(Note), takes ? std::string(255, 'x') : old);
  }
}

// What an operator must know to answer stands below the box.
TEST_F(Focus, APromptTellsWhatForInWhichLimitsAndWhere) {
  Texts remarks;
  for (const char* name : {"NumericPrompt", "TextPrompt"})
    fakes.shell.scripts[name] = [&](Form& prompt) {
      EXPECT_EQ(prompt.InSight, &form.Grid);
      remarks.push_back(prompt.Remark());
    };
  state.position.KeyStation.SetDefault(12.3);
  setup.Observations(Depth).SetDispText("cm");
  auto& asking = run.Subjects().asking;
  asking.Ask_Number(Depth);
  asking.Ask_Number(Area);
  state.units.StationUnit = units::Metre;
  asking.Ask_Text(Note);
  asking.Ask_EventStation(Hole);
  run.Subjects().stepBoxes.EnterHugeNumber(7);
  const std::string gap = "  \u00B7  ";
  EXPECT_EQ(remarks, (Texts{"Item 6" + gap + "0 to 100 cm" + gap + "at 12.300 km",
                            "Item 7" + gap + "0 to 500" + gap + "at 12.300 km",
                            "Item 8" + gap + "255 characters at most" + gap + "at 12300.0 meters",
                            "Item 2" + gap + "Station in meters" + gap + "the row is at 12300.0", "Step in meters"}));
}

TEST_F(Focus, ARefusedNameIsSpokenAndTheFormKeepsItsPlace) {
  fakes.drives.Write(state.folders.AudioTonesPath + "401.WAV", "spoken");
  fakes.drives.currentFolder = Folder;
  fakes.drives.Write("C:\\Roads\\ROAD01.mdb", "there");
  const auto refuse = [](Form& asking) {
    asking.Move(300, 450, 12600, 8100);
    dynamic_cast<FileNewForm&>(asking).Texts2.Type("ROAD01");
    asking.OnKeyDown(keys::Enter, 0);
    EXPECT_TRUE(asking.Shown);
    asking.OnKeyDown(Esc, 0);
  };
  fakes.shell.scripts["FileNewDialog2"] = refuse;
  Sounds();
  form.mnuNew.Click();
  EXPECT_EQ(Sounds(), Texts{"401.WAV"});
  const auto& acts = fakes.shell.acts;
  EXPECT_EQ(std::count(acts.begin(), acts.end(), "Modal Message"), 0);
  run.UnloadForms();
  std::string folder;
  FileNewDialog2 next{{state, fakes.platform, texts, messages, folder}, sections}; // of the next start
  fakes.shell.scripts["FileNewDialog2"] = [](Form& asking) {
    EXPECT_EQ(asking.Left, 300);
    EXPECT_EQ(asking.Width, 12600);
    EXPECT_EQ(asking.Height, 8100);
  };
  next.ShowDialog();
  EXPECT_EQ(next.form.FullPathLabel.Caption(), Folder);
}

} // namespace trekor::tests
