#include "setup/ParBar.h"

#include "values/BarPictures.h"

#include <algorithm>
#include <cmath>

namespace trekor {

namespace {

// The picture asked for by a negative number, ties to even; -1 when it is far beyond the last one or not a number.
int RequestedPicture(float v) {
  return v > -1000 ? static_cast<int>(std::nearbyint(-v)) : -1;
}

} // namespace

ParBar::ParBar(Grid& carrier, int gridRow, int gridCol, const int& currentCol)
    : grid(carrier), row(gridRow), col(gridCol), selectedColumn(currentCol) {}

void ParBar::SetDefault(float v) {
  if (v >= 0) {
    member = Clamp_Value(v);
    Draw(BarPicture());
  } else {
    member = v;
    Draw(RequestedPicture(v));
  }
}

float ParBar::Clamp_Value(float v) const {
  return v <= highest ? std::max(v, lowest) : highest;
}

void ParBar::SetMin(float v) {
  lowest = v;
  SetScale();
}

void ParBar::SetMax(float v) {
  highest = v;
  SetScale();
}

// All in singles: 0.225 of 0.5 is then 4.5 tenths, and not slightly less.
int ParBar::BarPicture() const {
  if (twoState)
    return member != 0 ? bars::On : bars::Off;
  float fraction = highest == lowest ? 0 : (member - lowest) / (highest - lowest);
  if (!std::isfinite(highest - lowest)) // an item "without limits" has a scale that is longer than any single
    fraction = (member / 2 - lowest / 2) / (highest / 2 - lowest / 2);
  return std::isfinite(fraction) ? static_cast<int>(std::floor(fraction * bars::Full + 0.5F)) : 0;
}

// In the selected column and in the step bar only the scale is drawn: the other pictures leave the old one there until
// the next value. Operators are used to the difference.
void ParBar::Draw(int picture) {
  const int last = col == 0 || col == selectedColumn ? bars::Full : bars::Last;
  if (picture >= 0 && picture <= last)
    grid.SetCellPicture(row, col, PictureKey(picture));
}

std::string ParBar::PictureKey(int number) {
  return "BAR:" + std::to_string(number);
}

} // namespace trekor
