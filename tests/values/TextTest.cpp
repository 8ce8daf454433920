// Text in characters, not bytes, and the code page of the link.
#include "values/Text.h"

#include "support/Case.h"

#include <gtest/gtest.h>

namespace trekor {
namespace {

TEST(TextTest, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(Trim("  a b \t "), "a b \t");
  EXPECT_EQ(Trim("   "), "");
}

TEST(TextTest, CaseFollowsTheAlphabet) {
  for (const tests::Case c : {"trekor 5 -> TREKOR 5", "æøåéñÿ -> ÆØÅÉÑŸ", "šžğőź -> ŠŽĞŐŹ", "άέήίόύώαβω -> ΆΈΉΊΌΎΏΑΒΩ",
                              "дорожный ёђ -> ДОРОЖНЫЙ ЁЂ", "ṽạ -> ṼẠ", "ß×÷道 -> ß×÷道"}) {
    EXPECT_EQ(Upper(c.given), c.wanted);
    EXPECT_EQ(Lower(c.wanted), c.given);
    EXPECT_TRUE(SameText(c.given, c.wanted)) << c.line;
  }
  EXPECT_EQ(Upper("λόγος"), "ΛΌΓΟΣ");
  EXPECT_TRUE(SameText("ΛΌΓΟΣ", "λόγος"));
  EXPECT_FALSE(SameText("a", "ab"));
  EXPECT_FALSE(SameText("\xFF", "\xFE"));
  EXPECT_EQ(Upper("a\xFFz\xC3"), "A\xFFZ\xC3"); // what is no character stays
}

TEST(TextTest, WidthsAndCutsCountCharacters) {
  EXPECT_EQ(CharCount("Århus 道"), 7);
  EXPECT_EQ(CutText("Århus", 2), "År");
  EXPECT_EQ(CutText("Å", 5), "Å");
  EXPECT_EQ(FixedWidth("Åb", 4), "Åb  ");
  EXPECT_EQ(FixedWidth("Århus", 3), "Årh");
  EXPECT_EQ(CutText("abc", -1), "");
  // Bytes of broken text are a character each, so that no text escapes a cut.
  EXPECT_EQ(CharCount("\x80\x80\xE2\x82"), 4);
  EXPECT_EQ(CutText("\x80\x80\x80", 2), "\x80\x80");
}

TEST(TextTest, SplittingKeepsEmptyParts) {
  EXPECT_EQ(SplitText("", '|'), (std::vector<std::string>{""}));
  EXPECT_EQ(SplitText("a||b|", '|'), (std::vector<std::string>{"a", "", "b", ""}));
}

TEST(TextTest, EveryByteOfTheCodePageComesBack) {
  std::string bytes;
  for (int b = 0; b < 256; ++b)
    bytes += static_cast<char>(b);
  EXPECT_EQ(ToWindows1252(FromWindows1252(bytes)), bytes);
  EXPECT_EQ(FromWindows1252("\x80 \x8A\xE6"), "€ Šæ");
}

TEST(TextTest, WhatTheCodePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(ToWindows1252("道 Ω é"), "? ? \xE9");
  EXPECT_EQ(ToWindows1252("\xC2\x80"), "?");       // a control character that has no place
  EXPECT_EQ(ToWindows1252("a\xFF\xC3"), "a??");    // no characters at all
  EXPECT_EQ(ToWindows1252("\xC0\xAF"), "??");      // too long a form
  EXPECT_EQ(ToWindows1252("\xED\xA0\x80"), "???"); // half a pair
  EXPECT_EQ(ToWindows1252("\xF4\x90\x80\x80"), "????");
}

} // namespace
} // namespace trekor
