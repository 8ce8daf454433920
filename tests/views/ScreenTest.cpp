// What stands on the screen follows each property: a window that has lived through a change shows what it would have
// shown from its start.
#include "views/KeyGridView.h"
#include "views/Theme.h"
#include "views/ValueBars.h"

#include "ShownFormTest.h"

#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace trekor {
namespace {

struct EveryKind : Form {
  EveryKind() : Form("EveryKind") {
    Move(300, 300, 9000, 9000);
    status.Move(0, 0, 9000, 450);
    bar.Move(0, 0, 9000, 900);
    int place = 1;
    for (Control* c :
         std::initializer_list<Control*>{&tabs, &option, &check, &command, &combo, &label, &hidden, &text, &page})
      c->Move(150, 450 + 600 * place++, 3000, 450);
    frame.Move(3600, 1050, 2400, 1500);
    frame.SetCaption("&Frame");
    image.Move(6450, 1050, 900, 900);
    image.SetPicture("STAR");
    list.Move(6450, 2100, 2100, 900);
    grid.Move(3600, 3000, 5000, 2400);
    keys.Move(3600, 5550, 5000, 2400);
    mnuFile.SetCaption("&File"), mnuHelp.SetCaption("&Help");
    bar.Add({"STAR", "Start", "", "", true}), bar.Add({"STAR2", "Stop", "", "STAR", true});
    tabs.Add("Info", "Info"), tabs.Add("Keyboard", "Keyboard");
    combo.AddItem("KM"), list.AddItem("one"), hidden.SetVisible(false), hidden.SetCaption("hidden");
    text.SetText("1.0"), page.SetText("page"), label.SetCaption("label"), check.SetValue(1);
    check.SetCaption("it"), option.SetCaption("it"), command.SetCaption("it"), status.SetSimpleText("it");
    for (Grid* g : {&grid, &keys})
      g->SetCols(4), g->SetRows(5), g->SetText(2, 1, "x"), g->SetFixedRows(1);
    grid.SetCellAlignment(2, 1, Align::Centre), grid.SetSelectionMarks(true), grid.SetRow(3);
  }
  Menu mnuFile{*this, "mnuFile"}, mnuHelp{*this, "mnuHelp"};
  ToolBar bar{*this, "tbControlBar"};
  TabStrip tabs{*this, "TabStrip1"};
  OptionButton option{*this, "Options", 0};
  CheckBox check{*this, "chkOne"};
  CommandButton command{*this, "cmdOne"};
  ComboBox combo{*this, "cboOne"};
  Label label{*this, "Labels", 0}, hidden{*this, "Labels", 1};
  TextBox text{*this, "Texts", 0}, page{*this, "Page", -1, Kind::RichTextBox};
  Frame frame{*this, "Frames", 0};
  Image image{*this, "imgOne"};
  ListBox list{*this, "lstOne"};
  Grid grid{*this, "Grid"}, keys{*this, "fxgKeyPad"};
  StatusBar status{*this, "sbrState"};
};

class ScreenTest : public testing::Test {
protected:
  ScreenTest() {
    QApplication::setCursorFlashTime(0);
    drives.MakeFolders("C:\\Trekor\\builtin");
    QImage star(32, 32, QImage::Format_ARGB32);
    star.fill(Qt::red);
    EXPECT_TRUE(star.save(QString::fromStdString(drives.NativePath("C:\\Trekor\\builtin\\STAR.png"))));
  }
  ~ScreenTest() override { shell.UnloadAll(); }
  // Without drawing anything for the question.
  static QImage Seen() {
    QApplication::processEvents();
    return Window()->screen()->grabWindow(Window()->winId()).toImage();
  }
  static QWidget* Window() {
    const auto all = QApplication::topLevelWidgets();
    return *std::find_if(all.begin(), all.end(), [](const QWidget* w) { return w->isVisible(); });
  }
  tests::FakeDrives drives;
  QtShell shell{drives};
};

int Count(const QImage& image, QRgb colour) {
  int pixels = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      pixels += image.pixel(x, y) == colour ? 1 : 0;
  return pixels;
}

TEST_F(ScreenTest, AChangeIsSeenAtOnceAndAsIfItHadStoodFromTheStart) {
  using F = EveryKind;
  const std::pair<const char*, std::function<void(F&)>> changes[] = {
      {"around",
       [](F& f) {
         f.mnuFile.SetCaption("&Data"), f.status.SetSimpleText("Ready");
         f.tabs.SetCaption(1, "Keypad"), f.tabs.SetSelected(1);
       }},
      {"words",
       [](F& f) {
         f.label.SetCaption("Station"), f.check.SetCaption("Freeze"), f.option.SetCaption("Up");
         f.command.SetCaption("OK"), f.text.SetText("2.0"), f.page.SetText("other"), f.frame.SetCaption("Step");
       }},
      {"choices", [](F& f) { f.check.SetValue(2), f.combo.SetListIndex(0), f.list.AddItem("two"), f.list.Select(0); }},
      {"places", [](F& f) { f.label.Move(600, 8100, 3000, 450), f.hidden.SetVisible(true), f.image.SetPicture(""); }},
      {"keys", [](F& f) { f.keys.SetText(2, 1, "Q"), f.keys.SetCellPicture(0, 1, "STAR"); }},
      {"a key's value",
       [](F& f) {
         f.keys.SetText(2, 1, "Q"), f.keys.SetCellPicture(0, 1, "STAR"), f.keys.SetCellNote(0, 1, "3", true);
       }},
      {"the last key", [](F& f) { f.keys.SetSelectionMarks(true), f.keys.SetRow(2), f.keys.SetCol(1); }},
      {"a font",
       [](F& f) {
         f.label.SetFont({"", 20, true});
       }},
      {"wider", [](F& f) { f.grid.SetColWidth(1, 3000); }},
      {"high row", [](F& f) { f.grid.SetCellPicture(0, 3, "BAR:3"); }},
      {"menu off", [](F& f) { f.mnuHelp.SetEnabled(false); }},
      {"no menu", [](F& f) { f.mnuHelp.SetVisible(false); }},
      {"button off", [](F& f) { f.bar.SetButtonEnabled("STAR", false); }},
      {"frame off", [](F& f) { f.frame.SetEnabled(false); }},
      {"picture off", [](F& f) { f.image.SetEnabled(false); }},
      {"grid off", [](F& f) { f.grid.SetEnabled(false); }},
      {"to the right", [](F& f) { f.grid.SetCellAlignment(2, 1, Align::Right); }}};
  for (const auto& [what, change] : changes) {
    SCOPED_TRACE(what);
    EveryKind changed, fresh;
    change(fresh);
    shell.Show(fresh);
    const QImage wanted = Seen();
    shell.Unload(fresh);
    shell.Show(changed);
    EXPECT_TRUE(Seen() != wanted) << "nothing is seen of it";
    change(changed);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Seen() == wanted; }, 1000));
    shell.Unload(changed);
  }
}

