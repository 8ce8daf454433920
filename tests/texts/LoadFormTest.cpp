#include "TextsFixture.h"

namespace trekor::tests {
namespace {

TEST_F(TextsTest, EveryKindTakesItsCaptionAndItsValue) {
  MakeForm("('Me', 100, 200, 3000, 2000, NULL, -1, 'C', 'Trial run', NULL),"
           "('lblInfo', 1, 2, 3, 4, 'no value', -1, '', 'Station', 'Where we are'),"
           "('Texts(7)', NULL, 20, NULL, 40, NULL, 0, '', '0.1', ''),"
           "('chkFreeze', 0, 0, 0, 0, '1', -1, '', 'Freeze NumLock', ''),"
           "('cboUnits', 0, 0, 0, 0, '2', -1, '', 'KM|M|ML', ''),"
           "('cboTyped', 0, 0, 0, 0, NULL, -1, '', 'KM|M', ''),"
           "('fxgList', 0, 0, 0, 0, '900;-1;450', -1, '', 'Code|^Name', ''),"
           "('TabStrip1', 0, 0, 0, 0, '1', -1, '', 'Info|Keys|none', ''),"
           "('sbrState', 0, 0, 0, 0, NULL, -1, '', 'Ready', ''),"
           "('mnuFile', 5, 5, 5, 5, '-1', -1, '', '&File', ''),"
           "('Options(0)', 0, 0, 0, 0, '-1', -1, '', 'a', ''), ('Options(1)', 0, 0, 0, 0, 'True', -1, '', 'b', ''),"
           "('Texts(9)', 11, 12, 13, 14, NULL, -1, '', 'new', 'made by its row'),"
           "('IdleTimer', 5, 5, 5, 5, '25', 0, '', 'tick', '')");
  form.Texts7.Move(10, 10, 30, 30);
  form.Texts7.SetToolTipText("built in");
  texts.LoadFormProperties(form);

  // A null keeps what was built in, and a menu has no place.
  EXPECT_EQ(form.Look(), "Trial run 100,3000,2000|Station Where we are 1,4|0.1 hidden 10,40|Freeze NumLock 1 0,0|ML of "
                         "3 0,0|KM|M 0,0|Code Name 900 -1 450 0,0|Keys 1 0,0|Ready 0,0|&File ticked 0|0|1");
  EXPECT_EQ(form.Texts7.ToolTipText(), "built in");
  // Each option is alone in its frame, so that none clears the other.
  EXPECT_EQ(form.Options0.Container, &form.Frames0);
  EXPECT_EQ(form.Options1.Container, &form.Frames1);
  const auto* ninth = dynamic_cast<TextBox*>(form.Find("Texts", 9));
  ASSERT_TRUE(ninth);
  EXPECT_EQ(ninth->Text() + std::to_string(ninth->Left) + (ninth->Visible() ? "" : " hidden"), "new11");
}

TEST_F(TextsTest, WhatDoesNotSuitIsSkippedAlone) {
  MakeForm("('chkFreeze', 0, 0, 0, 0, 'ticked', -1, '', 'Freeze', ''),"
           "('cboUnits', 0, 0, 0, 0, '7', -1, '', 'KM|M', ''),"
           "('fxgList', 0, 0, 0, 0, '900;wide;300;5;6;7', -1, '', NULL, ''),"
           "('lblMisspelt', 0, 0, 0, 0, '1', -1, '', 'x', ''),"
           "('Texts(', 0, 0, 0, 0, '1', -1, '', 'x', ''), ('Texts(-3)', 0, 0, 0, 0, '1', -1, '', 'x', ''),"
           "('Unheard(4)', 0, 0, 0, 0, '1', -1, '', 'x', ''), ('Texts(8x)', 0, 0, 0, 0, '1', -1, '', 'x', '')");
  const std::size_t before = form.Controls().size();
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.Look(), " 0,0,0|  0,0| 0,0|Freeze 0 0,0| of 2 0,0| 0,0|  900 -1 300 0,0| -1 0,0| 0,0| 0||");
  EXPECT_EQ(form.Controls().size(), before);
}

TEST_F(TextsTest, AFormWithoutRowsOrTableKeepsItsBuiltInLook) {
  form.lblInfo.SetCaption("built in");
  MakeForm("");
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.lblInfo.Caption(), "built in");
  Form stranger("Stranger");
  texts.LoadFormProperties(stranger);
  texts.SaveFormProperties(stranger);
}

