#include "collection/RunFixture.h"

namespace trekor::tests {

class CollectionGrid : public RunFixture {
protected:
  void SetUp() override { Load(); }
};

TEST_F(CollectionGrid, HeaderShowsKeyBarIconAndName) {
  EXPECT_EQ(form.Grid.Cols(), setup.ObsCount() + 1);
  EXPECT_EQ(form.Grid.Text(RunGrid::NameRow, 0), "Stations");
  EXPECT_EQ(form.Grid.Text(RunGrid::KeyRow, Crack), "A");
  EXPECT_EQ(form.Grid.Text(RunGrid::KeyRow, Sign), "[ ]");
  EXPECT_EQ(form.Grid.CellPicture(RunGrid::IconRow, Crack), "IMGNOICON");
  EXPECT_EQ(form.Grid.Text(RunGrid::NameRow, Rut), "I5");
  EXPECT_EQ(Bar(Edge), "BAR:11");
  EXPECT_GT(form.Grid.ColWidth(0), form.Grid.ColWidth(Sign)) << "stretches of road are long texts";
  EXPECT_EQ(form.StationUnitLabel.Caption(), "km");
}

TEST_F(CollectionGrid, AStepRowCarriesWhatHasANegativeMode) {
  OpenFile();
  StartFromLink(10.0);
  Dmi(10.1);
  Press(Space);
  Dmi(10.2);
  EXPECT_EQ(Cell(0, Sign), "1");
  Press(F4);
  EXPECT_EQ(Query("SELECT DISTINCT RegData FROM Registrations WHERE ObsCode=111 ORDER BY RegData"), (Texts{"", "1"}))
      << "and its blank cells are stored too";
}

TEST_F(CollectionGrid, DepthIsBroughtToItsLimits) {
  for (const auto& [typed, shown] : {std::pair{"500", "100"}, {"2", "5"}, {"", "5"}, {"12", "12"}}) {
    Type(form.txtGridDepth, typed);
    EXPECT_EQ(form.txtGridDepth.Text(), shown);
    EXPECT_EQ(std::to_string(run.Subjects().runGrid.rows.Depth()), shown);
  }
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
  Link("GPS 1 56.12345678901234 -10.98765432109876 3.25");
  StartFromLink(10.0);
  Press(F4);
  const auto row = files.database->OpenTable("Stations");
  for (; !row->Eof(); row->MoveNext()) { // of the start and of the stop
    EXPECT_EQ(row->Get("Latitude").Number(), 56.12345678901234);
    EXPECT_EQ(row->Get("Longitude").Number(), -10.98765432109876);
  }
}

} // namespace trekor::tests
