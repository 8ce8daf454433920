// Key strings and what reaches the keyboard: "+40" is Down pressed, "-40" released.
#include "services/cSendKeys.h"

#include "support/Case.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace trekor::tests {
namespace {

class SendKeysTest : public testing::Test {
protected:
  // What is sent; a run that fails appends its description.
  std::string Send(const std::string& text) {
    const KeyError error = keys.SendKeys(text, false);
    EXPECT_EQ(error.source, error.Failed() ? "Trekor.cSendKeys" : "");
    EXPECT_EQ(error.description.empty(), !error.Failed());
    EXPECT_TRUE(fakes.keyboard.held.empty()) << text;
    const std::string sent = fakes.keyboard.TakeKeys();
    return sent + (error.Failed() ? (sent.empty() ? "" : " ") + error.description : "");
  }

  FakePlatform fakes;
  cSendKeys keys{fakes.platform};
};

TEST_F(SendKeysTest, AModifierHoldsForItsBracketsAndForNothingElse) {
  for (const Case c : {"+(ab) -> +16 +65 -65 +66 -66 -16", "%a -> +18 -18 +65 -65", "%{DOWN} -> +18 -18 +40 -40",
                       "~ -> +17 -17", "a+ -> +65 -65 +16 -16", "+~(x) -> +16 -16 +17 +88 -88 -17", "%() -> +18 -18",
                       "%(a+(b)~c)d -> +18 +65 -65 +16 +66 -66 -16 +17 -17 +67 -67 -18 +68 -68",
                       "+(+(a)) -> +16 +16 +65 -65 -16 -16", " -> "})
    EXPECT_EQ(Send(c.given), c.wanted) << c.line;
}

TEST_F(SendKeysTest, BracesNameAKeyAndHowOften) {
  fakes.keyboard.scans = {{'{', 219}, {'}', 221}, {')', 48}, {'%', 53}};
  for (const Case c :
       {"{F2 3} -> +113 -113 +113 -113 +113 -113", "{~}{F16}{PgDn}{bksp} -> +13 -13 +127 -127 +34 -34 +8 -8",
        "{{}{}}{)}{%} -> +219 -219 +221 -221 +48 -48 +53 -53", "{} 2} -> +221 -221 +221 -221",
        "{q}Q -> +81 -81 +81 -81", "{PAGEUP} -> +80 -80", "{F17 2} -> +70 -70 +70 -70", "{TAB 0}{TAB -2} -> ",
        "{TAB 2.5}{TAB  1} -> +9 -9 +9 -9 +9 -9"})
    EXPECT_EQ(Send(c.given), c.wanted) << c.line;
}

TEST_F(SendKeysTest, AFailureReleasesWhatIsHeldAndSaysWhere) {
  for (const Case c :
       {") -> Invalid sendkeys command: unmatched ) at position 1",
        "a%(b))c -> +65 -65 +18 +66 -66 -18 Invalid sendkeys command: unmatched ) at position 6",
        "{ -> Invalid sendkeys command; opening { without content or closing } at position 1",
        "{} -> Invalid sendkeys command; opening { without content or closing } at position 1",
        "+(~({x -> +16 +17 -17 -16 Invalid sendkeys command; opening { without content or closing } at position 5",
        "{TAB -> Invalid sendkeys command; opening { without closing } at position 1",
        "+({TAB) -> +16 -16 Invalid sendkeys command; opening { without closing } at position 3",
        "a{TAB x}b -> +65 -65 Invalid sendkeys command; key repetitions 'x' is invalid near position 2",
        "%({TAB 1 2}) -> +18 -18 Invalid sendkeys command; key repetitions '1 2' is invalid near position 3",
        "{TAB } -> Invalid sendkeys command; key repetitions '' is invalid near position 1",
        "+(%(a) -> +16 +18 +65 -65 -18 -16 Invalid sendkeys command: more open brackets than close brackets.",
        "%(a?b) -> +18 +65 -65 -18 Key ? could not be interpreted.",
        "%({ 3}) -> +18 -18 Key  could not be interpreted.", "{TAB 3000000000} -> Overflow"})
    EXPECT_EQ(Send(c.given), c.wanted) << c.line;
}

TEST_F(SendKeysTest, PositionsAndKeysAreCharactersNotBytes) {
  fakes.keyboard.scans = {{U'æ', 192}, {U'道', 65}};
  EXPECT_EQ(Send("æ道{æ 2}"), "+192 -192 +65 -65 +192 -192 +192 -192");
  EXPECT_EQ(Send("æ道)"), "+192 -192 +65 -65 Invalid sendkeys command: unmatched ) at position 3");
  EXPECT_EQ(Send("{æ"), "Invalid sendkeys command; opening { without content or closing } at position 1");
  EXPECT_EQ(Send("\xC3"), "Key \xC3 could not be interpreted.");
}

// For any text each press has its release, and no key is released that was not down.
TEST_F(SendKeysTest, NoKeyStaysDown) {
  const std::vector<std::string> pieces = {"+", "~",  "%",  "(",    ")",      "{",   "}", " ", "a",
                                           "7", "+(", "%(", "DOWN", "{UP 2}", "{F1", "?", "æ", "\xFF"};
  std::mt19937 random(20240506);
  int ended = 0;
  for (int round = 0; round < 5000; ++round) {
    std::string text;
    for (auto left = random() % 12; left > 0; --left)
      text += pieces[random() % pieces.size()];
    ended += keys.SendKeys(text, false).Failed() ? 0 : 1;
    ASSERT_TRUE(fakes.keyboard.held.empty()) << text;
    const std::string sent = fakes.keyboard.TakeKeys();
    ASSERT_EQ(std::count(sent.begin(), sent.end(), '+'), std::count(sent.begin(), sent.end(), '-')) << text;
  }
  EXPECT_GT(ended, 200);
}

} // namespace
} // namespace trekor::tests