// Stored height, tag, and the inside height that the form gets.
TEST_F(TextsTest, AHeightIsStoredWithOrWithoutTheTitleBar) {
  MakeForm("('Me', 0, 0, 0, 2000, NULL, -1, 'C', 'x', '')");
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.Height, 2000);
  Execute("UPDATE Trial SET Tag = NULL");
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.Height, 2000 + 6 * 15 - 25 * 15);
}

TEST_F(TextsTest, BlankWordsOfALanguageAreReplacedByEnglish) {
  MakeForm("('Me', 0, 0, 0, 0, NULL, -1, '', '', ''), ('lblInfo', 0, 0, 0, 0, NULL, -1, '', 'Station', 'Tip'), "
           "('chkFreeze', 0, 0, 0, 0, NULL, -1, '', 'A', 'B')",
           ", CapDanish TEXT(255), TipDanish TEXT(255)");
  Execute("UPDATE Trial SET CapDanish = '  ' WHERE Name = 'lblInfo'");
  Execute("UPDATE Trial SET CapDanish = 'Frys', TipDanish = 'Tippet' WHERE Name = 'chkFreeze'");
  form.SetCaption("built in");
  Speak("Danish");
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.Caption(), "built in");
  EXPECT_EQ(form.lblInfo.Caption(), "Station");
  EXPECT_EQ(form.lblInfo.ToolTipText(), "Tip");
  EXPECT_EQ(form.chkFreeze.Caption(), "Frys");
  EXPECT_EQ(form.chkFreeze.ToolTipText(), "Tippet");
  Speak("Korean");
  texts.LoadFormProperties(form);
  EXPECT_EQ(form.chkFreeze.Caption(), "A") << "never the words of another language";
  for (const auto& [language, charset, font] : {std::tuple{"Korean", 129, "\uAD74\uB9BC"},
                                                {"Chinese", 134, "\u5B8B\u4F53"},
                                                {"Russian", 204, "\u5B8B\u4F53"},
                                                {"Danish", 1, ""}}) {
    Speak(language);
    texts.LoadFormProperties(form);
    for (const Font& f : {form.FontOf, form.lblInfo.FontOf()})
      EXPECT_TRUE(f.Charset == charset && f.Name == font) << language;
  }
}

TEST_F(TextsTest, FlagsLockAndHideForOrdinaryUsersOnly) {
  MakeForm("('lblInfo', 0, 0, 0, 0, NULL, -1, '', 'x', '')");
  const std::tuple<int, std::string, bool, bool> cases[] = {{0, "DH", false, false}, {-1, "D", false, true},
                                                            {0, "H", true, false},   {0, "C", true, true},
                                                            {1, "DH", true, true},   {9, "DH", true, true}};
  for (const auto& [level, tag, enabled, visible] : cases) {
    SCOPED_TRACE(tag + " at level " + std::to_string(level));
    Execute("UPDATE Trial SET Tag = '" + tag + "'");
    state.run.UserLevel = level;
    TrialForm fresh;
    texts.LoadFormProperties(fresh);
    EXPECT_EQ(fresh.lblInfo.Enabled(), enabled);
    EXPECT_EQ(fresh.lblInfo.Visible(), visible);
    EXPECT_EQ(fresh.lblInfo.Tag(), tag);
  }
}

} // namespace
} // namespace trekor::tests
