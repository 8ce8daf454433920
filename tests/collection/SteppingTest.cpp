#include "collection/RunFixture.h"

#include <map>

namespace trekor::tests {

class RoadSteps : public RunFixture {
protected:
  void SetUp() override { Load(); }
};

TEST_F(RoadSteps, StepTextsBecomeKilometresByTheShortFactor) {
  struct Case {
    int unit;
    const char* text;
    double km;
  };
  for (const Case& c :
       {Case{0, " 0,1 ", 0.1}, Case{0, "", 0}, Case{1, "250", 0.25}, Case{2, "1", 1 / 0.6213712},
        Case{3, "-1.2640", -(1 / 0.6213712 + 2640.0 / 5280 / 0.6213712)}, Case{4, "5280", 1 / 0.6213712},
        Case{5, "1760", 1 / 0.6213712}, Case{6, "100", 0}, Case{8, "1", 0}}) {
    state.units.StationUnit = c.unit;
    EXPECT_NEAR(run.Subjects().stepBoxes.StationTextToKm(c.text), c.km, 1e-9) << c.unit << " " << c.text;
  }
}

TEST_F(RoadSteps, BoxesAreCheckedWhenTheyAreLeft) {
  struct Case {
    const char *typed, *shown;
    double km;
  };
  for (const Case& c : {Case{"-0.1", "0.100", 0.1}, Case{"0", "0.001", 0.001}, Case{"", "0.001", 0.001},
                        Case{"0,25", "0.250", 0.25}, Case{"20000", "10000.000", 10000}}) {
    Type(form.Texts7, c.typed);
    EXPECT_EQ(form.Texts7.Text(), c.shown) << c.typed;
    EXPECT_DOUBLE_EQ(state.position.StepSize.Default(), c.km) << c.typed;
  }
  Type(form.Texts6, "12.5");
  EXPECT_DOUBLE_EQ(state.position.DmiStation.Default(), 12.5);
  EXPECT_EQ(Sent(), Texts{"SET DMI  0 1  12.5"});
}

TEST_F(RoadSteps, ADoubleClickOnABoxSendsAltAndThenDown) {
  for (TextBox* box : {&form.Texts6, &form.Texts7, &form.Texts8}) {
    const bool enabled = box->Enabled();
    box->SetEnabled(true);
    box->DblClick();
    box->SetEnabled(enabled);
    EXPECT_EQ(fakes.keyboard.TakeKeys(), "+18 -18 +40 -40") << box->Name();
  }
}

TEST_F(RoadSteps, DirectionTurnsByPictureAndKeysUntilAFileFixesIt) {
  using keys::Down, keys::Up;
  constexpr int shift = 1;
  Key(Up, shift); // increasing already
  EXPECT_TRUE(state.position.DmiIncreasing);
  Key(Down); // no modifier
  EXPECT_TRUE(state.position.DmiIncreasing);
  Key(Down, shift);
  EXPECT_FALSE(state.position.DmiIncreasing);
  EXPECT_EQ(form.DmiDirLabel.Caption() + form.UpDnPicture.Picture(), "0DNICON");
  Key(Up, shift);
  EXPECT_EQ(Sent(), (Texts{"SET DMI  0 -1  0", "SET DMI  0 1  0"}));
  OpenFile();
  StartFromLink(1.0);
  Press(F4);
  Key(Down, shift);
  EXPECT_TRUE(state.position.DmiIncreasing) << "fixed for the life of the session";
  CloseFile();
  Key(Down, shift);
  EXPECT_FALSE(state.position.DmiIncreasing);
}

TEST_F(RoadSteps, StepBarFollowsThePositionEvery400MillisecondsInBothDirections) {
  for (const int way : {1, -1}) {
    SCOPED_TRACE(way > 0 ? "up" : "down");
    Link(way > 0 ? "SET DMI 0 I 10" : "SET DMI 0 D 10");
    StartFromLink(10.0);
    Tick(17);
    EXPECT_EQ(Bar(0), "BAR:0");
    Dmi(10 + way * 0.03);
    Tick(17);
    EXPECT_EQ(Bar(0), "BAR:3");
    Dmi(10 + way * 0.35); // one boundary crossed, far ahead of the row
    Tick(17);
    EXPECT_EQ(run.Subjects().gridValues.Bar(0), 100);
    Press(F4);
  }
}

TEST_F(RoadSteps, SimulationFollowsTheDirection) {
  state.run.Simulator = true;
  state.position.DmiStation.SetDefault(1);
  Tick(33);
  EXPECT_NEAR(state.position.DmiStation.Default(), 1.001, 1e-9);
  form.UpDnPicture.Click();
  Tick(66);
  EXPECT_NEAR(state.position.DmiStation.Default(), 0.999, 1e-9);
  StartFromLink(5.0);
  Tick(66);
  EXPECT_EQ(state.position.DmiStation.Default(), 5) << "a vehicle tells its own";
  state.run.DmiReceived = false;
  Press(F3);
  Tick(66);
  EXPECT_EQ(state.position.DmiStation.Default(), 5) << "a pause stands";
}

TEST_F(RoadSteps, StartStationPromptSetsTheCountUnlessItIsEmptied) {
  Answer("3,5");
  run.Subjects().stepBoxes.EnterHugeNumber(6);
  EXPECT_EQ(form.Texts6.Text(), "3.500");
  EXPECT_DOUBLE_EQ(state.position.DmiStation.Default(), 3.5);
  EXPECT_EQ(Sent().size(), 1U);
  Answer("");
  run.Subjects().stepBoxes.EnterHugeNumber(6);
  EXPECT_EQ(form.Texts6.Text(), "3.500");
  EXPECT_TRUE(Sent().empty());
  state.position.DmiStation.SetDefault(9);
  Answer("<esc>"); // answers with the old text, which is applied
  run.Subjects().stepBoxes.EnterHugeNumber(6);
  EXPECT_DOUBLE_EQ(state.position.DmiStation.Default(), 3.5);
  EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(RoadSteps, DanishKeysGiveTheirLettersInABoxWhateverTheLayout) {
  state.command.Language = "Danish";
  for (const auto& [key, letter] : std::map<int, char32_t>{
           {keys::Backquote, U'\u00C6'}, {keys::Quote, U'\u00D8'}, {keys::CloseBracket, U'\u00C5'}, {'1', U'1'}}) {
    form.Texts6.OnKeyDown(key, 0);
    EXPECT_EQ(form.Texts6.OnKeyPress(U'1'), letter) << key;
  }
  form.Texts6.OnKeyDown(keys::Quote, 0); // with Ctrl: no character follows
  form.Texts6.OnKeyDown('1', 0);
  EXPECT_EQ(form.Texts6.OnKeyPress(U'1'), U'1');
}

// F2 with the cursor still in the box: it is not left, so nothing has looked at what is in it.
TEST_F(RunFixture, AnEmptyStationBoxStartsAtZero) {
  Load();
  OpenFile();
  Type(form.Texts7, "0.1");
  fakes.shell.SetFocus(form.Texts6);
  form.Texts6.Type("");
  Answer("");
  Key(F2);
  EXPECT_EQ(Roads(), Texts{"0.000 to 0.100"});
  EXPECT_EQ(Stations(), Texts{"0 0"});
}

} // namespace trekor::tests
