// A drag with the mouse from the collection grid to a picture of keys, in the same window and in another: where it
// ends, what ends it without a drop, and the mouse's own picture.
#include "ShownFormTest.h"

#include "views/GridView.h"
#include "views/KeyGridView.h"

#include <QDialog>

namespace trekor {
namespace {

struct DragForm : Form {
  DragForm() : Form("DragForm") {
    Move(300, 300, 9000, 6000);
    Texts0.Move(0, 0, 3000, 300);
    grid.Move(0, 450, 4500, 3000);
    keys.Move(4500, 450, 4500, 3000);
    grid.SetFixedRows(3);
    for (Grid* g : {&grid, &keys})
      g->SetRows(4), g->SetCols(3);
    grid.OnPickUp = [this](int r, int c) {
      pickedUp = std::to_string(r) + "/" + std::to_string(c);
      return r == 2 && c == 1 ? "CRACK" : "";
    };
    keys.OnDrop = [this](const Grid& source, int r, int c) {
      dropped = source.Name() + " on " + std::to_string(r) + "/" + std::to_string(c);
    };
  }
  std::string Dropped() { return std::exchange(dropped, ""); }
  TextBox Texts0{*this, "Texts", 0};
  Grid grid{*this, "Grid"}, keys{*this, "fxgKeyPad"};
  std::string pickedUp, dropped;
};

class GridDragTest : public tests::ShownFormTest<DragForm> {
protected:
  // The window system's own events, as the toolkit knows which buttons are held only from them.
  void Press(QPoint at) { QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, In(at)); }
  void MoveTo(QPoint at) { QTest::mouseMove(window->windowHandle(), In(at)); }
  void LetGo(QPoint at) { QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, In(at)); }
  QPoint In(QPoint global) const { return window->mapFromGlobal(global); }
  void DragTo(QPoint to) {
    Press(CellOfHead());
    MoveTo(to);
    LetGo(to);
  }
  template <class View> View& The() {
    const auto all = window->findChildren<QWidget*>();
    return dynamic_cast<View&>(
        **std::find_if(all.begin(), all.end(), [](QWidget* w) { return dynamic_cast<View*>(w) != nullptr; }));
  }
  GridView& Head() { return The<GridView>(); }
  KeyGridView& Keys() { return The<KeyGridView>(); }
  // The cell 2/1 of the grid, the only one with something to take.
  QPoint CellOfHead() {
    for (int y = 0; y < Head().height(); ++y)
      for (int x = 0; x < Head().width(); ++x) {
        const QPoint at = Head().viewport()->mapToGlobal(QPoint(x, y));
        if (const auto cell = Head().CellAt(at); cell && cell->row == 2 && cell->col == 1)
          return at + QPoint(4, 4);
      }
    ADD_FAILURE();
    return {};
  }
  QPoint Key(int row, int col) { // a twelfth of its own size inside the key
    return Keys().mapToGlobal(QPoint(Keys().width() * (3 * col + 1) / 9, Keys().height() * (3 * row + 1) / 12));
  }
  static bool Carries() { return QApplication::overrideCursor() != nullptr; }
};

TEST_F(GridDragTest, ADropNamesTheCellUnderTheMouse) {
  Press(CellOfHead());
  EXPECT_EQ(form.pickedUp, "2/1");
  EXPECT_FALSE(Carries()) << "a click is no drag";
  MoveTo(CellOfHead() + QPoint(2, 1));
  EXPECT_FALSE(Carries()) << "nor is a trembling hand";
  MoveTo(Key(1, 1));
  EXPECT_TRUE(Carries());
  LetGo(Key(3, 2));
  EXPECT_EQ(form.Dropped(), "Grid on 3/2");
  EXPECT_FALSE(Carries());
  MoveTo(Key(0, 0));
  EXPECT_FALSE(Carries());
  DragTo(Key(0, 0));
  EXPECT_EQ(form.Dropped(), "Grid on 0/0");
}

TEST_F(GridDragTest, NothingIsDroppedWhereNoKeyIs) {
  DragTo(Head().viewport()->mapToGlobal(QPoint(5, 5)));
  DragTo(window->mapToGlobal(QPoint(window->width() - 5, window->height() - 5)));
  DragTo(window->mapToGlobal(QPoint(-200, -200)));
  Press(Key(0, 0)); // where nothing is to be taken
  MoveTo(Key(1, 1));
  EXPECT_FALSE(Carries());
  LetGo(Key(1, 1));
  form.keys.SetEnabled(false);
  DragTo(Key(1, 1));
  EXPECT_EQ(form.Dropped(), "");
  EXPECT_FALSE(Carries());
}

TEST_F(GridDragTest, WhatCoversTheGridEndsTheDrag) {
  const auto begin = [this] {
    Press(CellOfHead());
    MoveTo(Key(1, 1));
    ASSERT_TRUE(Carries());
  };
  begin();
  form.grid.SetVisible(false);
  EXPECT_FALSE(Carries());
  LetGo(Key(1, 1));
  form.grid.SetVisible(true);
  begin();
  QDialog box(window);
  box.setModal(true);
  box.show();
  EXPECT_FALSE(Carries());
  box.hide();
  LetGo(Key(1, 1));
  EXPECT_EQ(form.Dropped(), "");
  begin();
  QEvent away(QEvent::WindowDeactivate); // the release goes to whoever has the keyboard now
  QApplication::sendEvent(window, &away);
  EXPECT_FALSE(Carries());
  LetGo(Key(1, 1));
  EXPECT_EQ(form.Dropped(), "");
  begin();
  shell.UnloadAll();
  EXPECT_FALSE(Carries());
}

} // namespace
} // namespace trekor
