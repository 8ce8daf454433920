// What a row of the run is, in the grid as in the data file: there it is the number StationType, so the numbers stay.
#pragma once

namespace trekor {

enum class RowKind : int {
  Step = 0,  // a span that ends at the row's station
  Event = 1, // a point: one observation at the row's station
};

} // namespace trekor
