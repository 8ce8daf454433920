// The parts of the collection grid, for a class that needs several of them.
#pragma once

#include "collection/GridEditing.h"
#include "collection/GridRows.h"
#include "collection/GridValues.h"
#include "collection/RunGrid.h"

namespace trekor {

struct Grids {
  RunGrid& data;
  GridValues& values;
  GridRows& rows;
  GridEditing& editing;
};

} // namespace trekor
