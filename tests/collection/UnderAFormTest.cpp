// What the link does while a form of the operator is up, and what the form does then.
#include "collection/RunFixture.h"

namespace trekor::tests {

class UnderAForm : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.currentFolder = Folder;
    Load();
  }
  // What happens while the new-file form is up; a form that is left untouched closes at the end.
  void WhileAsked(const std::function<void()>& story) {
    fakes.shell.scripts["FileNewDialog2"] = [story](Form&) { story(); };
    form.mnuNew.Click();
  }
};

// A box that nobody has typed in must not bring back the road of before.
TEST_F(UnderAForm, TheRoadThatTheLinkTellsIsTakenUpByTheForm) {
  Link("FACILITY NAME Ring Road");
  Link("SECTION NAME North");
  WhileAsked([this] {
    fileNew.form.Texts1.Type("South");
    Link("FACILITY NAME Road 21");
    Link("SECTION NAME West");
    Link("SECTION START Bridge");
    fileNew.form.BlinkTimer.Fire();
    EXPECT_EQ(fileNew.form.Texts0.Text(), "Road 21");
    Link("SECTION END Exit 12");
    fileNew.form.Texts2.Type("ROAD09");
    fileNew.form.OnKeyDown(keys::Enter, 0);
  });
  EXPECT_EQ(Query("SELECT FacilityName, SectionName, Start, End FROM Sessions"), Texts{"Road 21 South Bridge Exit 12"});
  WhileAsked([this] {
    EXPECT_EQ(fileNew.form.Texts0.Text() + fileNew.form.Texts1.Text(), "Road 21South") << "the next file goes on there";
  });
}

// The options are open with a change in each half, and the operator says OK as late as he can.
TEST_F(UnderAForm, TheOptionsGiveWayToARunAndLeaveAFileItsUnits) {
  enum class Then { Stays, Locks, Goes };
  const struct {
    Texts lines;
    Then then;
  } rows[] = {{{"SET UNITS US FEET", "CTRL INIT", "CTRL STOP", "DMI 3"}, Then::Stays},
              {{"FILE PATH C:\\Roads", "FILE NAME ROAD09", "FILE OPEN"}, Then::Locks},
              {{"FILE NAME ROAD10", "FILE OPEN", "FILE CLOSE"}, Then::Stays},
              {{"CTRL START"}, Then::Goes},
              {{"FILE NAME ROAD11", "FILE OPEN", "CTRL PREPARE 3", "CTRL START"}, Then::Goes}};
  Type(form.Texts7, "0.1");
  OptionsForm& asked = optionsDialog.form;
  for (const auto& row : rows) {
    state.units.UnitsUS = state.units.FileUnitsUS = false;
    fakes.shell.scripts["Options"] = [&](Form&) {
      asked.OptionUS.Click();
      asked.FileOptionUS.Click();
      for (const auto& line : row.lines)
        Link(line);
      EXPECT_EQ(asked.Shown, row.then != Then::Goes);
      EXPECT_EQ(asked.FileOptionUS.Enabled(), row.then == Then::Stays || row.lines.size() == 1);
      if (row.then == Then::Stays)
        asked.FileOptionUS.Click();
      asked.CmdOK.Click();
      asked.OnKeyDown(keys::Esc, 0);
    };
    form.mnuOptions.Click();
    EXPECT_EQ(State(), row.then == Then::Goes ? RunStates::Running : RunStates::Idle) << row.lines.back();
    EXPECT_EQ(state.units.UnitsUS, row.then != Then::Goes) << row.lines.back();
    EXPECT_EQ(state.units.FileUnitsUS, row.then == Then::Stays) << row.lines.back();
    Press(F4);
    CloseFile();
  }
}

// What is applied holds for the run, which then begins with the boxes in the new unit.
TEST_F(UnderAForm, ARunOfTheLinkHasTheOptionsThatWereApplied) {
  Type(form.Texts7, "0.1");
  OpenFile();
  fakes.shell.scripts["Options"] = [this](Form&) {
    optionsDialog.form.Combos0.Select(units::Metre);
    optionsDialog.form.CmdApply.Click();
    optionsDialog.form.Combos0.Select(units::Mile);
    Link("CTRL PREPARE 5");
    Link("CTRL START");
    Sent();
  };
  form.mnuOptions.Click();
  EXPECT_EQ(State(), RunStates::Running);
  EXPECT_EQ(state.position.StepKm, 0.1);
  EXPECT_EQ(form.Texts7.Text() + form.StationUnitLabel.Caption(), "100.0meters");
  EXPECT_EQ(Sent().front(), "SET UNITS SI M DEG");
}

} // namespace trekor::tests
