#include "TextsFixture.h"

namespace trekor::tests {
namespace {

TEST_F(TextsTest, AFormSavedAndLoadedBackLooksTheSame) {
  MakeForm("('Me', 0, 0, 0, 2000, NULL, -1, 'Q', 'x', ''), ('lblInfo', 0, 0, 0, 0, NULL, -1, 'Q', 'old', '')");
  form.Move(10, 20, 3000, 2222);
  form.SetCaption("Trial run");
  form.lblInfo.SetCaption("Station");
  form.lblInfo.SetToolTipText("Where");
  form.Texts7.Move(1, 2, 3, 4);
  form.Texts7.SetText("\xC3\xA6|;");
  form.chkFreeze.SetValue(2);
  form.Options1.Container = &form.Frames1;
  form.Options1.SetValue(true);
  form.cboUnits.AddItem("KM");
  form.cboUnits.AddItem("M");
  form.cboUnits.SetListIndex(1);
  form.cboTyped.SetText("typed");
  form.fxgList.SetFormatString("Code|Name");
  form.fxgList.SetColWidth(1, 777);
  form.TabStrip1.SetCaption(1, "Keys");
  form.TabStrip1.SetSelected(1);
  form.sbrState.SetSimpleText("Ready");
  form.mnuFile.SetChecked(true);
  form.chkFreeze.SetVisible(false);
  texts.SaveFormProperties(form);

  EXPECT_EQ(Ask("SELECT \"Left\", Top, Width, Height, Tag, CapEnglish FROM Trial WHERE Name = 'Me'"),
            "10,20,3000,2222,QC,Trial run\n");
  EXPECT_EQ(Ask("SELECT Value, CapEnglish FROM Trial WHERE Name IN ('cboUnits', 'fxgList', 'TabStrip1', 'mnuFile', "
                "'IdleTimer') ORDER BY Name COLLATE NOCASE"),
            "1,KM|M\n-1;777;-1,Code|Name\nnull,null\n-1,\n1,|Keys\n");
  EXPECT_EQ(Ask("SELECT \"Left\", Visible FROM Trial WHERE Name = 'IdleTimer'"), "null,null\n");

  TrialForm again;
  texts.LoadFormProperties(again);
  EXPECT_EQ(again.Look(), form.Look());
  again.lblInfo.SetToolTipText("Elsewhere"); // and nothing but that
  texts.SaveFormProperties(again);
  EXPECT_EQ(Ask("SELECT TipEnglish FROM Trial WHERE Name = 'lblInfo'"), "Elsewhere\n");
}

TEST_F(TextsTest, NothingIsWrittenWhenNothingHasChanged) {
  MakeForm("");
  form.Texts7.SetText(std::string(300, 'x'));
  form.lblInfo.SetToolTipText(std::string(300, 'x'));
  for (int i = 0; i < 60; ++i)
    form.cboUnits.AddItem("unit" + std::to_string(i));
  texts.SaveFormProperties(form);
  const std::string bytes = FileBytes();
  texts.SaveFormProperties(form);
  TrialForm again;
  texts.LoadFormProperties(again);
  EXPECT_EQ(FileBytes(), bytes);
  form.Texts7.Move(0, 0, 1, 0);
  texts.SaveFormProperties(form);
  EXPECT_NE(FileBytes(), bytes);
  EXPECT_EQ(Ask("SELECT count(*), count(DISTINCT Name) FROM Trial"), "15,15\n");
}

TEST_F(TextsTest, AListThatIsTooLongLosesWholeEntries) {
  MakeForm("");
  for (int i = 10; i < 99; ++i)
    form.cboUnits.AddItem("entry" + std::to_string(i)); // 7 characters and the bar: 32 entries make 255
  form.fxgList.SetCols(99);
  for (int c = 0; c < 99; ++c)
    form.fxgList.SetColWidth(c, 12345);
  texts.SaveFormProperties(form);
  TrialForm again;
  again.fxgList.SetCols(99);
  texts.LoadFormProperties(again);
  texts.SaveFormProperties(again); // what fits to the last character stays
  texts.LoadFormProperties(again);
  EXPECT_EQ(again.cboUnits.ListCount(), 32);
  EXPECT_EQ(again.cboUnits.List(31), "entry41");
  EXPECT_EQ(again.fxgList.ColWidth(41), 12345);
  EXPECT_EQ(again.fxgList.ColWidth(42), -1);
}

TEST_F(TextsTest, ChineseWordsAreLeftToTheirTranslatorsAndALanguageWithoutColumnsHasNone) {
  MakeForm("('lblInfo', 0, 0, 0, 0, NULL, -1, '', 'English', 'Tip')", ", CapChinese TEXT(255), TipChinese TEXT(255)");
  form.lblInfo.SetCaption("written by the program");
  form.lblInfo.SetToolTipText("also");
  for (const std::string language : {"Chinese", "Danish"}) {
    Speak(language);
    form.lblInfo.Move(static_cast<int>(language.size()), 2, 3, 4);
    texts.SaveFormProperties(form);
    EXPECT_EQ(Ask("SELECT \"Left\", CapEnglish, TipEnglish, CapChinese, TipChinese FROM Trial WHERE Name = 'lblInfo'"),
              std::to_string(language.size()) + ",English,Tip,null,null\n");
    const std::string bytes = FileBytes();
    texts.SaveFormProperties(form);
    EXPECT_EQ(FileBytes(), bytes);
  }
}

// It looks as it was built, at place 0 and without words, and would be stored so for good.
TEST_F(TextsTest, AFormWhoseLookCouldNotBeReadIsNotKept) {
  MakeForm("('lblInfo', 10, 20, 30, 40, NULL, -1, '', 'Station', '')");
  const std::string before = FileBytes();
  {
    const auto other = OpenFile(); // writes, and lets nobody read meanwhile
    ASSERT_TRUE(other->Execute("BEGIN EXCLUSIVE"));
    texts.LoadFormProperties(form);
  }
  texts.SaveFormProperties(form);
  EXPECT_TRUE(FileBytes() == before);
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.lblInfo.Caption(), "Station");
  form.lblInfo.Move(1, 2, 3, 4);
  texts.SaveFormProperties(form);
  EXPECT_EQ(Ask("SELECT Width, CapEnglish FROM Trial WHERE Name = 'lblInfo'"), "3,Station\n");
}

// A page in the middle of the table: half a look is none.
TEST_F(TextsTest, AFormWhoseLookIsReadInPartStandsAsItWasBuilt) {
  std::string rows = "('lblInfo', 10, 20, 30, 40, NULL, -1, '', 'Station', '')";
  for (int i = 10; i < 60; ++i)
    rows += ", ('Texts(" + std::to_string(i) + ")', 0, 0, 0, 0, NULL, -1, '', 'MARK" + std::string(240, 'x') + "', '')";
  MakeForm(rows);
  std::string before = FileBytes();
  fakes.drives.Write(WorkingFile(), before.replace(before.rfind("MARK") / 4096 * 4096, 4096, 4096, '\x7f'));
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.lblInfo.Caption(), "");
  texts.SaveFormProperties(form);
  EXPECT_TRUE(FileBytes() == before);
}

TEST_F(TextsTest, WhatAFlagHidIsNotHiddenForTheNextUser) {
  MakeForm("('lblInfo', 0, 0, 0, 0, NULL, -1, 'H', 'x', '')");
  state.run.UserLevel = levels::User;
  texts.LoadFormProperties(form);
  texts.SaveFormProperties(form);
  EXPECT_FALSE(form.lblInfo.Visible());
  state.run.UserLevel = levels::Administrator;
  TrialForm again;
  texts.LoadFormProperties(again);
  EXPECT_TRUE(again.lblInfo.Visible());
}

} // namespace
} // namespace trekor::tests
