// Draws the pictures of value bars as shapes, so that they are sharp at any scale.
#pragma once

#include <QRect>

#include <string>

class QPainter;

namespace trekor {

// The number in "BAR:7"; -1 when the key is not one of a bar.
int BarNumber(const std::string& key);

// 0 to 10 tenths of the scale, 11 off, 12 on, 13 waiting for its value; nothing for other numbers. A cell that is much
// wider than high gets a lying bar, else a standing one.
void DrawBar(QPainter& painter, const QRect& cell, int number);

} // namespace trekor
