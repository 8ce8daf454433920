#include "collection/RunFixture.h"

namespace trekor::tests {

class CollectionGrid : public RunFixture {
protected:
  void SetUp() override { Load(); }
  void Drive(double from, int steps) {
    for (int i = 1; i <= steps; ++i)
      Dmi(from + i * 0.1);
  }
};

TEST_F(CollectionGrid, HeaderShowsKeyBarIconAndName) {
  EXPECT_EQ(form.Grid.Cols(), setup.ObsCount() + 1);
  EXPECT_EQ(form.Grid.Text(Grids::NameRow, 0), "Stations");
  EXPECT_EQ(form.Grid.Text(Grids::KeyRow, Crack), "A");
  EXPECT_EQ(form.Grid.Text(Grids::KeyRow, Sign), "[ ]");
  EXPECT_EQ(form.Grid.CellPicture(Grids::IconRow, Crack), "IMGNOICON");
  EXPECT_EQ(form.Grid.Text(Grids::NameRow, Rut), "I5");
  EXPECT_EQ(Bar(Edge), "BAR:11");
}

TEST_F(CollectionGrid, HeaderOfAKeylessColumnSaysSoFromTheNextChoiceOn) {
  form.TabStrip1.Select(1);
  form.fxgKeyBoard.SetRow(3);
  form.fxgKeyBoard.SetCol(3); // the letter A
  Key(46);                    // Delete
  EXPECT_EQ(form.Grid.Text(Grids::KeyRow, Crack), "");
  form.cboTestSetupNames.Select(1);
  form.cboTestSetupNames.Select(0);
  EXPECT_EQ(form.Grid.Text(Grids::KeyRow, Crack), "[ ]");
}

TEST_F(CollectionGrid, AStepRowCarriesWhatLivesOnAndClearsWhatDoesNot) {
  StartFromLink(10.0);
  Answer("gravel");
  for (int key : {int('A'), int('C'), int('D'), int('I'), Space})
    Press(key);
  Dmi(10.1);
  EXPECT_EQ(Cell(0, Crack), "");
  EXPECT_EQ(Bar(Crack), "BAR:0");
  EXPECT_EQ(Cell(0, Patch), "1");
  EXPECT_EQ(Cell(0, Edge), "1");
  EXPECT_EQ(Cell(0, Surface), "gravel");
  EXPECT_EQ(Cell(0, Sign), "1") << "a negative mode is kept";
  EXPECT_EQ(Cell(0, Depth), "") << "nothing to carry";
  Press(F4);
  StartFromLink(20.0);
  EXPECT_EQ(Cell(0, Patch), "") << "of another run";
  EXPECT_EQ(Cell(0, Edge), "");
}

TEST_F(CollectionGrid, TheRowBeyondTheDepthGoesToTheFile) {
  Type(form.txtGridDepth, "3");
  EXPECT_EQ(form.txtGridDepth.Text(), "5");
  OpenFile();
  StartFromLink(10.0);
  Link("GPS 11.25 56.5 10.5 30.5 2 8");
  Drive(10.0, 4);
  EXPECT_EQ(Stations(), Texts{"10 0"});
  Press('B'); // events push the steps out faster
  EXPECT_EQ(Rows(), 5);
  EXPECT_EQ(Stations(), (Texts{"10 0", "10.1 0"}));
  EXPECT_EQ(
      Query("SELECT GPSTime, Latitude, Longitude, Height, GPSStatus, GPSSVs, Time FROM Stations WHERE StationID=2"),
      Texts{"11.25 56.5 10.5 30.5 2 8 2024-05-06 07:08:09"});
  ExpectAligned();
}

TEST_F(CollectionGrid, DepthIsBroughtToItsLimits) {
  for (const auto& [typed, shown] : {std::pair{"500", "100"}, {"2", "5"}, {"", "5"}, {"12", "12"}}) {
    Type(form.txtGridDepth, typed);
    EXPECT_EQ(form.txtGridDepth.Text(), shown);
    EXPECT_EQ(std::to_string(Fields().GridDepth), shown);
  }
}

TEST_F(CollectionGrid, SelectedRowGivesItsValuesBack) {
  StartFromLink(10.0);
  Press('A');
  Press('A');
  Answer("clay");
  Press('I');
  Dmi(10.1);
  Answer("sand");
  Press('I');
  Press(F3);
  EXPECT_EQ(form.Grid.Col(), 0);
  EXPECT_EQ(form.Grid.ColSel(), setup.ObsCount());
  Select(1, Crack);
  EXPECT_EQ(setup.Observations(Crack).DefaultText(), "2");
  EXPECT_EQ(setup.Observations(Surface).DefaultText(), "clay");
  Press('A');
  EXPECT_EQ(Cell(1, Crack), "3");
  Press(F2); // the top row's values travel on
  EXPECT_EQ(setup.Observations(Surface).DefaultText(), "sand");
  EXPECT_EQ(setup.Observations(Crack).DefaultText(), "0");
}

TEST_F(CollectionGrid, AValueChangedInAPauseTravelsOnFromTheTopRow) {
  StartFromLink(10.0);
  Press(F3);
  Press('D');
  Press(F2);
  Dmi(10.1);
  EXPECT_EQ(Cell(0, Edge), "1");
}

TEST_F(CollectionGrid, EventRowsAreEditedInTheirOwnCell) {
  StartFromLink(10.0);
  Answer("120");
  Press('G');
  Answer("first");
  Press('H');
  Press(F3);
  prompts.clear();
  Select(2, Crack);
  EXPECT_TRUE(prompts.empty()) << "not the observation's column";
  Answer("80,6");
  Select(2, Area);
  EXPECT_EQ(Cell(2, Area), "81");
  Answer("second");
  Select(1, 4);
  EXPECT_EQ(Cell(1, 2), "second");
  EXPECT_EQ(Cell(1, setup.ObsCount()), "second");
  Answer("");
  Select(2, Area);
  EXPECT_EQ(Roads(), (Texts{"10.000 to 10.100", "10.000"})) << "an emptied prompt removes the row";
  ExpectAligned();
}

TEST_F(CollectionGrid, ATextEventOfASingleItemLeavesAStationOnly) {
  form.cboTestSetupNames.Select(1); // "Short"
  OpenFile();
  StartFromLink(10.0);
  Answer("alone");
  Press('A');
  Press(F4);
  EXPECT_EQ(Stations(), (Texts{"10 0", "10 1", "10 0"}));
  EXPECT_EQ(Query("SELECT FromID, ToID, RegData FROM Registrations"), Texts{"1 3 alone"}) << "the span alone";
}

TEST_F(CollectionGrid, AMillionthOfADegreeReachesTheFileWhole) {
  OpenFile();
  StartFromLink(10.0);
  Link("GPS 1 56.12345678901234 -10.98765432109876 3.25");
  Press(F4);
  const auto row = files.database->OpenQuery("SELECT * FROM Stations WHERE StationID=2");
  EXPECT_EQ(row->Get("Latitude").Number(), 56.12345678901234);
  EXPECT_EQ(row->Get("Longitude").Number(), -10.98765432109876);
}

} // namespace trekor::tests
