// Check boxes, options, combos, lists and the pictures of keys under the operator's mouse and keys: each act reaches
// the model once, the screen shows what the model makes of it, and nothing is chosen without him.
#include "views/KeyGridView.h"
#include "views/Theme.h"

#include "ShownFormTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>

namespace trekor {
namespace {

struct ChoiceForm : Form {
  ChoiceForm() : Form("ChoiceForm") {
    Move(300, 300, 9000, 9000);
    auto place = [top = 0](Control& c, int height) mutable {
      c.Move(150, top += 30, 6000, height);
      top += height;
    };
    place(Texts0, 450);
    place(check, 450);
    place(a, 450);
    place(b, 450);
    place(frame, 900);
    inside.Container = &frame;
    inside.Move(150, 150, 3000, 450);
    place(combo, 450);
    place(list, 2400);
    place(locked, 450);
    place(several, 1200);
    several.MultiSelect = true;
    several.AddItems({"alpha", "beta", "gamma", "delta"});
    locked.SetEnabled(false); // before it has a widget
    for (const char* entry : {"one", "two", "three"})
      list.AddItem(entry);
    for (const char* entry : {"KM", "M", "ML"})
      combo.AddItem(entry);
    for (Handler* clicked :
         {&check.OnClick, &a.OnClick, &b.OnClick, &inside.OnClick, &combo.OnClick, &list.OnClick, &several.OnClick})
      *clicked = [this] { ++raised; };
  }
  int Raised() { return std::exchange(raised, 0); }
  TextBox Texts0{*this, "Texts", 0};
  CheckBox check{*this, "chkOne"}, locked{*this, "chkLocked"};
  OptionButton a{*this, "Options", 0}, b{*this, "Options", 1};
  Frame frame{*this, "Frames", 1};
  OptionButton inside{*this, "Options", 2};
  ComboBox combo{*this, "cboUnits"};
  ListBox list{*this, "lstOne"}, several{*this, "lstSeveral"};
  int raised = 0;
};

class BindingsTest : public tests::ShownFormTest<ChoiceForm> {
protected:
  template <class Widget> Widget* The(int n = 0) { return window->findChildren<Widget*>().at(n); }
  static void ClickOn(QWidget* w, QPoint at) { QTest::mouseClick(w, Qt::LeftButton, Qt::NoModifier, at); }
  static void ClickOn(QWidget* w) { ClickOn(w, {8, w->height() / 2}); }
  static void ClickOn(QListWidget* w, int row) { ClickOn(w->viewport(), w->visualItemRect(w->item(row)).center()); }
  // "x" for each entry that the screen shows as chosen.
  static std::string Marks(const QListWidget* w) {
    std::string marks;
    for (int i = 0; i < w->count(); ++i)
      marks += w->item(i)->isSelected() ? 'x' : '.';
    return marks;
  }
};

// An Enter right behind it would close the form without the choice.
TEST_F(BindingsTest, ALetterWithAltChoosesAtOnce) {
  form.check.SetCaption("&Keep");
  form.b.SetCaption("&Left");
  QTest::keyClick(window->windowHandle(), Qt::Key_K, Qt::AltModifier);
  QTest::keyClick(window->windowHandle(), Qt::Key_L, Qt::AltModifier);
  EXPECT_EQ(form.Raised(), 2);
  EXPECT_TRUE(form.check.Value() == 1 && form.b.Value());
  EXPECT_EQ(form.ActiveControl, &form.b);
}

TEST_F(BindingsTest, ACheckBoxShowsWhatTheModelMakesOfAClick) {
  auto* box = The<QCheckBox>();
  form.check.SetValue(2);
  form.check.SetValue(3);
  EXPECT_EQ(form.Raised(), 1) << "by code as well";
  EXPECT_EQ(box->checkState(), Qt::PartiallyChecked);
  for (const auto& [value, seen] : {std::pair{0, Qt::Unchecked}, {1, Qt::Checked}, {0, Qt::Unchecked}}) {
    ClickOn(box);
    EXPECT_EQ(form.check.Value(), value);
    EXPECT_EQ(box->checkState(), seen);
    EXPECT_EQ(form.Raised(), 1);
  }
  form.check.OnClick = [this] { form.check.SetValue(0); }; // the logic refuses it
  ClickOn(box);
  EXPECT_EQ(box->checkState(), Qt::Unchecked);
  form.check.SetEnabled(false);
  ClickOn(box);
  EXPECT_EQ(form.check.Value(), 0);
  EXPECT_FALSE(The<QCheckBox>(1)->isEnabled());
}

TEST_F(BindingsTest, OptionsOfAContainerExcludeEachOtherOnTheScreen) {
  auto *a = The<QRadioButton>(0), *b = The<QRadioButton>(1), *inside = The<QRadioButton>(2);
  const auto shown = [&] {
    return std::to_string(a->isChecked()) + std::to_string(b->isChecked()) + std::to_string(inside->isChecked());
  };
  ClickOn(inside);
  ClickOn(a);
  EXPECT_EQ(shown(), "101");
  ClickOn(b);
  EXPECT_EQ(shown(), "011");
  EXPECT_TRUE(form.b.Value() && form.inside.Value() && !form.a.Value());
  EXPECT_EQ(form.Raised(), 3);
  ClickOn(b); // a chosen one is not taken away by a click
  EXPECT_EQ(shown(), "011");
  form.a.SetValue(true);
  EXPECT_EQ(shown(), "101");
}

TEST_F(BindingsTest, AComboTellsEachChoiceOfTheOperatorAndShowsTheModels) {
  auto* box = The<QComboBox>();
  EXPECT_EQ(box->currentIndex(), -1) << "nothing was chosen yet";
  shell.SetFocus(form.combo);
  EXPECT_EQ(form.combo.ListIndex(), -1);
  QTest::keyClick(window->windowHandle(), Qt::Key_Down);
  QTest::keyClick(window->windowHandle(), Qt::Key_Down);
  EXPECT_EQ(form.combo.Text(), "M");
  EXPECT_EQ(form.Raised(), 2);
  form.combo.SetListIndex(2);
  form.combo.SetListIndex(2);
  form.combo.SetListIndex(3);
  form.combo.SetText("YARDS"); // which stands in no list
  EXPECT_EQ(box->currentText(), "ML");
  EXPECT_EQ(form.Raised(), 1) << "by the code alone, and not by the screen that follows";
  form.combo.Clear();
  EXPECT_EQ(box->count(), 0);
  EXPECT_EQ(form.combo.Text() + form.combo.List(0), "");
  for (const char* entry : {"FEET", "YARDS"})
    form.combo.AddItem(entry);
  EXPECT_EQ(box->currentIndex(), -1);
  EXPECT_EQ(form.Raised(), 0);
  box->activated(1); // the same entry once more is a choice too
  box->activated(1);
  EXPECT_EQ(form.combo.Text(), "YARDS");
  EXPECT_EQ(form.Raised(), 2);
  form.combo.SetText("FEET");
  EXPECT_EQ(form.combo.ListIndex(), 0);
}

TEST_F(BindingsTest, AListChoosesNothingUntilItIsClicked) {
  auto* box = The<QListWidget>();
  shell.SetFocus(form.combo);
  QTest::keyClick(window->windowHandle(), Qt::Key_Tab); // onto the list
  ASSERT_EQ(form.ActiveControl, &form.list);
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.Raised(), 0);
  EXPECT_EQ(Marks(box), "...");
  QTest::mouseClick(box->viewport(), Qt::RightButton, Qt::NoModifier, box->visualItemRect(box->item(2)).center());
  EXPECT_EQ(form.Raised(), 0);
  ClickOn(box, 1);
  EXPECT_EQ(form.list.ListIndex(), 1);
  EXPECT_EQ(Marks(box), ".x.");
  EXPECT_EQ(form.Raised(), 1);
  ClickOn(box, 1);
  EXPECT_EQ(form.Raised(), 1) << "the same entry once more is a choice too";
  QTest::keyClick(window->windowHandle(), Qt::Key_Down);
  EXPECT_EQ(form.list.List(form.list.ListIndex()), "three");
  EXPECT_EQ(form.Raised(), 1);
  int opened = -1;
  form.list.OnDblClick = [&] { opened = form.list.ListIndex(); };
  ClickOn(box, 0);
  const QPoint first = box->visualItemRect(box->item(0)).center();
  QTest::mouseDClick(box->viewport(), Qt::LeftButton, Qt::NoModifier, first);
  QTest::mouseRelease(box->viewport(), Qt::LeftButton, Qt::NoModifier, first);
  EXPECT_EQ(opened, 0);
  EXPECT_EQ(form.Raised(), 1) << "by the first click";
  form.list.Select(2);
  EXPECT_EQ(Marks(box), "..x");
  EXPECT_EQ(form.Raised(), 1);
  form.list.Clear();
  form.list.AddItem("other");
  EXPECT_EQ(Marks(box), ".");
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.Raised(), 0);
}

