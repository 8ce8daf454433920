// Text in characters, not bytes, and the code page of the link.
#include "values/Text.h"
#include "values/CodePage.h"

#include "support/Case.h"

#include <gtest/gtest.h>

namespace trekor::tests {

TEST(TextTest, CaseFollowsTheAlphabet) {
  for (const Case c : {"trekor 5 -> TREKOR 5", "æøåéñÿ -> ÆØÅÉÑŸ", "šžğőź -> ŠŽĞŐŹ", "άέήίόύώαβω -> ΆΈΉΊΌΎΏΑΒΩ",
                       "дорожный ёђ -> ДОРОЖНЫЙ ЁЂ", "ṽạ -> ṼẠ", "ß×÷道 -> ß×÷道"}) {
    EXPECT_EQ(Upper(c.given), c.wanted);
    EXPECT_EQ(Lower(c.wanted), c.given);
    EXPECT_TRUE(SameText(c.given, c.wanted)) << c.line;
  }
  EXPECT_EQ(Upper("λόγος"), "ΛΌΓΟΣ");
  EXPECT_TRUE(SameText("ΛΌΓΟΣ", "λόγος"));
  EXPECT_FALSE(SameText("a", "ab"));
  EXPECT_FALSE(SameText("\xFF", "\xFE"));
  EXPECT_TRUE(SameName("StationID", "STATIONid"));
  EXPECT_FALSE(SameName("Ångström", "ångström")) << "the engine knows no such pair";
  EXPECT_FALSE(SameName("@[", "`{"));
  EXPECT_EQ(Upper("a\xFFz\xC3"), "A\xFFZ\xC3"); // what is no character stays
}

TEST(TextTest, WidthsAndCutsCountCharacters) {
  EXPECT_EQ(CharCount("Århus 道"), 7);
  for (const auto& [text, n, cut, fixed] : {std::tuple("Århus", 2, "År", "År"),
                                            {"Å", 4, "Å", "Å   "},
                                            {"abc", -1, "", ""},
                                            {"\x80\x80\x80", 2, "\x80\x80", "\x80\x80"}}) {
    EXPECT_EQ(CutText(text, n), cut);
    EXPECT_EQ(FixedWidth(text, n), fixed);
  }
  EXPECT_EQ(CharCount("\x80\x80\xE2\x82"), 4) << "bytes of broken text, so that no text escapes a cut";
}

TEST(TextTest, SplittingKeepsEmptyPartsAndTrimmingTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b \t "), "a b \t");
  EXPECT_EQ(Trim("   "), "");
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
  // A control character without a place, no characters at all, too long a form, half a pair, beyond the last one.
  for (const Case c : {"道 Ω é -> ? ? \xE9", "\xC2\x80 -> ?", "a\xFF\xC3 -> a??", "\xC0\xAF -> ??",
                       "\xED\xA0\x80 -> ???", "\xF4\x90\x80\x80 -> ????"})
    EXPECT_EQ(ToWindows1252(c.given), c.wanted) << c.line;
}

} // namespace trekor::tests
