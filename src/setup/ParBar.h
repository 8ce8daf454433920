// The value bar of a grid column: shows how far the value stands between its limits. It sets the picture of its cell,
// "BAR:0" to "BAR:13" (values/BarPictures.h).
#pragma once

#include "forms/Grid.h"

#include <string>

namespace trekor {

class ParBar {
public:
  // Grid and `selectedColumn`, the main form's CurrentCol, are borrowed. In that column, and in column 0, only the
  // pictures 0 to 10 are drawn.
  ParBar(Grid& grid, int row, int col, const int& selectedColumn);
  // 0 and more: brought within the limits, kept, and drawn as a bar. Below 0: kept as it is, and the picture of that
  // number without its sign is drawn.
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
