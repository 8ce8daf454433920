#include "forms/Grid.h"
#include "forms/Form.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

class GridTest : public testing::Test, private ControlListener {
protected:
  GridTest() {
    grid.SetCols(3);
    grid.SetRows(4);
    grid.SetFixedRows(4);
    grid.TakeChanges();
    grid.SetListener(this);
  }
  void ControlChanged(Control&, Change) override { ++told; }
  std::string Column(int c) const {
    std::string all;
    for (int r = 0; r < grid.Rows(); ++r)
      all += grid.Text(r, c) + "|";
    return all;
  }
  Form form{"Trial"};
  Grid grid{form, "Grid"};
  int told = 0;
};

TEST_F(GridTest, NewestRowsComeUnderTheFixedOnes) {
  grid.SetText(3, 0, "Stations");
  for (const char* row : {"a", "b", "c"})
    grid.AddItem(row, 4);
  EXPECT_EQ(Column(0), "|||Stations|c|b|a|");
  grid.RemoveItem(grid.Rows() - 1);
  EXPECT_EQ(Column(0), "|||Stations|c|b|");
  grid.ClearToFixedRows();
  EXPECT_EQ(Column(0), "|||Stations|");
}

TEST_F(GridTest, RowsAndCellsThatDoNotExistAreSkipped) {
  grid.AddItem("x", 5);
  grid.AddItem("x", -1);
  grid.RemoveItem(4);
  grid.SetText(4, 0, "x");
  grid.SetText(0, 3, "x");
  grid.SetCellPicture(-1, 0, "BAR:1");
  grid.SetRow(4);
  grid.SetCol(-1);
  grid.SetColWidth(3, 100);
  grid.SetMergeRow(9, true);
  EXPECT_EQ(grid.Rows(), 4);
  EXPECT_EQ(grid.Text(4, 0), "");
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_EQ(told, 0);
}

TEST_F(GridTest, TheCurrentCellKeepsItsNumbersAndStaysInside) {
  grid.AddItem("a", 4);
  grid.AddItem("b", 4);
  grid.SetRow(5);
  grid.SetCol(2);
  grid.AddItem("c", 4);
  EXPECT_EQ(grid.Row(), 5);
  grid.RemoveItem(6);
  EXPECT_EQ(grid.Row(), 5);
  grid.RemoveItem(4);
  EXPECT_EQ(grid.Row(), 4);
  grid.SetRows(3);
  EXPECT_EQ(grid.Row(), 2);
  grid.SetCols(1);
  EXPECT_EQ(grid.Col(), 0);
}

TEST_F(GridTest, WhatIsDoneWithoutRedrawIsToldOnce) {
  grid.SetRedraw(false);
  grid.AddItem("10.0 to 10.1", 4);
  grid.SetText(4, 1, "2");
  grid.SetRow(4);
  EXPECT_EQ(told, 0);
  grid.SetRedraw(true);
  grid.SetRedraw(true);
  EXPECT_EQ(told, 1);
  const auto changes = grid.TakeChanges();
  EXPECT_FALSE(changes.all);
  EXPECT_TRUE(changes.selection);
  EXPECT_EQ(changes.steps.size(), 2U);
  grid.SetText(4, 1, "2");
  EXPECT_EQ(told, 1) << "the same text is no change";
  EXPECT_TRUE(grid.TakeChanges().steps.empty());
}

TEST_F(GridTest, AGridThatNobodyAsksRemembersNoLongList) {
  for (int i = 0; i < 100000; ++i) {
    grid.AddItem("row", 4);
    if (grid.Rows() > 14)
      grid.RemoveItem(grid.Rows() - 1);
  }
  EXPECT_EQ(grid.Rows(), 14);
  auto changes = grid.TakeChanges();
  EXPECT_TRUE(changes.all);
  EXPECT_TRUE(changes.steps.empty());
  EXPECT_FALSE(grid.TakeChanges().all) << "asked once, told once";
}

TEST_F(GridTest, TheOperatorMovesTheCellOnlyWhileMarksAreOn) {
  int entered = 0;
  grid.OnEnterCell = [&] { ++entered; };
  grid.AddItem("a", 4);
  grid.SelectCell(4, 1);
  EXPECT_EQ(entered, 0);
  grid.SetSelectionMarks(true);
  grid.SelectCell(4, 1);
  grid.SelectCell(4, 1);
  grid.SelectCell(3, 1);
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(grid.Row(), 4);
  grid.SetRow(0);
  EXPECT_EQ(entered, 1) << "code moves the cell in silence";
}

TEST_F(GridTest, AFormatHeadsAndAlignsTheColumns) {
  grid.SetFormatString("Station|^Cracks|>Depth|<Notes|");
  EXPECT_EQ(grid.Cols(), 5);
  EXPECT_EQ(grid.Text(0, 0) + grid.Text(0, 1) + grid.Text(0, 2) + grid.Text(0, 3), "StationCracksDepthNotes");
  grid.SetCellAlignment(0, 2, Align::Left); // goes before that of its column
  const std::vector<Align> wanted = {Align::Left, Align::Centre, Align::Left, Align::Right};
  EXPECT_EQ((std::vector{grid.CellAlignment(1, 0), grid.CellAlignment(1, 1), grid.CellAlignment(0, 2),
                         grid.CellAlignment(1, 2)}),
            wanted);
  grid.SetFormatString("");
  EXPECT_EQ(grid.Text(0, 0), "Station");
}

} // namespace
} // namespace trekor
