#include "setup/ParBar.h"

#include "forms/Form.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace trekor::tests {
namespace {

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

TEST_F(Bar, ShowsTenthsOfItsScale) {
  EXPECT_EQ(Show(0, 10, 7.4F), "BAR:7");
  EXPECT_EQ(Show(0, 10, 7.5F), "BAR:8");
  EXPECT_EQ(Show(0, 0.5F, 0.225F), "BAR:5");
  EXPECT_EQ(Show(5, 5, 5), "BAR:0");
  EXPECT_EQ(Show(0, 10, 11), "BAR:10");
  EXPECT_EQ(bar.Default(), 10) << "kept within the scale";
  EXPECT_EQ(Show(2, 10, 0), "BAR:0");
  EXPECT_EQ(bar.Default(), 2);
}

TEST_F(Bar, ShowsAScaleThatIsLongerThanAnySingle) {
  constexpr float huge = 3.402823E+38F;
  EXPECT_EQ(Show(-huge, huge, 0), "BAR:5");
  EXPECT_EQ(Show(-huge, huge, huge), "BAR:10");
  EXPECT_EQ(Show(0, std::numeric_limits<float>::infinity(), huge), "BAR:0");
  EXPECT_EQ(Show(0, 10, std::nanf("")), "") << "no number draws nothing";
}

TEST_F(Bar, IsTwoStateBetweenZeroAndOneFromTheNextValueOn) {
  EXPECT_EQ(Show(0, 1, 1), "BAR:12");
  EXPECT_EQ(Show(0, 1, 0), "BAR:11");
  EXPECT_EQ(Show(0, 3, 3), "BAR:10");
  bar.SetMax(1);
  EXPECT_EQ(Shown(), "BAR:10") << "limits draw nothing";
  bar.SetDefault(1);
  EXPECT_EQ(Shown(), "BAR:12");
}

TEST_F(Bar, DrawsAndKeepsAPictureThatIsAskedForByItsNegative) {
  EXPECT_EQ(Show(0, 10, -13), "BAR:13");
  EXPECT_EQ(bar.Default(), -13);
  EXPECT_EQ(Show(0, 10, -20), "");
  EXPECT_EQ(bar.Default(), -20);
  EXPECT_EQ(Show(0, 10, -3e38F), "");
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

} // namespace
} // namespace trekor::tests
