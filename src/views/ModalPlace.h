// Where a window stands that asks something during a run: the rest of the picture must go on being seen. Pixels of the
// screen; rectangles include the frames of their windows.
#pragma once

#include <QRect>

namespace trekor {

struct Surroundings {
  QRect screen; // the part that windows may use
  QRect over;   // the window above which it is shown
  QRect kept;   // what it must not cover
};

// Moved and cut to fit, as a stored place may lie outside of today's screen.
QRect OntoScreen(QRect place, const QRect& screen);
// Its own place, if that covers nothing of what is kept; else low in the window below it or, when that is too small,
// beside what is kept. Where there is no room for it anywhere it becomes lower.
QRect PlaceInClear(const QRect& own, const Surroundings& around);

} // namespace trekor
