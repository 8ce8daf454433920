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
  EXPECT_EQ(state.versions.Program.Major, 2);
  EXPECT_EQ(state.versions.Program.Minor, 3);
}

} // namespace
} // namespace trekor::tests
