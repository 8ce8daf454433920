#include "TextsFixture.h"

namespace trekor::tests {
namespace {

TEST_F(TextsTest, WordsComeInTheLanguageElseInEnglish) {
  Make(TextTable("('W_Enter', 'Enter', 'Indtast'), ('W_NULL', 'Only English', NULL), ('W_BLANK', 'English', '')",
                 ", Danish TEXT(255)"));
  EXPECT_EQ(texts.GetText("w_enter"), "Enter");
  EXPECT_EQ(texts.GetText(""), "");
  EXPECT_EQ(texts.GetText("W_Other"), "");
  Speak("Danish");
  EXPECT_EQ(texts.GetText("W_Enter"), "Indtast");
  EXPECT_EQ(texts.GetText("W_Null"), "Only English");
  EXPECT_EQ(texts.GetText("W_Blank"), "") << "an empty word is a word";
  Speak("Korean");
  EXPECT_EQ(texts.GetText("W_Enter"), "Enter") << "a language without a column";
}

TEST_F(TextsTest, ADatabaseWithoutWordsEndsTheStart) {
  MakeTextDatabase(fakes, state.folders, FormTable("Trial"));
  EXPECT_FALSE(texts.Open());
  EXPECT_EQ(fakes.shell.boxes, std::vector<std::string>{"Cannot open C:\\Veldmark\\Trekor\\MDB\\Trekor.mdb"});
  EXPECT_EQ(texts.GetText("W_Enter"), "");
  texts.LoadFormProperties(form);
  texts.SaveFormProperties(form);
}

TEST_F(TextsTest, AMissingWorkingFileIsInstalledAndItsVersionKept) {
  MakeTextDatabase(fakes, state.folders, TextTable("('W_ENTER', 'Enter')"));
  ASSERT_TRUE(fakes.drives.DeleteFile(state.folders.MdbFolder + "\\Trekor.mdb"));
  ASSERT_TRUE(texts.Open());
  EXPECT_EQ(texts.GetText("W_ENTER"), "Enter");
  EXPECT_TRUE(state.versions.Program.Major == 2 && state.versions.Program.Minor == 3);
}

constexpr int CtrlShift = 3;

TEST_F(TextsTest, ChordsPutAndBlankTheFlagsOfTheActiveControl) {
  state.run.UserLevel = levels::Administrator;
  form.ActiveControl = &form.lblInfo;
  form.lblInfo.SetTag("Q");
  const auto press = [&](const char* keys) {
    for (; *keys; ++keys)
      EXPECT_TRUE(texts.FormKeyDown(form, *keys, CtrlShift)) << *keys;
    return form.lblInfo.Tag() + (form.lblInfo.Enabled() ? "" : " locked") + (form.lblInfo.Visible() ? "" : " hidden");
  };
  EXPECT_EQ(press("DDH"), "QDH locked hidden");
  EXPECT_EQ(press("ES"), "Q  ");
  for (int i = 0; i < 50; ++i)
    press("DE");
  EXPECT_EQ(form.lblInfo.Tag().size(), 3U) << "the tag must not outgrow its column";
}

TEST_F(TextsTest, ChordsAreForMaintenanceOnly) {
  CheckBox reach(form, "AdministratorCheck");
  const std::tuple<Control*, int, int, int> cases[] = {
      {&form.lblInfo, 0, 'D', CtrlShift}, {&form.lblInfo, 9, 'D', 2},  {&form.lblInfo, 9, 'E', 7},
      {&form.lblInfo, 9, 'X', CtrlShift}, {&reach, 9, 'H', CtrlShift}, {nullptr, 9, 'H', CtrlShift}};
  for (const auto& [control, level, key, shift] : cases) {
    form.ActiveControl = control;
    state.run.UserLevel = level;
    EXPECT_FALSE(texts.FormKeyDown(form, key, shift)) << level << " " << key << " " << shift;
  }
  EXPECT_TRUE(reach.Visible());
  EXPECT_EQ(form.lblInfo.Tag(), "");
}

} // namespace
} // namespace trekor::tests
