// A row of the run: made once, shown by the grid, stored as it is.
#pragma once

#include "datafiles/RowKind.h"
#include "platform/Clock.h"
#include "values/GpsFix.h"

#include <string>
#include <vector>

namespace trekor {

struct GridRow {
  RowKind kind = RowKind::Step;
  int obs = 0;        // of an event row
  double station = 0; // file units, with the digits that the file keeps
  // When the step ended or the event was registered, and where. The running step has neither yet.
  LocalTime time{};
  GpsFix fix{};
  // By column: the stretch of road or the point, then a text for each observation. An emptied one is a value too: what
  // it means is decided by the observation.
  std::vector<std::string> cells{};
};

// An event row of a text observation holds that text in every cell from this column on; the cell before holds its
// abbreviation.
constexpr int MergedTextColumn = 2;

} // namespace trekor
