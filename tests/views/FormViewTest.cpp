#include "ShownFormTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

namespace trekor {
namespace {

struct SmallForm : Form {
  SmallForm() : Form("SmallForm") {
    Move(300, 300, 6000, 4500);
    mnuFile.SetCaption("&File");
    mnuNew.SetCaption("&New");
    Texts0.Move(150, 150, 3000, 450);
    Texts1.Move(150, 750, 3000, 450);
    CmdOK.Move(150, 1500, 1500, 450);
    CmdOK.Default = CmdNo.Cancel = true;
    OnKeyDown = [this](int code, int shift) {
      keys += std::to_string(code) + "/" + std::to_string(shift) + " ";
      return takesAll;
    };
    CmdOK.OnClick = [this] { ++pressed; };
    CmdNo.OnClick = [this] { pressed += 10; };
  }
  Menu mnuFile{*this, "mnuFile"}, mnuNew{*this, "mnuNew", &mnuFile};
  TextBox Texts0{*this, "Texts", 0}, Texts1{*this, "Texts", 1};
  CommandButton CmdOK{*this, "CmdOK"}, CmdNo{*this, "CmdNo"};
  std::string keys;
  bool takesAll = false;
  int pressed = 0;
};

class FormViewTest : public tests::ShownFormTest<SmallForm> {
protected:
  FormViewTest() { form.keys.clear(); }
  void Press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(window->windowHandle(), key, with);
  }
};

TEST_F(FormViewTest, AKeyIsHeardOnceAndBeforeMenusAndControls) {
  form.takesAll = true;
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_F10, Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return})
    Press(key);
  Press(Qt::Key_F, Qt::AltModifier); // the menu's letter
  Press(Qt::Key_1, Qt::KeypadModifier);
  EXPECT_EQ(form.keys, "65/0 121/0 9/0 32/0 13/0 18/4 70/4 97/0 ");
  EXPECT_EQ(form.Texts0.Text(), "");
  EXPECT_EQ(form.ActiveControl, &form.Texts0);
  EXPECT_EQ(form.pressed, 0);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(FormViewTest, WhatTheFormLeavesGoesToTheControl) {
  Press(Qt::Key_A);
  Press(Qt::Key_7);
  EXPECT_EQ(form.Texts0.Text(), "a7");
  EXPECT_EQ(form.keys, "65/0 55/0 ");
  Press(Qt::Key_Tab);
  EXPECT_EQ(form.ActiveControl, &form.Texts1);
  Press(Qt::Key_Return);
  Press(Qt::Key_Escape);
  EXPECT_EQ(form.pressed, 11);
  shell.SetFocus(form.CmdNo);
  Press(Qt::Key_Return);
  EXPECT_EQ(form.pressed, 21) << "the button with the focus before the one of the form";
  form.CmdOK.SetVisible(false);
  shell.SetFocus(form.CmdOK); // is refused, like that of one which is off
  form.Texts1.SetEnabled(false);
  shell.SetFocus(form.Texts1);
  shell.SetFocus(form.Texts0);
  Press(Qt::Key_Return);
  EXPECT_EQ(form.pressed, 21);
}

TEST_F(FormViewTest, ABoxMayTakeTurnOrRefuseWhatIsTyped) {
  form.Texts0.OnKeyPress = [](char32_t c) { return c == U',' ? U'.' : c == U'x' ? U'\0' : c; };
  form.Texts0.MaxLength = 3;
  for (const Qt::Key key : {Qt::Key_1, Qt::Key_Comma, Qt::Key_X, Qt::Key_5, Qt::Key_6})
    Press(key);
  EXPECT_EQ(form.Texts0.Text(), "1.5");
  form.OnKeyPress = [](char32_t) { return true; };
  Press(Qt::Key_Backspace);
  EXPECT_EQ(form.Texts0.Text(), "1.5");
}