TEST(KeyPictureTest, AClickFindsTheKeyThatIsDrawnThere) {
  Form form("Keys");
  Grid grid(form, "fxgKeyPad");
  const char* keys[5][4] = {{" ", "/", "*", "-"},
                            {"7", "8", "9", "+"},
                            {"4", "5", "6", "+"},
                            {"1", "2", "3", "Enter"},
                            {"0", "0", ",", "Enter"}};
  grid.SetCols(4);
  grid.SetRows(5);
  for (int r = 0; r < 5; ++r) {
    grid.SetMergeRow(r, true);
    grid.SetMergeCol(3, true);
    for (int c = 0; c < 4; ++c)
      grid.SetText(r, c, keys[r][c]);
  }
  tests::FakeDrives drives;
  PictureStore pictures(drives);
  KeyGridView view(grid, pictures, nullptr);
  std::string clicked;
  grid.OnClick = [&](int r, int c) { clicked = grid.Text(r, c); };
  const auto clickAt = [&](int x, int y) {
    clicked = "nothing";
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, {x, y});
    return clicked;
  };
  for (const QSize size : {QSize(400, 400), QSize(331, 217), QSize(61, 45)}) {
    view.resize(size);
    for (int r = 0; r < 5; ++r)
      for (int c = 0; c < 4; ++c)
        for (const double part : {0.1, 0.5, 0.9}) { // of the key, from its upper left corner
          const int x = static_cast<int>((c + part) * size.width() / 4);
          const int y = static_cast<int>((r + part) * size.height() / 5);
          EXPECT_EQ(clickAt(x, y), keys[r][c]) << x << "," << y << " of " << size.width();
          EXPECT_EQ(grid.Row() * 10 + grid.Col(), r * 10 + c);
        }
  }
  EXPECT_EQ(clickAt(60, 44), "Enter") << "the last pixel";
  view.resize(400, 400);
  const QImage seen = view.grab().toImage();
  for (const auto& [x, y, colour] :
       {std::tuple{320, 160, theme::Day.Paper}, {200, 340, theme::Day.Desk}, {100, 380, theme::Day.Paper}})
    EXPECT_EQ(QColor(seen.pixel(x, y)).name(), QColor(colour).name()) << x << "," << y;
  EXPECT_NE(seen.pixel(303, 370), theme::Day.Accent) << "the last one that was clicked, without the focus";
  int doubled = 0;
  grid.OnDblClick = [&] { ++doubled; };
  QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, {5, 5});
  EXPECT_EQ(doubled, 1);
  grid.SetEnabled(false);
  EXPECT_EQ(clickAt(5, 5), "nothing");
}

