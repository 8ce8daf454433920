// What each kind tells its view and its logic, when code writes it and when the operator acts.
#include "forms/Form.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

struct Ear : ControlListener {
  std::vector<Change> heard;
  void ControlChanged(Control&, Change what) override { heard.push_back(what); }
  std::vector<Change> Take() { return std::exchange(heard, {}); }
};

using Heard = std::vector<Change>;

class ControlsTest : public testing::Test {
protected:
  template <class Sort> Sort& Listen(Sort& control) {
    control.SetListener(&ear);
    return control;
  }
  Handler Count() {
    return [this] { ++raised; };
  }
  Form form{"Trial"};
  Ear ear;
  int raised = 0;
};

TEST_F(ControlsTest, AWriteThatChangesNothingIsNotTold) {
  Label label(form, "lblOne");
  Listen(label).SetCaption("Station");
  label.SetCaption("Station");
  label.Move(10, 20, 30, 40);
  label.Move(10, 20, 30, 40);
  label.SetVisible(true);
  label.SetEnabled(false);
  label.SetEnabled(false);
  EXPECT_EQ(ear.Take(), (Heard{Change::Caption, Change::Geometry, Change::Enabled}));
}

TEST_F(ControlsTest, TextBoxRaisesChangeForCodeAndOperatorAlike) {
  TextBox box(form, "txtBox");
  box.OnChange = Count();
  box.SetText("1.0");
  box.SetText("1.0");
  EXPECT_EQ(raised, 1);
  box.Type("1.5");
  box.Type("1.5");
  EXPECT_EQ(raised, 2);
  EXPECT_EQ(box.SelStart, 3);
}

TEST_F(ControlsTest, TypingIsCutAtCharactersAndTheViewIsToldWhatStayed) {
  TextBox box(form, "txtBox");
  box.MaxLength = 3;
  Listen(box).Type("\xC3\xA6\xC3\xB8\xE4\xBD\x93\xC3\xA5");
  EXPECT_EQ(box.Text(), "\xC3\xA6\xC3\xB8\xE4\xBD\x93");
  box.SelectAll();
  EXPECT_EQ(box.SelLength, 3);
  box.SetText("written by code, uncut");
  EXPECT_EQ(box.Text(), "written by code, uncut");
}

TEST_F(ControlsTest, ABoxThatCannotBeTypedKeepsItsTextAndCorrectsTheScreen) {
  TextBox box(form, "txtBox");
  box.SetText("kept");
  box.OnChange = Count();
  Listen(box).ReadOnly = true;
  box.Type("typed");
  box.ReadOnly = false;
  box.SetEnabled(false);
  box.Type("typed");
  EXPECT_EQ(box.Text(), "kept");
  EXPECT_EQ(raised, 0);
  EXPECT_EQ(ear.Take(), (Heard{Change::Text, Change::Enabled, Change::Text}));
}

TEST_F(ControlsTest, CheckBoxHearsBothSidesAndTheOperatorLeavesGrey) {
  CheckBox box(form, "chkOne");
  box.OnClick = Count();
  box.SetValue(2);
  box.Click();
  EXPECT_EQ(box.Value(), 0);
  box.Click();
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(raised, 3);
  box.SetValue(3);
  box.SetEnabled(false);
  box.Click();
  EXPECT_EQ(box.Value(), 1);
  EXPECT_EQ(raised, 3);
}

TEST_F(ControlsTest, OptionButtonsExcludeEachOtherWithinTheirContainer) {
  Frame frame(form, "Frames", 1);
  OptionButton a(form, "Options", 0), b(form, "Options", 1), inside(form, "Options", 2);
  inside.Container = &frame;
  inside.SetValue(true);
  a.SetValue(true);
  a.OnClick = Count();
  b.OnClick = Count();
  Listen(a);
  b.Click();
  EXPECT_FALSE(a.Value());
  EXPECT_TRUE(b.Value());
  EXPECT_TRUE(inside.Value());
  EXPECT_EQ(raised, 1) << "only the button that became true is clicked";
  EXPECT_EQ(ear.Take(), Heard{Change::Value});
}

TEST_F(ControlsTest, ComboBoxIsClickedByEveryChoiceButOnlyByAnotherIndexOfCode) {
  ComboBox box(form, "cboUnits");
  for (const char* unit : {"KM", "M", "ML"})
    box.AddItem(unit);
  box.OnClick = Count();
  box.SetListIndex(1);
  box.SetListIndex(1);
  EXPECT_EQ(raised, 1);
  box.Select(1);
  EXPECT_EQ(raised, 2);
  box.SetListIndex(3);
  box.Select(-2);
  box.SetText("YARDS");
  EXPECT_EQ(box.Text(), "M") << "what stands in no list is not taken";
  box.SetText("ML");
  EXPECT_EQ(box.ListIndex(), 2);
  box.Clear();
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(box.List(0), "");
  EXPECT_EQ(raised, 3);
}

TEST_F(ControlsTest, ListOfSeveralKeepsAMarkForEachEntry) {
  ListBox list(form, "lstSetups");
  list.MultiSelect = true;
  list.AddItem("one");
  list.AddItem("two");
  list.Select(0);
  list.Select(1);
  list.Select(0);
  EXPECT_FALSE(list.Selected(0));
  EXPECT_TRUE(list.Selected(1));
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_FALSE(list.Selected(2));
}

TEST_F(ControlsTest, DisabledButtonsPicturesAndTabsDoNotReact) {
  ToolBar bar(form, "tbControlBar");
  bar.Add({"play", "", "", "", true});
  bar.Add({"stop", "", "", "", false});
  std::string clicked;
  bar.OnButtonClick = [&](const std::string& key) { clicked += key + " "; };
  bar.ClickButton("PLAY");
  bar.ClickButton("stop");
  bar.ClickButton("none");
  bar.SetButtonEnabled("stop", true);
  bar.ClickButton("stop");
  EXPECT_EQ(clicked, "play stop ");

  Image picture(form, "UpDnPicture");
  picture.OnClick = Count();
  picture.SetEnabled(false);
  picture.Click();
  EXPECT_EQ(raised, 0);

  TabStrip tabs(form, "TabStrip1");
  tabs.OnClick = Count();
  tabs.Add("Info", "Info");
  tabs.Select(0);
  tabs.Select(0);
  tabs.Select(1);
  EXPECT_EQ(raised, 1);
}

TEST_F(ControlsTest, TheFirstPictureOfAKeyStays) {
  ImageList list(form, "imlObsPics");
  EXPECT_TRUE(list.Add({"CRACK.BMP", "Crack.bmp", "C:\\a"}));
  EXPECT_FALSE(list.Add({"crack.bmp", "crack.bmp", "C:\\b"}));
  ASSERT_TRUE(list.Find("Crack.BMP"));
  EXPECT_EQ(list.Find("Crack.BMP")->File, "C:\\a");
  EXPECT_FALSE(list.Find("other"));
}

TEST_F(ControlsTest, ATimerThatIsOffDoesNotFire) {
  Timer timer(form, "IdleTimer");
  timer.OnTimer = Count();
  timer.Fire();
  timer.SetRunning(true);
  timer.Fire();
  EXPECT_EQ(raised, 1);
}

} // namespace
} // namespace trekor
