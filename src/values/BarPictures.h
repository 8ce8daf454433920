// The pictures of a value bar, by their numbers: 0 to Full tenths of the scale, or the state of a value that has two.
// The cell of a grid names one as "BAR:" and its number. And the mark of a warning.
#pragma once

namespace trekor::bars {

constexpr int Full = 10, Off = 11, On = 12, Waiting = 13, Last = Waiting;

} // namespace trekor::bars

namespace trekor {

// A cell with this picture has the ground of a warning.
constexpr const char* AlertMark = ":ALERT";

} // namespace trekor
