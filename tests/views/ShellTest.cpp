#include "views/QtShell.h"

#include "support/FakePlatform.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>

namespace trekor {
namespace {

class ShellTest : public testing::Test {
protected:
  ~ShellTest() override { shell.UnloadAll(); }
  tests::FakeDrives drives;
  QtShell shell{drives};
};

// Counts the paintings of one text.
class Painted : public QObject {
public:
  explicit Painted(const char* wanted) : text(wanted) { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* label = qobject_cast<QLabel*>(object);
    times += event->type() == QEvent::Paint && label && label->text() == text ? 1 : 0;
    return false;
  }
  QString text;
  int times = 0;
};

} // namespace

// The caller does not pump after showing it.
TEST_F(ShellTest, ANoticeIsOnTheScreenWhenTheCallReturns) {
  Painted painted("Updating, please wait");
  shell.ShowNotice("Updating, please wait");
  EXPECT_GT(painted.times, 0);
  Painted other("Copying");
  shell.ShowNotice("Copying");
  EXPECT_GT(other.times, 0);
  shell.ShowNotice("");
  for (const QWidget* w : QApplication::topLevelWidgets())
    EXPECT_FALSE(w->isVisible());
}

TEST_F(ShellTest, TheHourglassGoesAndABoxShowsItsSign) {
  for (const bool on : {true, true, false, false}) {
    shell.Hourglass(on);
    EXPECT_EQ(QGuiApplication::overrideCursor() != nullptr, on);
  }
  for (const auto& [icon, sign] : {std::pair{BoxIcon::Stop, QMessageBox::Critical},
                                   {BoxIcon::Exclamation, QMessageBox::Warning},
                                   {BoxIcon::Information, QMessageBox::Information},
                                   {BoxIcon::None, QMessageBox::NoIcon}}) {
    QTimer::singleShot(0, [&, sign = sign] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      EXPECT_EQ(box->icon(), sign);
      box->accept();
    });
    shell.MsgBox("No folder", "Trial", icon);
  }
}

TEST_F(ShellTest, AWindowThatLayOnAScreenWhichHasGoneIsSeenOnThisOne) {
  Form form("Trial");
  form.Move(-90000, 150000, 6000, 3000);
  shell.Show(form);
  for (const QWidget* w : QApplication::topLevelWidgets())
    EXPECT_TRUE(!w->isVisible() || w->screen()->availableGeometry().contains(w->geometry().center()));
  shell.Unload(form);
}

// A larger screen's look on a small one: the form is told the size that it gets, and what stands beyond can be scrolled
// to.
TEST_F(ShellTest, AFormThatIsLargerThanTheScreenFillsItAndCanBeScrolled) {
  Form form("Trial");
  CommandButton far(form, "CmdOK");
  const int wide = 15 * QGuiApplication::primaryScreen()->availableGeometry().width();
  form.Move(0, 0, 2 * wide, 3000);
  far.Move(2 * wide - 1500, 300, 1200, 450);
  shell.Show(form);
  const auto page = [] {
    for (QWidget* w : QApplication::topLevelWidgets())
      if (w->isVisible() && w->findChild<QScrollArea*>())
        return w->findChild<QScrollArea*>();
    return static_cast<QScrollArea*>(nullptr);
  };
  QApplication::processEvents();
  ASSERT_TRUE(page());
  EXPECT_EQ(form.Width, wide);
  EXPECT_EQ(page()->horizontalScrollBar()->maximum(), wide / 15 - 20);
  shell.SetFocus(far);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page()->horizontalScrollBar()->value() > wide / 15 - 150; }, 2000));
  shell.Unload(form);

  Form own("Own"); // arranges its controls itself
  std::vector<int> widths;
  own.OnResize = [&] { widths.push_back(own.Width); };
  own.Move(0, 0, 2 * wide, 3000);
  shell.Show(own);
  QApplication::processEvents();
  EXPECT_TRUE(!widths.empty() && std::all_of(widths.begin(), widths.end(), [&](int w) { return w == wide; }));
  EXPECT_FALSE(page());
  shell.Unload(own);
}