// The export takes what is marked; the preview shows the entry under the cursor.
TEST_F(BindingsTest, AListForSeveralTakesThemAsThePointerAndTheKeysMarkThem) {
  auto* box = The<QListWidget>(1);
  const auto marked = [this] {
    std::string rows;
    for (int i = 0; i < form.several.ListCount(); ++i)
      rows += form.several.Selected(i) ? 'x' : '.';
    return rows + std::to_string(form.several.ListIndex());
  };
  const auto click = [&](int row, Qt::KeyboardModifiers keys) {
    QTest::mouseClick(box->viewport(), Qt::LeftButton, keys, box->visualItemRect(box->item(row)).center());
  };
  EXPECT_EQ(marked(), "....-1");
  click(1, {});
  EXPECT_EQ(marked(), ".x..1");
  click(3, Qt::ShiftModifier);
  EXPECT_EQ(marked(), ".xxx3");
  click(2, Qt::ControlModifier);
  EXPECT_EQ(marked(), ".x.x2");
  EXPECT_EQ(Marks(box), ".x.x");
  QTest::keyClick(window->windowHandle(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(marked(), "xxxx2");
  QTest::keyClick(window->windowHandle(), Qt::Key_B); // type-ahead
  EXPECT_EQ(marked(), ".x..1");
  EXPECT_EQ(form.Raised(), 5);
  form.several.Clear();
  form.several.AddItems({"other"});
  EXPECT_EQ(marked(), ".-1");
}

} // namespace
} // namespace trekor