TEST_F(FormViewTest, FocusIsToldToTheBoxesAndCodeIsNotTakenForTheOperator) {
  std::string story;
  form.Texts0.OnLostFocus = [&] { story += "lost0 "; };
  form.Texts1.OnGotFocus = [&] {
    story += "got1 ";
    form.Texts1.SelectAll();
  };
  form.Texts1.OnChange = [&] { story += "change "; };
  form.Texts1.SetText("12.5");
  shell.SetFocus(form.Texts1);
  EXPECT_EQ(story, "change lost0 got1 ");
  Press(Qt::Key_9); // replaces what was selected
  EXPECT_EQ(form.Texts1.Text(), "9");
  EXPECT_EQ(story, "change lost0 got1 change ");
  shell.Hide(form);
  shell.Show(form);
  shell.SetFocus(form.Texts1);
  EXPECT_EQ(story, "change lost0 got1 change got1 ") << "anew with each showing";
  form.Texts1.OnLostFocus = [&] { shell.SetFocus(form.Texts1); }; // sent back by its own check
  form.Texts0.OnGotFocus = [&] { story += "got0 "; };
  story.clear();
  shell.SetFocus(form.Texts0);
  EXPECT_EQ(story, "lost0 got1 ") << "who had it for a moment has not got it";
}

// A locked list is disabled while it has the focus: the toolkit alone would give it to the next box.
TEST_F(FormViewTest, AControlThatIsLockedOrHiddenHandsTheFocusHome) {
  std::string story;
  form.FocusHome = &form.CmdOK;
  form.Texts0.OnLostFocus = [&] { story += "lost0 "; };
  form.Texts1.OnGotFocus = [&] { story += "got1 "; };
  form.Texts0.SetEnabled(false);
  EXPECT_EQ(form.ActiveControl, &form.CmdOK);
  EXPECT_TRUE(qobject_cast<QPushButton*>(window->focusWidget()));
  EXPECT_EQ(std::exchange(story, ""), "lost0 ");
  shell.SetFocus(form.Texts1);
  form.Texts1.SetVisible(false);
  EXPECT_EQ(form.ActiveControl, &form.CmdOK);
  EXPECT_EQ(story, "got1 ");
}

TEST_F(FormViewTest, TheMainFormMayTakeTheKeysOfOtherWindowsAndOfAnOpenMenu) {
  Form notes("Notes");
  notes.Move(0, 0, 3000, 3000);
  TextBox page(notes, "Page", -1, Kind::RichTextBox);
  page.Move(0, 0, 3000, 3000);
  TextBox line(notes, "Line");
  page.ReadOnly = line.ReadOnly = true;
  int clicks = 0;
  page.OnClick = [&] { ++clicks; };
  std::string story;
  bool takes = true;
  form.OnKeyElsewhere = [&](int code, int) {
    story += "main" + std::to_string(code) + " ";
    return takes;
  };
  form.OnKeyUp = [&](int code) { story += "up" + std::to_string(code) + " "; };
  notes.OnKeyDown = [&](int code, int) {
    story += "notes" + std::to_string(code) + " ";
    return true;
  };
  shell.Load(notes);
  shell.Show(notes);
  QWidget* other = Newest();
  ASSERT_TRUE(QTest::qWaitForWindowActive(other));
  QTest::keyClick(other->windowHandle(), Qt::Key_A);
  takes = false;
  QTest::keyClick(other->windowHandle(), Qt::Key_A);
  QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, "a", true);
  QApplication::sendEvent(other->windowHandle(), &repeated); // of a key that is held down
  EXPECT_EQ(std::exchange(story, ""), "main65 up65 main65 notes65 up65 ");
  EXPECT_TRUE(other->findChild<QPlainTextEdit*>()->isReadOnly() && other->findChild<QLineEdit*>()->isReadOnly());
  QTest::mouseClick(other->findChild<QPlainTextEdit*>()->viewport(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);

  shell.Hide(notes); // the keyboard goes back to the window before it
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  QMenu* menu = window->findChild<QMenu*>();
  takes = true;
  menu->popup(window->pos());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
  QTest::keyClick(menu->windowHandle(), Qt::Key_B);
  EXPECT_EQ(std::exchange(story, ""), "main66 up66 ");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);

  QTimer::singleShot(20, [&] {
    QTest::keyClick(other->windowHandle(), Qt::Key_C);
    story += notes.Shown ? "shown " : "";
    shell.Hide(notes);
    QTest::keyClick(other->windowHandle(), Qt::Key_D); // pressed before the window was gone
    takes = false;
    QTest::keyClick(other->windowHandle(), Qt::Key_E);
  });
  shell.ShowModal(notes); // asks something: its keys are the answer
  EXPECT_EQ(story, "notes67 up67 shown main68 up68 main69 up69 ") << "it returns when the form is hidden";
  shell.Unload(notes);
}

