// The value bar of a grid column: a picture of 14, at a glance how far the value stands between its limits.
// The cell's picture becomes "BAR:0" to "BAR:13": 0 to 10 tenths of the scale, 11 off, 12 on, 13 waiting for its value.
#pragma once

#include "forms/Grid.h"

#include <string>

namespace trekor {

class ParBar {
public:
  // `selectedColumn` is the main form's CurrentCol: in that column, and in column 0, only the pictures 0 to 10 are
  // drawn.
  ParBar(Grid& grid, int row, int col, const int& selectedColumn);
  // 0 or more draws the bar of the clamped value; a negative number draws the picture of that number and is kept as it
  // is.
  void SetDefault(float v);
  float Default() const { return member; }
  float Clamp_Value(float v) const;
  void SetMin(float v);
  void SetMax(float v);
  float Min() const { return lowest; }
  float Max() const { return highest; }
  static std::string PictureKey(int number);

private:
  int BarPicture() const;
  void Draw(int picture);
  void SetScale() { twoState = lowest == 0 && highest == 1; }

  Grid& grid;
  int row, col;
  const int& selectedColumn;
  float member = 0, lowest = 0, highest = 10;
  bool twoState = false;
};

} // namespace trekor