TEST_F(ScreenTest, AWindowThatGoesIntoTheNightLooksAsOneThatIsOpenedInIt) {
  for (const bool night : {true, false}) {
    EveryKind opened, gone;
    shell.ShowNight(night);
    shell.Show(opened);
    const QImage wanted = Seen();
    shell.Unload(opened);
    shell.ShowNight(!night);
    gone.label.SetForeColor(0xC00000); // of its own, and given up
    gone.label.SetForeColor(-1);
    shell.Show(gone);
    EXPECT_TRUE(Seen() != wanted);
    shell.ShowNight(night);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Seen() == wanted; }, 1000)) << night;
    shell.Unload(gone);
  }
}

// Half a box is no box: on a small screen the rest of a page can be brought to sight.
TEST_F(ScreenTest, APageThatIsTooSmallForItsControlsCanBeScrolled) {
  struct Paged : Form {
    Paged() : Form("Paged") {
      Move(300, 300, 9000, 6000);
      page.Move(0, 0, 9000, 3000);
      box.Container = &page;
      box.Move(6000, 150, 2250, 450);
    }
    Frame page{*this, "tabFrames", 0};
    TextBox box{*this, "Texts", 0};
  } form;
  shell.Show(form);
  const QScrollArea* page = Window()->findChildren<QScrollArea*>().last(); // within the one of the window
  const auto *bar = page->horizontalScrollBar(), *side = page->verticalScrollBar();
  const auto way = [&] {
    QApplication::processEvents();
    return bar->maximum();
  };
  EXPECT_EQ(way(), 0);
  form.page.Move(0, 0, 6750, 3000);
  EXPECT_EQ(way(), 100);
  EXPECT_EQ(side->maximum(), 0);
  form.page.Move(0, 0, 9000, 300);
  EXPECT_EQ(way(), 0);
  EXPECT_GE(side->maximum(), 20);
  shell.Unload(form);
}

TEST_F(ScreenTest, APictureLeavesTheLetterOfItsKeyAlone) {
  for (const int width : {600, 900, 1500, 3000}) { // twips
    Form form("Form");
    form.Move(0, 0, 6000, 1500);
    Grid keys(form, "fxgKeyPad");
    keys.Move(0, 0, width, 750);
    keys.SetCols(1), keys.SetRows(1), keys.SetText(0, 0, "F7");
    keys.SetCellPicture(0, 0, "STAR");
    shell.Show(form);
    const QImage both = Seen();
    EXPECT_GT(Count(both, 0xFFFF0000), 60) << width;
    const QFontMetrics metrics(QApplication::font());
    const QRect word(9, 6, metrics.horizontalAdvance("F7"), metrics.height());
    EXPECT_EQ(Count(both.copy(word), 0xFFFF0000), 0) << width;
    shell.Unload(form);
  }
}

