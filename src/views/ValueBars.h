// Draws the pictures of value bars as shapes, so that they are sharp at any scale.
#pragma once

#include "views/Theme.h"

#include <QRect>

#include <string>

class QPainter;

namespace trekor {

// The number in "BAR:7"; -1 when the key is not one of a bar.
int BarNumber(const std::string& key);

// 0 to 10 tenths of the scale, 11 off, 12 on, 13 waiting for its value; other numbers draw nothing. A cell more than
// twice as wide as high gets a horizontal bar, else a vertical one. `scale` enlarges the picture, not the cell.
void DrawBar(QPainter& painter, const QRect& cell, int number, const theme::Colours& colours, double scale = 1);

} // namespace trekor
