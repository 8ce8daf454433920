// What each kind tells its view and its logic. What the operator does on the screen is tried with the views.
#include "forms/Form.h"
#include "forms/Grid.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

using Heard = std::vector<Change>;

class ControlsTest : public testing::Test, protected ControlListener {
protected:
  void ControlChanged(Control&, Change what) override { heard.push_back(what); }
  Handler Count() {
    return [this] { ++raised; };
  }
  Form form{"Trial"};
  Heard heard;
  int raised = 0;
};

TEST_F(ControlsTest, AWriteThatChangesNothingIsNotTold) {
  Label label(form, "lblOne");
  label.SetListener(this);
  for (int time = 0; time < 2; ++time) {
    label.SetCaption("Station");
    label.Move(10, 20, 30, 40);
    label.SetVisible(true);
    label.SetEnabled(false);
  }
  EXPECT_EQ(heard, (Heard{Change::Caption, Change::Geometry, Change::Enabled}));
}

TEST_F(ControlsTest, ABoxTakesWhatFitsAndCorrectsTheScreen) {
  TextBox box(form, "txtBox");
  box.OnChange = Count();
  for (int time = 0; time < 2; ++time)
    box.SetText("1.0");
  EXPECT_EQ(raised, 1);
  for (int time = 0; time < 2; ++time)
    box.Type("1.5");
  EXPECT_EQ(raised, 2);
  EXPECT_EQ(box.SelStart, 3);
  EXPECT_TRUE(box.Edited());
  box.MaxLength = 3;
  box.Type("\xC3\xA6\xC3\xB8\xE4\xBD\x93\xC3\xA5");
  EXPECT_EQ(box.Text(), "\xC3\xA6\xC3\xB8\xE4\xBD\x93") << "cut at characters";
  box.SelectAll();
  EXPECT_EQ(box.SelLength, 3);
  box.SetText("written by code, uncut");
  EXPECT_EQ(raised, 4);
  EXPECT_FALSE(box.Edited());
  box.SetListener(this);
  box.ReadOnly = true;
  box.Type("typed");
  box.ReadOnly = false;
  box.SetEnabled(false);
  box.Type("typed");
  EXPECT_EQ(box.Text(), "written by code, uncut");
  EXPECT_EQ(raised, 4);
  EXPECT_EQ(heard, (Heard{Change::Text, Change::Enabled, Change::Text}));
}

TEST_F(ControlsTest, WhatIsOffDoesNotReact) {
  ToolBar bar(form, "tbControlBar");
  bar.Add({"play", "", "", "", true});
  bar.Add({"stop", "", "", "", false});
  std::string clicked;
  bar.OnButtonClick = [&](const std::string& key) { clicked += key + " "; };
  for (const char* key : {"PLAY", "stop", "none"})
    bar.ClickButton(key);
  bar.SetButtonEnabled("stop", true);
  bar.ClickButton("stop");
  EXPECT_EQ(clicked, "play stop ");

  Image picture(form, "UpDnPicture");
  CheckBox box(form, "chkOne");
  Menu entry(form, "mnuFile");
  Grid grid(form, "Grid");
  grid.SetCols(1), grid.SetRows(1);
  grid.OnClick = [this](int, int) { ++raised; };
  entry.SetEnabled(false), grid.SetEnabled(false);
  entry.OnClick = picture.OnClick = box.OnClick = Count();
  entry.Click(), grid.Click(0, 0);
  picture.SetEnabled(false);
  picture.Click();
  box.SetEnabled(false);
  box.Click();
  EXPECT_EQ(raised, 0);

  TabStrip tabs(form, "TabStrip1");
  tabs.OnClick = Count();
  tabs.Add("Info", "Info");
  for (const int tab : {0, 0, 1})
    tabs.Select(tab);
  EXPECT_EQ(raised, 1);

  Timer timer(form, "IdleTimer");
  timer.OnTimer = Count();
  timer.Fire();
  timer.SetRunning(true);
  timer.Fire();
  EXPECT_EQ(raised, 2);
}

TEST_F(ControlsTest, TheFirstPictureOfAKeyStays) {
  ImageList list(form, "imlObsPics");
  EXPECT_TRUE(list.Add({"CRACK.BMP", "Crack.bmp", "C:\\a"}));
  EXPECT_FALSE(list.Add({"crack.bmp", "crack.bmp", "C:\\b"}));
  ASSERT_TRUE(list.Find("Crack.BMP"));
  EXPECT_EQ(list.Find("Crack.BMP")->File, "C:\\a");
  EXPECT_FALSE(list.Find("other"));
}

} // namespace
} // namespace trekor
