#include "TextsFixture.h"

namespace trekor::tests {
namespace {

constexpr int CtrlShift = 3;

TEST_F(TextsTest, ChordsPutAndBlankTheFlagsOfTheActiveControl) {
  state.run.UserLevel = 1;
  form.ActiveControl = &form.lblInfo;
  form.lblInfo.SetTag("Q");
  EXPECT_TRUE(texts.FormKeyDown(form, 'D', CtrlShift));
  EXPECT_TRUE(texts.FormKeyDown(form, 'D', CtrlShift));
  EXPECT_TRUE(texts.FormKeyDown(form, 'H', CtrlShift));
  EXPECT_EQ(form.lblInfo.Tag(), "QDH");
  EXPECT_FALSE(form.lblInfo.Enabled());
  EXPECT_FALSE(form.lblInfo.Visible());
  EXPECT_TRUE(texts.FormKeyDown(form, 'E', CtrlShift));
  EXPECT_TRUE(texts.FormKeyDown(form, 'S', CtrlShift));
  EXPECT_EQ(form.lblInfo.Tag(), "Q  ");
  EXPECT_TRUE(form.lblInfo.Enabled());
  EXPECT_TRUE(form.lblInfo.Visible());
  for (int i = 0; i < 50; ++i) {
    texts.FormKeyDown(form, 'D', CtrlShift);
    texts.FormKeyDown(form, 'E', CtrlShift);
  }
  EXPECT_EQ(form.lblInfo.Tag().size(), 3U) << "the tag must not outgrow its column";
}

TEST_F(TextsTest, ChordsAreForMaintenanceOnly) {
  const auto pressed = [&](int key, int shift) { return texts.FormKeyDown(form, key, shift); };
  form.ActiveControl = &form.lblInfo;
  state.run.UserLevel = 0;
  EXPECT_FALSE(pressed('D', CtrlShift));
  state.run.UserLevel = 9;
  EXPECT_FALSE(pressed('D', 2));
  EXPECT_FALSE(pressed('E', 7));
  EXPECT_FALSE(pressed('X', CtrlShift));
  CheckBox reach(form, "AdministratorCheck");
  form.ActiveControl = &reach;
  EXPECT_FALSE(pressed('H', CtrlShift));
  EXPECT_TRUE(reach.Visible());
  form.ActiveControl = nullptr;
  EXPECT_FALSE(pressed('H', CtrlShift));
  EXPECT_EQ(form.lblInfo.Tag(), "");
}

} // namespace
} // namespace trekor::tests
