// The grid draws only what has changed and moves what has not: after any story the picture must be the one that a fresh
// view of the same grid draws.
#include "ShownGridTest.h"

#include "views/CellText.h"
#include "views/Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTest>

#include <array>
#include <random>

namespace trekor {
namespace {

class GridViewTest : public tests::ShownGridTest, private ControlListener {
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
    Show(700, 400);
    grid.SetListener(this);
  }
  void ControlChanged(Control&, Change) override { view->GridChanged(); }
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
  // One of twelve things that happen to a grid.
  void Act(std::size_t what, std::mt19937& dice) {
    const int row = static_cast<int>(dice() % 14), col = static_cast<int>(dice() % 9);
    const std::function<void()> acts[] = {[&] { grid.AddItem("0.100 to 0.200", 4); },
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
                                          [&] { view->horizontalScrollBar()->setValue(static_cast<int>(dice() % 80)); },
                                          [&] {
                                            grid.SetZoom(std::array{70, 100, 160}[dice() % 3]);
                                          },
                                          [&] { grid.BringIntoView(col); }};
    acts[what]();
  }
};

TEST_F(GridViewTest, WhatIsDrawnPieceByPieceIsTheWholePicture) {
  std::mt19937 dice(20);
  for (int turn = 0; turn < 120; ++turn) {
    const int acts = 1 + static_cast<int>(dice() % 4);
    grid.SetRedraw(dice() % 2 == 0);
    std::string story;
    for (int i = 0; i < acts; ++i) {
      const std::size_t what = dice() % 12;
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

// An operator enlarges the grid in the middle of a run.
TEST_F(GridViewTest, TheFirstRowAndColumnStayTheFirstInEverySize) {
  for (int i = 0; i < 40; ++i)
    grid.AddItem(std::to_string(39 - i), 4);
  grid.SetSelectionMarks(true);
  view->resize(400, 250);
  QApplication::processEvents();
  const auto firstSeen = [&] { // by a click just below and right of what doesn't scroll
    GridLayout layout;
    QFont type = view->font();
    type.setPixelSize(QFontInfo(type).pixelSize() * grid.Zoom() / 100);
    layout.Arrange(grid, QFontMetrics(type), view->viewport()->size());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, {layout.FirstColumnWidth() + 3, layout.FixedHeight() + 3});
    return std::pair(grid.Row(), grid.Col());
  };
  EXPECT_EQ(firstSeen(), std::pair(4, 1));
  view->horizontalScrollBar()->setValue(2 * 62);
  view->verticalScrollBar()->setValue(6 * view->verticalScrollBar()->singleStep());
  const auto before = firstSeen();
  EXPECT_GT(before, std::pair(8, 2));
  for (const int percent : {125, 160, 80, 200, 100}) {
    grid.SetZoom(percent);
    QApplication::processEvents();
    EXPECT_EQ(firstSeen(), before) << percent;
  }
}

TEST_F(GridViewTest, TheColumnOfAKeyComesIntoViewAndNothingIsDrawnForOneThatIsSeen) {
  int drawn = 0; // paints of everything
  struct Paints : QObject {
    int& count;
    explicit Paints(int& n) : count(n) {}
    bool eventFilter(QObject* o, QEvent* e) override {
      const auto* area = qobject_cast<QWidget*>(o);
      if (e->type() == QEvent::Paint && static_cast<QPaintEvent*>(e)->rect().width() == area->width())
        ++count;
      return false;
    }
  } paints(drawn);
  view->resize(400, 300);
  QApplication::processEvents();
  view->viewport()->installEventFilter(&paints);
  QLineEdit box;
  box.show();
  box.setFocus();
  const auto press = [&](int col) {
    grid.BringIntoView(col);
    QApplication::processEvents();
    return view->horizontalScrollBar()->value();
  };
  const int start = press(1), first = press(8);
  EXPECT_EQ(start, 0);
  EXPECT_GT(first, 0);
  EXPECT_EQ(std::exchange(drawn, 0), 1);
  EXPECT_EQ(press(8), first);
  EXPECT_EQ(press(7), first);
  EXPECT_EQ(drawn, 0);
  EXPECT_EQ(press(1), 0);
  EXPECT_GT(press(5), 0);
  EXPECT_EQ((press(5) - 0) % 62, 0) << "a whole column at the left";
  EXPECT_EQ(press(99), press(5)) << "there is no such column";
  EXPECT_TRUE(box.hasFocus() || !view->hasFocus());
  EXPECT_TRUE(ShowsTheWholePicture());
}

// One long word in the middle, in every size: what is drawn of it stays between the lines of its column.
TEST_F(GridViewTest, WordsStayInTheirColumn) {
  view->resize(900, 300);
  for (const int percent : {70, 80, 90, 100, 125, 160, 200}) {
    grid.SetZoom(percent);
    for (const char* words : {"", "LongitudinalCracking", "1234567890123"}) {
      for (int c = 1; c < 9; ++c)
        grid.SetText(3, c, c == 2 ? words : "");
      ASSERT_TRUE(ShowsTheWholePicture());
      const QImage seen = OnScreen(*view);
      GridLayout layout;
      QFont type = view->font();
      type.setPixelSize(QFontInfo(type).pixelSize() * percent / 100);
      layout.Arrange(grid, QFontMetrics(type), view->viewport()->size());
      const auto ink = [&](int col) {
        const QRect cell = layout.CellRect(3, col, col).adjusted(0, 0, -1, -1);
        for (int y = cell.top(); y <= cell.bottom(); ++y)
          for (int x = cell.left(); x <= cell.right(); ++x)
            if (seen.pixel(x, y) != theme::Day.Head)
              return true;
        return false;
      };
      EXPECT_EQ(ink(2), *words != 0) << percent << words;
      EXPECT_FALSE(ink(1) || ink(3)) << percent << words;
    }
  }
}

TEST(CellTextTest, WordsBecomeSmallerThenShorterByWholeCharacters) {
  QFont font = QApplication::font();
  font.setPixelSize(20);
  const auto fit = [&](const char* words, int room, CutEnd end) {
    const CellText text = FitText(words, font, room, end);
    EXPECT_LE(QFontMetrics(text.font).horizontalAdvance(text.words), std::max(room, 0)) << words;
    return std::pair(text.words.toStdString(), QFontInfo(text.font).pixelSize());
  };
  const int full = QFontMetrics(font).horizontalAdvance("Corrugation");
  EXPECT_EQ(fit("Corrugation", full, CutEnd::Plain), std::pair(std::string("Corrugation"), 20));
  const auto [smaller, size] = fit("Corrugation", full * 4 / 5, CutEnd::Plain);
  EXPECT_EQ(smaller, "Corrugation");
  EXPECT_TRUE(size < 20 && size >= 13) << size;
  const auto [cut, least] = fit("Corrugation", full / 2, CutEnd::Plain);
  EXPECT_TRUE(std::string("Corrugation").starts_with(cut) && cut.size() > 4) << cut;
  EXPECT_EQ(least, 13);
  const auto value = fit("1234567890", full / 3, CutEnd::Dots).first;
  EXPECT_TRUE(value.ends_with("\u2026")) << value << " could be taken for another number";
  for (int room = -1; room < full; ++room) { // a letter of two parts is never halved
    const std::string words = fit("e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301", room, CutEnd::Plain).first;
    EXPECT_EQ(words.size() % 3, 0U) << room;
  }
}

TEST_F(GridViewTest, AClickMeansTheCellThatIsSeenThere) {
  for (int i = 0; i < 12; ++i)
    grid.AddItem("0.100 to 0.200", 4);
  grid.SetSelectionMarks(true);
  view->resize(400, 250);
  QApplication::processEvents();
  const QPoint corner(view->viewport()->width() - 65, view->viewport()->height() - 3); // within a column that fits
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
