#include "collection/RunFixture.h"

namespace trekor::tests {

class KeyPresses : public RunFixture {
protected:
  void SetUp() override {
    Load();
    StartFromLink(10.0);
  }
};

TEST_F(KeyPresses, NoLetterReachesAControlInARun) {
  EXPECT_TRUE(run.Subjects().formKeys.Form_KeyPress(U'A'));
  Press(F4);
  EXPECT_FALSE(run.Subjects().formKeys.Form_KeyPress(U'A'));
}

TEST_F(KeyPresses, ATwoKeyPointInAPauseNeverAsksForTheStation) {
  setup.Observations(Rut).RegModeCode = RegMode::Point;
  Press(F3);
  Press('E');
  Press('4');
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(Rows(), 2);
  EXPECT_EQ(Cell(1, Rut), "4");
}

TEST_F(KeyPresses, TheBarOfATextWaitsForItsSecondKeyOnly) {
  setup.Observations(Surface).KeyingCode = Keying::TwoKeys;
  Press('I');
  EXPECT_EQ(Bar(Surface), "BAR:13");
  Press('W');
  EXPECT_EQ(Cell(0, Surface), "W");
  EXPECT_NE(Bar(Surface), "BAR:13");
}

} // namespace trekor::tests
