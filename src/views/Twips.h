// Between the models' twips and the toolkit's pixels: 15 twips to a pixel of 96 to the inch. The toolkit scales those
// to the screen itself.
#pragma once

#include "forms/Control.h"

#include <QRect>

#include <cmath>

namespace trekor {

constexpr int TwipsPerPixel = 15;

inline int Pixels(int twips) {
  return static_cast<int>(std::lround(twips / double(TwipsPerPixel)));
}
inline int Twips(int pixels) {
  return pixels * TwipsPerPixel;
}
inline QRect PixelRect(const Control& c) {
  return {Pixels(c.Left), Pixels(c.Top), Pixels(c.Width), Pixels(c.Height)};
}

} // namespace trekor