// The mark of the last key may be older than the window: it must not stay when it moves.
TEST_F(ScreenTest, AMarkFromBeforeTheFirstPictureMovesLikeAnyOther) {
  const auto mark = [](EveryKind& f, int row, int col) {
    f.keys.SetSelectionMarks(true), f.keys.SetRow(row), f.keys.SetCol(col);
  };
  EveryKind before, fresh;
  mark(fresh, 2, 1);
  shell.Show(fresh);
  const QImage wanted = Seen();
  shell.Unload(fresh);
  mark(before, 1, 0);
  shell.Show(before);
  before.keys.SetCellPicture(0, 1, "STAR"); // all that was changed before is taken with this
  EXPECT_TRUE(Seen() != wanted);
  before.keys.SetCellPicture(0, 1, "");
  mark(before, 2, 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Seen() == wanted; }, 1000));
  shell.Unload(before);
}

// A press counts where it is let go, and only of the left button.
TEST_F(ScreenTest, AButtonOfTheBarAndAPictureTakeAWholeClickOfTheLeftButton) {
  EveryKind form;
  std::string story;
  form.bar.SetButtonEnabled("STAR2", false);
  form.bar.Add({"STOP", "", "", "", true});
  form.bar.OnButtonClick = [&](const std::string& key) { story += key + " "; };
  form.image.OnClick = [&] { story += "picture "; };
  shell.Show(form);
  QWidget* window = Window();
  const int top = window->findChild<QMenuBar*>()->height();
  const auto isKeys = [](const QWidget* w) { return dynamic_cast<const KeyGridView*>(w) != nullptr; };
  const auto widgets = window->findChildren<QWidget*>();
  EXPECT_EQ(std::count_if(widgets.begin(), widgets.end(), isKeys), 1);
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
    for (const auto& [from, to] : {std::pair{20, 20}, {20, 230}, {120, 120}, {230, 230}, {440, 440}}) {
      const int y = top + (from == 440 ? 90 : 30);
      QTest::mousePress(window->windowHandle(), button, Qt::NoModifier, {from, y});
      QTest::mouseRelease(window->windowHandle(), button, Qt::NoModifier, {to, y});
    }
  EXPECT_EQ(story, "STAR STOP picture ");
  shell.Unload(form);
}

// In tenths from the lower or left end, and by the lamp's or the plate's colour.
TEST(ValueBarsTest, ABarIsAsLongAsItsValueAndALampAsItsState) {
  for (const QSize size : {QSize(40, 112), QSize(212, 40)})
    for (int number = -1; number < 15; ++number) {
      QImage image(size, QImage::Format_RGB32);
      image.fill(theme::Day.Paper);
      QPainter painter(&image);
      DrawBar(painter, image.rect(), number, theme::Day);
      painter.end();
      const bool lying = size.width() > size.height();
      std::string seen;
      for (int tenth = 0; tenth < 10; ++tenth) // in the middle of each
        seen += image.pixel(lying ? 16 + 20 * tenth : 20, lying ? 20 : 101 - 10 * tenth) == theme::Filled ? 'A' : '.';
      const auto filled = static_cast<std::size_t>(number > 10 ? 0 : std::max(number, 0));
      EXPECT_EQ(seen, std::string(filled, 'A') + std::string(10 - filled, '.')) << number;
      EXPECT_EQ(Count(image, theme::Good) > 100, number == 12) << number;
      EXPECT_EQ(Count(image, theme::Wait) > 100, number == 13) << number;
    }
}

TEST(ThemeTest, AControlHasItsOwnFontElseTheForms) {
  const QFont base = QApplication::font();
  const auto shown = [&](const Font& font, const Font& form) {
    const QFont f = theme::Of(font, form, base);
    return (f.family() == base.family() ? "base" : f.family().toStdString()) + std::to_string(f.pixelSize()) +
           (f.bold() ? "b" : "");
  };
  EXPECT_EQ(shown({}, {}), "base14");
  EXPECT_EQ(shown({"Tahoma", 9, true}, {"Batang", 12}), "base12b");
  EXPECT_EQ(shown({}, {"Batang", 12, true}), "Batang16b");
  EXPECT_EQ(shown({"", 9}, {"Arial", 12, true}), "base12");
}

} // namespace
} // namespace trekor
