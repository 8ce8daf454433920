#include "setup/ParBar.h"

#include "forms/Form.h"

#include <gtest/gtest.h>

#include <cmath>

namespace trekor::tests {

class Bar : public ::testing::Test {
protected:
  Bar() {
    grid.SetRows(4);
    grid.SetCols(4);
    grid.SetRow(3);
    grid.SetCol(2);
  }
  std::string Shown(int col = 1) const { return grid.CellPicture(1, col); }
  std::string Show(float min, float max, float value) {
    bar.SetMin(min);
    bar.SetMax(max);
    grid.SetCellPicture(1, 1, "");
    bar.SetDefault(value);
    return Shown();
  }
  Form form{"Measurements"};
  Grid grid{form, "Grid"};
  int currentCol = 0;
  ParBar bar{grid, 1, 1, currentCol};
};

// In tenths; two states between 0 and 1; a negative value asks for a picture and is kept.
TEST_F(Bar, ShowsItsValueOnItsScaleAndKeepsWhatFits) {
  constexpr float huge = 3.402823E+38F, endless = HUGE_VALF;
  const struct {
    float min, max, value;
    const char* picture;
    float kept;
  } cases[] = {{0, 10, 7.4F, "BAR:7", 7.4F},
               {0, 10, 7.5F, "BAR:8", 7.5F},
               {0, 0.5F, 0.225F, "BAR:5", 0.225F},
               {5, 5, 5, "BAR:0", 5},
               {0, 10, 11, "BAR:10", 10},
               {2, 10, 0, "BAR:0", 2},
               {2, 10, 6, "BAR:5", 6},
               {-huge, huge, 0, "BAR:5", 0},
               {-huge, huge, huge, "BAR:10", huge},
               {0, endless, huge, "BAR:0", huge},
               {0, 1, 1, "BAR:12", 1},
               {0, 1, 0, "BAR:11", 0},
               {0, 3, 3, "BAR:10", 3},
               {0, 10, -13, "BAR:13", -13},
               {0, 10, -20, "", -20},
               {0, 10, -3e38F, "", -3e38F}};
  for (const auto& c : cases) {
    EXPECT_EQ(Show(c.min, c.max, c.value), c.picture) << c.value << " of " << c.min << " to " << c.max;
    EXPECT_EQ(bar.Default(), c.kept);
  }
  EXPECT_EQ(Show(0, 10, std::nanf("")), "") << "no number draws nothing";
  Show(0, 3, 3);
  bar.SetMax(1);
  EXPECT_EQ(Shown(), "BAR:10") << "limits draw nothing";
  bar.SetDefault(1);
  EXPECT_EQ(Shown(), "BAR:12");
}

TEST_F(Bar, LeavesTwoStateAndWaitingPicturesAloneUnderTheSelection) {
  bar.SetDefault(4);
  currentCol = 1;
  bar.SetDefault(-13);
  EXPECT_EQ(Shown(), "BAR:4");
  bar.SetMax(1);
  bar.SetDefault(1);
  EXPECT_EQ(Shown(), "BAR:4");
  EXPECT_EQ(bar.Default(), 1);
  currentCol = 2;
  EXPECT_EQ(Shown(), "BAR:4") << "drawn by the next value only";
  bar.SetDefault(1);
  EXPECT_EQ(Shown(), "BAR:12");
  ParBar stepBar(grid, 1, 0, currentCol);
  stepBar.SetDefault(-13);
  EXPECT_EQ(Shown(0), "");
  EXPECT_EQ(grid.Row() * 10 + grid.Col(), 32) << "the current cell stays";
}

} // namespace trekor::tests
