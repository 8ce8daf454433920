// The grid draws only what has changed and moves what has not: after any story the picture must be the one that a fresh
// view of the same grid draws.
#include "views/GridView.h"

#include "forms/Form.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace trekor {
namespace {

class GridViewTest : public testing::Test, private ControlListener {
protected:
  GridViewTest() {
    grid.SetCols(9);
    grid.SetFixedRows(4);
    grid.SetRows(4);
    for (int c = 0; c < 9; ++c) {
      grid.SetText(0, c, std::string(1, static_cast<char>('A' + c)));
      grid.SetCellPicture(1, c, "BAR:" + std::to_string(c));
      grid.SetText(3, c, "Heading" + std::to_string(c));
    }
    view.emplace(grid, pictures, nullptr);
    grid.SetListener(this);
    view->resize(700, 400);
    view->show();
    QApplication::processEvents();
  }
  void ControlChanged(Control&, Change) override { view->GridChanged(); }
  // What the window's own buffer holds, without drawing anything for the question.
  QImage OnScreen() {
    QTest::qWait(20);
    return view->screen()->grabWindow(view->winId()).toImage();
  }
  QImage Fresh() {
    GridView other(grid, pictures, nullptr);
    other.resize(view->size());
    other.show();
    QApplication::processEvents();
    other.verticalScrollBar()->setValue(view->verticalScrollBar()->value());
    other.horizontalScrollBar()->setValue(view->horizontalScrollBar()->value());
    QApplication::processEvents();
    return other.screen()->grabWindow(other.winId()).toImage();
  }
  void Act(int what, std::mt19937& dice) {
    const int row = static_cast<int>(dice() % 14), col = static_cast<int>(dice() % 9);
    switch (what) {
    case 0:
      return grid.AddItem("0.100 to 0.200", 4);
    case 1:
      return grid.AddItem("0.150", std::min(5, grid.Rows()));
    case 2:
      return grid.RemoveItem(grid.Rows() > 12 ? grid.Rows() - 1 : -1);
    case 3:
      return grid.RemoveItem(row >= 4 ? row : -1);
    case 4:
      return grid.SetText(row, col, std::to_string(dice() % 100));
    case 5:
      return grid.SetCellPicture(1, col, "BAR:" + std::to_string(dice() % 14));
    case 6:
      grid.SetMergeRow(row >= 4 ? row : -1, true);
      for (int c = 2; row >= 4 && c < 9; ++c)
        grid.SetText(row, c, "a remark across the row");
      return;
    case 7:
      return grid.SetSelectionMarks(dice() % 2 == 0);
    case 8:
      grid.SetRow(row);
      return grid.SetCol(col);
    default:
      return view->horizontalScrollBar()->setValue(static_cast<int>(dice() % 80));
    }
  }
  tests::FakeDrives drives;
  PictureStore pictures{drives};
  Form form{"Form"};
  Grid grid{form, "Grid"};
  std::optional<GridView> view;
};

TEST_F(GridViewTest, WhatIsDrawnPieceByPieceIsTheWholePicture) {
  std::mt19937 dice(20);
  for (int turn = 0; turn < 120; ++turn) {
    const int acts = 1 + static_cast<int>(dice() % 4);
    grid.SetRedraw(dice() % 2 == 0);
    std::string story;
    for (int i = 0; i < acts; ++i) {
      const int what = static_cast<int>(dice() % 10);
      story += std::to_string(what) + " ";
      Act(what, dice);
    }
    grid.SetRedraw(true);
    const QImage seen = OnScreen();
    ASSERT_FALSE(seen.isNull());
    ASSERT_EQ(seen, Fresh()) << "turn " << turn << ", acts " << story;
  }
}

TEST_F(GridViewTest, NothingIsDrawnWhileRedrawIsOff) {
  const QImage before = OnScreen();
  grid.SetRedraw(false);
  grid.AddItem("0.000 to 0.100", 4);
  grid.SetText(4, 3, "7");
  EXPECT_EQ(OnScreen(), before);
  grid.SetRedraw(true);
  EXPECT_NE(OnScreen(), before);
}

} // namespace
} // namespace trekor
