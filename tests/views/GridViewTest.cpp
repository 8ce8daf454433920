// The grid draws only what has changed and moves what has not: after any story the picture must be the one that a fresh
// view of the same grid draws.
#include "views/GridView.h"

#include "forms/Form.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QLabel>
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
  static QImage OnScreen(GridView& shown) { return shown.screen()->grabWindow(shown.winId()).toImage(); }
  QImage Fresh() {
    GridView other(grid, pictures, nullptr);
    other.resize(view->size());
    other.show();
    QApplication::processEvents();
    other.verticalScrollBar()->setValue(view->verticalScrollBar()->value());
    other.horizontalScrollBar()->setValue(view->horizontalScrollBar()->value());
    QApplication::processEvents();
    other.viewport()->repaint();
    return OnScreen(other);
  }
  // A busy machine may be late with the update that it has promised.
  bool ShowsTheWholePicture() {
    QApplication::processEvents();
    const QImage whole = Fresh();
    return !whole.isNull() && QTest::qWaitFor([&] { return OnScreen(*view) == whole; }, 2000);
  }
  // One of ten things that happen to a grid.
  void Act(std::size_t what, std::mt19937& dice) {
    const int row = static_cast<int>(dice() % 14), col = static_cast<int>(dice() % 9);
    const std::function<void()> acts[] = {
        [&] { grid.AddItem("0.100 to 0.200", 4); },
        [&] { grid.AddItem("0.150", std::min(5, grid.Rows())); },
        [&] { grid.RemoveItem(grid.Rows() > 12 ? grid.Rows() - 1 : -1); },
        [&] { grid.RemoveItem(row >= 4 ? row : -1); },
        [&] { grid.SetText(row, col, std::to_string(dice() % 100)); },
        [&] { grid.SetCellPicture(1, col, "BAR:" + std::to_string(dice() % 14)); },
        [&] {
          grid.SetMergeRow(row >= 4 ? row : -1, true);
          for (int c = 2; row >= 4 && c < 9; ++c)
            grid.SetText(row, c, "a remark across the row");
        },
        [&] { grid.SetSelectionMarks(dice() % 2 == 0); },
        [&] { grid.SetRow(row), grid.SetCol(col); },
        [&] { view->horizontalScrollBar()->setValue(static_cast<int>(dice() % 80)); }};
    acts[what]();
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
      const std::size_t what = dice() % 10;
      story += std::to_string(what) + " ";
      Act(what, dice);
    }
    grid.SetRedraw(true);
    ASSERT_TRUE(ShowsTheWholePicture()) << "turn " << turn << ", acts " << story;
  }
}

// The value stands in the row that has moved down by the time it is drawn.
TEST_F(GridViewTest, AValueInTheNewestRowAndARowAboveItMakeOnePicture) {
  for (int i = 0; i < 6; ++i)
    grid.AddItem("row", 4);
  ASSERT_TRUE(ShowsTheWholePicture());
  for (int rowsAbove = 1; rowsAbove <= 3; ++rowsAbove) {
    grid.SetText(4, 3, std::to_string(rowsAbove));
    for (int i = 0; i < rowsAbove; ++i)
      grid.AddItem("newest", 4);
    grid.RemoveItem(grid.Rows() - 1);
    ASSERT_TRUE(ShowsTheWholePicture()) << rowsAbove;
  }
}

TEST_F(GridViewTest, AClickMeansTheCellThatIsSeenThere) {
  for (int i = 0; i < 12; ++i)
    grid.AddItem("0.100 to 0.200", 4);
  grid.SetSelectionMarks(true);
  view->resize(400, 250);
  QApplication::processEvents();
  const QPoint corner(view->viewport()->width() - 3, view->viewport()->height() - 3);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, corner);
  EXPECT_TRUE(grid.Row() >= 4 && grid.Row() < 15 && grid.Col() < 8) << grid.Row() << ", " << grid.Col();
  view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->maximum());
  view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, corner);
  EXPECT_EQ(grid.Row(), 15);
  EXPECT_EQ(grid.Col(), 8);
}

TEST_F(GridViewTest, NothingIsDrawnWhileRedrawIsOff) {
  ASSERT_TRUE(ShowsTheWholePicture());
  const QImage before = OnScreen(*view);
  grid.SetRedraw(false);
  grid.AddItem("0.000 to 0.100", 4);
  grid.SetText(4, 3, "7");
  QTest::qWait(20);
  EXPECT_EQ(OnScreen(*view), before);
  grid.SetRedraw(true);
  EXPECT_TRUE(ShowsTheWholePicture());
  EXPECT_NE(OnScreen(*view), before);
}

// Only in a run, and not in the moment between two windows.
TEST_F(GridViewTest, KeysThatGoElsewhereAreToldOverTheRows) {
  const auto covered = [this] {
    const auto* told = view->findChild<QLabel*>();
    return told && told->isVisible();
  };
  const auto keysGoTo = [](QWindow* window) { Q_EMIT qGuiApp->focusWindowChanged(window); };
  keysGoTo(nullptr);
  EXPECT_FALSE(QTest::qWaitFor(covered, 600)) << "no run";
  grid.SetKeysWanted(true);
  keysGoTo(nullptr);
  EXPECT_FALSE(covered());
  keysGoTo(view->windowHandle());
  keysGoTo(nullptr);
  EXPECT_TRUE(QTest::qWaitFor(covered, 5000));
  keysGoTo(view->windowHandle());
  EXPECT_FALSE(covered());
  keysGoTo(nullptr);
  EXPECT_TRUE(QTest::qWaitFor(covered, 5000));
  grid.SetKeysWanted(false); // the run is over
  EXPECT_TRUE(QTest::qWaitFor([&] { return !covered(); }, 5000));
}

} // namespace
} // namespace trekor
