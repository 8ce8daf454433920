#include "forms/Form.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

struct FormEar : Form::Listener {
  std::vector<std::string> added;
  std::vector<Change> heard;
  void FormChanged(Form&, Change what) override { heard.push_back(what); }
  void ControlAdded(Form&, Control& control) override { added.push_back(control.FullName()); }
  void FormRefresh(Form&) override {}
};

TEST(FormTest, ControlsStandInTheOrderOfTheirComingAndAreFoundWithoutCase) {
  Form form("Trial");
  Label first(form, "lblFirst");
  TextBox seventh(form, "Texts", 7), eighth(form, "Texts", 8);
  EXPECT_EQ(form.Controls(), (std::vector<Control*>{&first, &seventh, &eighth}));
  EXPECT_EQ(form.Find("LBLFIRST"), &first);
  EXPECT_EQ(form.Find("texts", 8), &eighth);
  EXPECT_EQ(form.Find("Texts"), nullptr) << "an element is not found without its index";
  EXPECT_EQ(eighth.FullName(), "Texts(8)");
}

TEST(FormTest, AControlThatGoesIsForgottenEverywhere) {
  Form form("Trial");
  Label stays(form, "lblStays");
  {
    Frame frame(form, "Frames", 0);
    stays.Container = &frame;
    form.ActiveControl = &frame;
  }
  EXPECT_EQ(form.Controls(), std::vector<Control*>{&stays});
  EXPECT_EQ(stays.Container, nullptr);
  EXPECT_EQ(form.ActiveControl, nullptr);
}

TEST(FormTest, ElementsOfTheGenericArraysAreMadeOnceBesideTheirFellows) {
  FormEar ear;
  Form form("Trial");
  form.SetListener(&ear);
  Frame frame(form, "StepFrame");
  TextBox eighth(form, "Texts", 8), seventh(form, "Texts", 7);
  seventh.Container = &frame;
  seventh.Move(1, 2, 3, 4);

  Control* ninth = form.LoadElement("texts", 9);
  ASSERT_TRUE(ninth);
  EXPECT_EQ(ninth->TypeOf(), Kind::TextBox);
  EXPECT_EQ(ninth->FullName(), "Texts(9)");
  EXPECT_EQ(ninth->Container, &frame);
  EXPECT_EQ(ninth->Width, 3);
  EXPECT_EQ(form.LoadElement("Texts", 9), ninth);
  EXPECT_EQ(ear.added, std::vector<std::string>{"Texts(9)"});

  EXPECT_EQ(form.LoadElement("Texts", 7), &seventh);
  EXPECT_EQ(form.LoadElement("Lines", 1), nullptr);
  EXPECT_EQ(form.LoadElement("tabFrames", 4), nullptr);
  EXPECT_EQ(form.LoadElement("Labels", -1), nullptr);
}

TEST(FormTest, TheFormTellsOnlyWhatHasChanged) {
  FormEar ear;
  Form form("Trial");
  form.SetListener(&ear);
  form.SetCaption("Trekor");
  form.SetCaption("Trekor");
  form.Move(0, 0, 0, 0);
  form.Move(0, 0, 100, 50);
  form.SetWindowState(2);
  EXPECT_EQ(ear.heard, (std::vector<Change>{Change::Caption, Change::Geometry, Change::Geometry}));
}

} // namespace
} // namespace trekor