// An order of the link or the end of the program takes the form away while it tells something.
TEST_F(ShellTest, ABoxGoesAwayWithTheFormThatItStandsOn) {
  for (const bool unload : {false, true}) {
    SCOPED_TRACE(unload ? "unloaded" : "hidden");
    Form form("Trial");
    bool stuck = false;
    QTimer late;
    QObject::connect(&late, &QTimer::timeout, [&stuck] {
      stuck = true;
      QApplication::activeModalWidget()->close();
    });
    late.start(3000);
    QTimer::singleShot(0, [&] {
      QTimer::singleShot(0, [&] { unload ? shell.Unload(form) : shell.Hide(form); });
      shell.MsgBox("No folder", "Trial", BoxIcon::Exclamation);
      shell.Hide(form);
    });
    shell.ShowModal(form);
    EXPECT_FALSE(stuck);
    shell.Unload(form);
  }
}

TEST_F(ShellTest, APictureIsWrittenOrItIsToldWhyNot) {
  const std::string file = drives.NativePath("C:\\Trekor\\temp.bin");
  drives.MakeFolders("C:\\Trekor\\Graphics\\builtin");
  QImage image(16, 16, QImage::Format_ARGB32);
  image.fill(Qt::red);
  for (const std::string name : {"CRACK", "OWN"})
    ASSERT_TRUE(
        image.save(QString::fromStdString(drives.NativePath("C:\\Trekor\\Graphics\\builtin\\" + name + ".png"))));
  Form form("Trial");
  ImageList list(form, "imlObsPicsUCaseKeys");
  list.Add({"CRACK", "Crack", "C:\\Trekor\\Graphics\\builtin\\CRACK.png"});
  shell.Load(form);
  EXPECT_EQ(shell.SavePicture("NOSUCH", file), PictureFile::NoPicture);
  EXPECT_EQ(shell.SavePicture("CRACK", file), PictureFile::Written);
  EXPECT_FALSE(QImage(QString::fromStdString(file), "PNG").isNull());
  EXPECT_EQ(shell.SavePicture("CRACK", file + "/temp.bin"), PictureFile::Failed);
  EXPECT_EQ(shell.SavePicture("CRACK", "/dev/full"), PictureFile::Failed) << "found only when it is written";
  shell.Unload(form);
  EXPECT_EQ(shell.SavePicture("CRACK", file), PictureFile::NoPicture) << "of a list that has gone";
  list.Add({"OWN", "own", ""});
  drives.currentFolder += "\\Graphics";
  PictureStore pictures(drives);
  pictures.Use(list);
  EXPECT_FALSE(pictures.Original("OWN").isNull()) << "the program's own has no file";
  for (const int side : {8, 12})
    EXPECT_EQ(pictures.Scaled("CRACK", side, 1).width(), side);
}

// A folder of pictures is filled by people. What is no picture, or would take gigabytes to draw, has none; the next one
// is drawn all the same.
TEST_F(ShellTest, OfAStrangeFolderWhatCanBeDrawnIs) {
  const std::string folder = "C:\\Trekor\\Graphics\\";
  drives.MakeFolders(folder);
  QImage image(16, 16, QImage::Format_ARGB32);
  image.fill(Qt::red);
  const auto write = [&](const QImage& what, const std::string& name) {
    ASSERT_TRUE(what.save(QString::fromStdString(drives.NativePath(folder + name)), "PNG")) << name;
  };
  write(image, "good.png");
  write(image, "\u00C6 crack, 50% (new).JPG"); // of another kind than its name says
  write(image, "no extension");
  write(image.scaled(1, 3000), "thin.png");
  write(QImage(20000, 20000, QImage::Format_Mono), "HUGE.PNG"); // small on the disk
  const std::string whole = drives.Read(folder + "good.png");
  drives.Write(folder + "half.png", whole.substr(0, whole.size() / 2));
  drives.Write(folder + "empty.png", "");
  drives.Write(folder + "words.png", "These are words.");
  drives.MakeFolders(folder + "folder.png");
  Form form("Trial");
  ImageList list(form, "imlObsPicsUCaseKeys");
  const std::pair<std::string, bool> cases[] = {{"good.png", true},     {"\u00C6 crack, 50% (new).JPG", true},
                                                {"no extension", true}, {"thin.png", true},
                                                {"HUGE.PNG", false},    {"empty.png", false},
                                                {"words.png", false},   {"folder.png", false},
                                                {"missing.png", false}};
  for (const auto& [name, drawn] : cases)
    list.Add({name, name, folder + name});
  list.Add({"half.png", "half.png", folder + "half.png"});
  PictureStore pictures(drives);
  pictures.Use(list);
  for (const auto& [name, drawn] : cases)
    EXPECT_NE(pictures.Scaled(name, 32, 1).isNull(), drawn) << name;
  pictures.Scaled("half.png", 32, 1); // as far as it goes, or nothing
}

} // namespace trekor
