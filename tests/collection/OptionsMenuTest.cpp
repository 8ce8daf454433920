// What a change of the options does to the main form and the link.
#include "collection/RunFixture.h"

namespace trekor::tests {

class OptionsMenuStories : public RunFixture {
protected:
  void SetUp() override { Load(); }
  void Change(const std::function<void(OptionsForm&)>& acts) {
    fakes.shell.scripts["Options"] = [this, acts](Form&) { acts(optionsDialog.form); };
    form.mnuOptions.Click();
  }
  // Station, step and previous with their unit.
  std::string Boxes() const {
    return form.Texts6.Text() + " " + form.Texts7.Text() + " " + form.Texts8.Text() + " " +
           form.StationUnitLabel.Caption();
  }
  int Forms() const {
    return static_cast<int>(std::count(fakes.shell.acts.begin(), fakes.shell.acts.end(), "Modal Options"));
  }
  static void ToMetres(OptionsForm& asked) { asked.Combos0.Select(units::Metre); }
};

TEST_F(OptionsMenuStories, NewUnitsAreShownAndToldAtOnce) {
  Type(form.Texts6, "12.3");
  Type(form.Texts7, "0.1");
  form.Texts8.SetText("12");
  Sent();
  const Texts news = {"SET UNITS US M DEG", "FILE UNITS SI KM"};
  Change([](OptionsForm& asked) {
    asked.OptionUS.Click();
    ToMetres(asked);
    asked.CmdOK.Click();
  });
  EXPECT_EQ(Boxes(), "12300.0 100.0 12000.0 meters");
  EXPECT_EQ(Sent(), (Texts{news[0], news[1], news[0], news[1]}));
  Change([](OptionsForm& asked) { asked.CmdOK.Click(); });
  EXPECT_EQ(Sent(), Texts{}) << "nothing has changed";
  Change([](OptionsForm& asked) {
    asked.Combos0.Select(units::Km);
    asked.CmdApply.Click();
    asked.CmdCancel.Click();
  });
  EXPECT_EQ(Boxes(), "12300.0 100.0 12000.0 meters") << "a cancel leaves what was applied before untold";
  EXPECT_EQ(Sent(), Texts{});
}

// The start reads the boxes, so they are in the new unit before the news is sent, which takes its time.
TEST_F(OptionsMenuStories, AStartInTheMiddleOfTheNewsFindsTheNewUnits) {
  Type(form.Texts7, "0.1");
  OpenFile();
  fakes.pump.AtPump(50, [this] {
    Link("CTRL PREPARE 5");
    Link("CTRL START");
  });
  Change([](OptionsForm& asked) {
    ToMetres(asked);
    asked.CmdOK.Click();
  });
  EXPECT_EQ(State(), RunStates::Running);
  EXPECT_EQ(state.position.StepKm, 0.1);
  EXPECT_EQ(state.position.KeyStation.Default(), 5);
}

TEST_F(OptionsMenuStories, AStationThatIsPreparedUnderTheFormIsShownInItsUnit) {
  Type(form.Texts6, "1");
  Change([this](OptionsForm& asked) {
    ToMetres(asked);
    Link("CTRL PREPARE 7");
    asked.CmdOK.Click();
  });
  EXPECT_EQ(form.Texts6.Text(), "7000.0");
  Change([this](OptionsForm& asked) {
    asked.Combos0.Select(units::Km);
    asked.CmdApply.Click();
    Link("CTRL PREPARE 8");
    asked.CmdOK.Click();
  });
  EXPECT_EQ(form.Texts6.Text(), "8.000");
  Type(form.Texts6, "5");
  Change([this](OptionsForm& asked) {
    asked.Combos0.Select(units::Mile);
    asked.CmdApply.Click();
    Link("CTRL PREPARE 8.04672"); // 5 miles
    Link("FILE UNITS SI FEET");
    EXPECT_EQ(asked.Combos1.ListIndex(), units::Feet);
    asked.CmdOK.Click();
  });
  EXPECT_EQ(form.Texts6.Text(), "5.000");
}

TEST_F(OptionsMenuStories, OpensOnlyInIdle) {
  const auto refused = [this] {
    const int before = Forms();
    form.mnuSetup.SetEnabled(true); // as if the click had been on its way
    form.mnuOptions.Click();
    EXPECT_EQ(Forms(), before);
  };
  fakes.shell.scripts["FileNewDialog2"] = [&](Form&) { refused(); };
  form.mnuNew.Click();
  OpenFile();
  fakes.pump.AtPump(500, refused); // while the start is announced
  StartAt(5.0);
  refused();
  Press(F3);
  refused();
  Press(F4);
  fakes.shell.scripts["Options"] = [this](Form&) { Link("CTRL EXIT"); };
  form.mnuOptions.Click();
  EXPECT_EQ(unloads, 1);
  refused();
}

} // namespace trekor::tests
