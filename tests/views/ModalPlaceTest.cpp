// Where a prompt stands. A road cannot be asked to wait: whatever the screen, the newest row and the step bar stay in
// sight.
#include "views/ModalPlace.h"

#include "ShownFormTest.h"
#include "views/GridDrag.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>

namespace trekor {
namespace {

constexpr int Head = 245; // of the main window: title, menu, bar, head of the grid, newest row

struct PlaceCase {
  const char* what;
  QRect screen, over, own, place;
};

TEST(ModalPlaceTest, WhatIsKeptIsNeverCovered) {
  const QRect small(0, 0, 512, 384), usual(0, 0, 1280, 800), right(1280, 0, 1280, 800);
  const PlaceCase cases[] = {
      {"its own place", usual, {0, 0, 960, 640}, {100, 400, 600, 180}, {100, 400, 600, 180}},
      {"its own, brought onto the screen", usual, {0, 0, 960, 640}, {2000, 900, 600, 180}, {680, 620, 600, 180}},
      {"low in the window", usual, {0, 0, 960, 640}, {200, 200, 600, 180}, {180, 460, 600, 180}},
      {"below a low window", usual, {100, 100, 960, 300}, {200, 200, 600, 180}, {280, 345, 600, 180}},
      {"above a window at the bottom", usual, {0, 500, 960, 300}, {200, 600, 600, 180}, {180, 320, 600, 180}},
      {"on the window's own screen", right, {1280, 0, 960, 640}, {200, 200, 600, 180}, {1460, 460, 600, 180}},
      {"right of a window that is as high",
       {0, 0, 1280, 400},
       {0, 50, 600, 350},
       {0, 60, 600, 180},
       {600, 50, 600, 180}},
      {"left of it", {0, 0, 1280, 400}, {680, 50, 600, 350}, {700, 60, 600, 180}, {80, 50, 600, 180}},
      {"lower where it cannot stand whole", small, {0, 0, 512, 384}, {200, 200, 600, 180}, {0, 245, 512, 139}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    QRect kept = c.over;
    kept.setHeight(std::min(kept.height(), Head));
    const QRect place = PlaceInClear(c.own, {c.screen, c.over, kept});
    EXPECT_EQ(place, c.place);
    EXPECT_FALSE(place.intersects(kept));
    EXPECT_TRUE(c.screen.contains(place));
  }
}

// Nothing of the screen is left: it stands at the bottom, where it can still be read and answered.
TEST(ModalPlaceTest, WhereNothingIsLeftItCanStillBeRead) {
  const QRect screen(0, 0, 512, 300);
  const QRect place = PlaceInClear({0, 0, 600, 180}, {screen, screen, screen});
  EXPECT_TRUE(screen.contains(place) && place.height() >= 50 && place.bottom() == screen.bottom());
}

struct RunForm : Form {
  RunForm() : Form("Measurements") {
    Move(0, 0, 7500, 9000);
    Grid.Move(0, 450, 7500, 8550);
    Grid.SetFixedRows(4);
    Grid.SetRows(4);
    Texts0.Move(0, 0, 1500, 300);
    OnResize = [this] { Grid.Move(0, 450, Width, std::max(Height - 450, 0)); };
  }
  TextBox Texts0{*this, "Texts", 0};
  trekor::Grid Grid{*this, "Grid"};
};

struct AskingForm : Form {
  AskingForm() : Form("NumericPrompt") {
    Move(300, 450, 6000, 1650);
    box.Move(150, 150, 5700, 1350);
    SetRemark("Rut depth  \u00B7  0 to 99.5 millimetres");
  }
  TextBox box{*this, "txtBox"};
};

class PromptOnScreen : public tests::ShownFormTest<RunForm> {
protected:
  ~PromptOnScreen() override { shell.Unload(asking); }
  // What holds while it is asked.
  void WhileAsked(const std::function<void(QWidget& prompt)>& check) {
    QTimer::singleShot(0, [&] {
      QWidget* prompt = QApplication::activeModalWidget();
      if (prompt && QTest::qWaitForWindowExposed(prompt))
        check(*prompt);
      shell.Hide(asking);
    });
    shell.ShowModal(asking);
  }
  QRect Kept() {
    const auto* grid = dynamic_cast<GridWidget*>(dynamic_cast<Binding*>(form.Grid.Listener())->Widget());
    return grid->HeadOnScreen();
  }
  AskingForm asking;
};

TEST_F(PromptOnScreen, StandsAsideWithWhatIsAskedBelowItsBoxAndKeepsItsOwnPlace) {
  asking.InSight = &form.Grid;
  const auto look = [this] {
    return std::array{asking.Left, asking.Top, asking.Width, asking.Height, asking.box.Width, asking.box.Height};
  };
  const auto own = look();
  for (const int height : {600, 300, 200}) { // of the main window, which goes on being moved about meanwhile
    SCOPED_TRACE(height);
    WhileAsked([&](QWidget& prompt) {
      const auto clear = [&] { return !prompt.frameGeometry().intersects(Kept()); };
      EXPECT_TRUE(clear());
      window->resize(500, height);
      window->move(0, 200);
      EXPECT_TRUE(QTest::qWaitFor(clear));
      window->move(0, 0);
      EXPECT_TRUE(QTest::qWaitFor(clear));
      const auto* remark = prompt.findChild<QLabel*>();
      const auto* box = prompt.findChild<QLineEdit*>();
      EXPECT_EQ(remark->text().toStdString(), asking.Remark());
      EXPECT_GE(remark->geometry().top(), box->mapTo(&prompt, box->rect().bottomLeft()).y());
      EXPECT_TRUE(prompt.rect().contains(remark->geometry()));
      EXPECT_GE(box->font().pixelSize(), 40);
    });
  }
  EXPECT_EQ(look(), own);
  form.Move(0, 0, 7500, 3000);
  asking.Move(300, 9000, 6000, 1650);
  WhileAsked([&](QWidget& prompt) {
    EXPECT_EQ(prompt.pos(), QPoint(20, 600)) << "the operator's own place is as good";
    prompt.move(150, 560);
    QTest::qWait(1);
  });
  EXPECT_EQ(asking.Left, 2250) << "and he may change it";
  EXPECT_EQ(asking.Height, 1650);
}

} // namespace
} // namespace trekor
