#include "forms/Grid.h"
#include "forms/Form.h"

#include <gtest/gtest.h>

#include <random>

namespace trekor {
namespace {

using Step = Grid::Changes::Step;

struct Ear : ControlListener {
  int told = 0;
  void ControlChanged(Control&, Change what) override {
    EXPECT_EQ(what, Change::Cells);
    ++told;
  }
};

class GridTest : public testing::Test {
protected:
  GridTest() {
    grid.SetCols(3);
    grid.SetRows(4);
    grid.SetFixedRows(4);
    grid.TakeChanges();
    grid.SetListener(&ear);
  }
  std::string Column(int c) const {
    std::string all;
    for (int r = 0; r < grid.Rows(); ++r)
      all += grid.Text(r, c) + "|";
    return all;
  }
  Form form{"Trial"};
  Grid grid{form, "Grid"};
  Ear ear;
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
  EXPECT_EQ(ear.told, 0);
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
  EXPECT_EQ(grid.RowSel(), 4);
  grid.SetCols(1);
  EXPECT_EQ(grid.Col(), 0);
}

TEST_F(GridTest, WhatIsDoneWithoutRedrawIsToldOnce) {
  grid.SetRedraw(false);
  grid.AddItem("10.0 to 10.1", 4);
  grid.SetText(4, 1, "2");
  grid.SetRow(4);
  EXPECT_EQ(ear.told, 0);
  grid.SetRedraw(true);
  grid.SetRedraw(true);
  EXPECT_EQ(ear.told, 1);
  const auto changes = grid.TakeChanges();
  EXPECT_FALSE(changes.all);
  EXPECT_TRUE(changes.selection);
  ASSERT_EQ(changes.steps.size(), 2U);
  EXPECT_EQ(changes.steps[0].sort, Step::RowInserted);
  EXPECT_EQ(changes.steps[1].sort, Step::Cell);
  grid.SetText(4, 1, "2");
  EXPECT_EQ(ear.told, 1) << "the same text is no change";
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

TEST_F(GridTest, AlignmentOfACellGoesBeforeThatOfItsColumn) {
  grid.SetColAlignment(1, Align::Right);
  grid.SetCellAlignment(0, 1, Align::Centre);
  EXPECT_EQ(grid.CellAlignment(0, 1), Align::Centre);
  EXPECT_EQ(grid.CellAlignment(1, 1), Align::Right);
  EXPECT_EQ(grid.CellAlignment(1, 0), Align::Left);
}

TEST_F(GridTest, AFormatHeadsAndAlignsTheColumns) {
  grid.SetFormatString("Station|^Cracks|>Depth|<Notes|");
  EXPECT_EQ(grid.Cols(), 5);
  EXPECT_EQ(grid.Text(0, 0) + grid.Text(0, 1) + grid.Text(0, 2) + grid.Text(0, 3), "StationCracksDepthNotes");
  EXPECT_EQ(grid.CellAlignment(1, 1), Align::Centre);
  EXPECT_EQ(grid.CellAlignment(1, 2), Align::Right);
  grid.SetFormatString("");
  EXPECT_EQ(grid.Text(0, 0), "Station");
}

// A view that repeats the steps, whenever it comes to ask, must show what the grid holds.
TEST_F(GridTest, AViewThatFollowsTheStepsShowsTheGrid) {
  std::mt19937 dice(20240506);
  const auto roll = [&](int n) { return static_cast<int>(dice() % static_cast<unsigned>(n)); };
  std::vector<std::vector<std::string>> picture;
  const auto copyRow = [&](int r) {
    std::vector<std::string> cells;
    for (int c = 0; c < grid.Cols(); ++c)
      cells.push_back(grid.Text(r, c));
    return cells;
  };
  const auto whole = [&] {
    std::vector<std::vector<std::string>> rows;
    for (int r = 0; r < grid.Rows(); ++r)
      rows.push_back(copyRow(r));
    return rows;
  };
  // Cells of a row may have moved on since the step was noted, so a view reads them at the end, as painting does.
  const auto follow = [&] {
    const auto changes = grid.TakeChanges();
    std::vector<bool> stale(picture.size(), false);
    for (const auto& s : changes.steps) {
      if (s.sort == Step::RowInserted)
        stale.insert(stale.begin() + s.row, true), picture.insert(picture.begin() + s.row, std::vector<std::string>());
      else if (s.sort == Step::RowRemoved)
        stale.erase(stale.begin() + s.row), picture.erase(picture.begin() + s.row);
      else
        stale.at(static_cast<std::size_t>(s.row)) = true;
    }
    if (changes.all)
      picture = whole();
    else
      for (std::size_t r = 0; r < picture.size(); ++r)
        if (stale[r])
          picture[r] = copyRow(static_cast<int>(r));
  };
  picture = whole();
  for (int i = 0; i < 20000; ++i) {
    const int act = roll(20);
    if (act < 5)
      grid.AddItem(std::to_string(i), 4);
    else if (act < 9 && grid.Rows() > 4)
      grid.RemoveItem(4 + roll(grid.Rows() - 4));
    else if (act < 18)
      grid.SetText(roll(grid.Rows()), roll(3), std::to_string(roll(9)));
    else if (roll(20) == 0)
      grid.ClearToFixedRows();
    if (roll(100) == 0) {
      follow();
      ASSERT_EQ(picture, whole()) << "after act " << i;
    }
  }
}

} // namespace
} // namespace trekor
