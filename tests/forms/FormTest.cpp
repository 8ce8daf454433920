#include "forms/Form.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

class FormTest : public testing::Test, protected Form::Listener {
protected:
  FormTest() { form.SetListener(this); }
  void FormChanged(Form&, Change what) override { heard.push_back(what); }
  void ControlAdded(Form&, Control& control) override { added += control.FullName() + " "; }
  void FormRefresh(Form&) override {}
  std::vector<Change> heard;
  std::string added;
  Form form{"Trial"};
};

TEST_F(FormTest, ControlsStandInTheOrderOfTheirComingUntilTheyGo) {
  Label first(form, "lblFirst");
  TextBox seventh(form, "Texts", 7), eighth(form, "Texts", 8);
  {
    Frame frame(form, "Frames", 0);
    first.Container = form.ActiveControl = &frame;
  }
  EXPECT_EQ(form.Controls(), (std::vector<Control*>{&first, &seventh, &eighth}));
  EXPECT_EQ(first.Container, nullptr);
  EXPECT_EQ(form.ActiveControl, nullptr);
  EXPECT_EQ(form.Find("LBLFIRST"), &first);
  EXPECT_EQ(form.Find("texts", 8), &eighth);
  EXPECT_EQ(form.Find("Texts"), nullptr) << "an element is not found without its index";
}

TEST_F(FormTest, ElementsOfTheGenericArraysAreMadeOnceBesideTheirFellows) {
  Frame frame(form, "StepFrame");
  TextBox eighth(form, "Texts", 8), seventh(form, "Texts", 7);
  seventh.Container = &frame;
  seventh.Move(1, 2, 3, 4);
  added.clear();
  Control* ninth = form.LoadElement("texts", 9);
  ASSERT_TRUE(ninth);
  EXPECT_EQ(ninth->TypeOf(), Kind::TextBox);
  EXPECT_EQ(ninth->Container, &frame);
  EXPECT_EQ(ninth->Width, 3);
  EXPECT_EQ(form.LoadElement("Texts", 9), ninth);
  EXPECT_EQ(added, "Texts(9) ");
  EXPECT_EQ(form.LoadElement("Texts", 7), &seventh);
  for (const auto& [name, index] : {std::pair{"Lines", 1}, {"tabFrames", 4}, {"Labels", -1}})
    EXPECT_EQ(form.LoadElement(name, index), nullptr) << name;
}

TEST_F(FormTest, TheFormTellsOnlyWhatHasChanged) {
  form.Move(0, 0, 0, 0);
  for (int time = 0; time < 2; ++time) {
    form.SetCaption("Trekor");
    form.Move(0, 0, 100, 50);
    form.SetWindowState(WindowStates::Maximised);
  }
  EXPECT_EQ(heard, (std::vector<Change>{Change::Caption, Change::Geometry, Change::Geometry}));
}

} // namespace
} // namespace trekor