TEST_F(FormViewTest, TheCloseBoxAsksFirst) {
  std::string story;
  bool mayGo = false;
  form.OnQueryUnload = [&] {
    story += "query ";
    return mayGo;
  };
  form.OnUnload = [&] {
    story += "unload ";
    shell.Unload(form); // as the main form's does, inside the window's own event
  };
  window->close();
  EXPECT_TRUE(form.Shown);
  mayGo = true;
  window->close();
  EXPECT_EQ(story, "query query unload ");
  EXPECT_FALSE(form.Loaded);
}

TEST_F(FormViewTest, AControlThatComesLaterIsShownToo) {
  auto* box = static_cast<TextBox*>(form.LoadElement("Texts", 5));
  box->Move(150, 3000, 1500, 300);
  box->SetToolTipText("what it is");
  box->SetText("later");
  const QLineEdit* found = window->findChildren<QLineEdit*>().last();
  EXPECT_EQ(found->text(), "later");
  EXPECT_EQ(found->geometry(), QRect(10, 200, 100, 20));
  EXPECT_TRUE(found->isVisible());
  box->SetToolTipText("what it was");
  EXPECT_EQ(found->toolTip(), "what it was");
  auto* high = static_cast<TextBox*>(form.LoadElement("Texts", 6));
  high->Move(0, 0, 1500, 1500);
  high->SetFont({"", 0, true});
  EXPECT_GT(window->findChildren<QLineEdit*>().last()->font().pixelSize(), 2 * found->font().pixelSize());
  form.SetCaption("Later");
  EXPECT_EQ(window->windowTitle(), "Later");
  form.mnuNew.SetChecked(true);
  EXPECT_TRUE(window->findChild<QMenu*>()->actions().front()->isChecked());
  auto* label = static_cast<Label*>(form.LoadElement("Labels", 1));
  const auto colour = [shown = window->findChild<QLabel*>()] { return shown->palette().windowText().color(); };
  const QColor plain = colour();
  label->SetCaption("&No");
  EXPECT_EQ(window->findChild<QLabel*>()->text(), "No");
  label->SetForeColor(0xC00000);
  EXPECT_EQ(colour(), QColor(0xC00000));
  label->SetForeColor(-1);
  EXPECT_EQ(colour(), plain);
}

TEST_F(FormViewTest, ATimerKeepsItsTurnsButNotInsideItself) {
  Form ticking("Ticking");
  Timer timer(ticking, "IdleTimer");
  int beats = 0, depth = 0, deepest = 0;
  timer.OnTimer = [&] {
    timer.SetRunning(false);
    deepest = std::max(deepest, ++depth);
    if (++beats == 1)
      QTest::qWait(30);
    --depth;
    timer.SetRunning(beats < 4);
  };
  timer.SetInterval(60000);
  shell.Load(ticking);
  timer.SetRunning(true);
  timer.SetInterval(5);
  EXPECT_TRUE(QTest::qWaitFor([&] { return beats == 4; }, 2000));
  QTest::qWait(30);
  EXPECT_EQ(beats, 4);
  EXPECT_EQ(deepest, 1);
  timer.SetRunning(true);
  shell.Unload(ticking);
  QTest::qWait(30);
  EXPECT_EQ(beats, 4);
}

} // namespace
} // namespace trekor
