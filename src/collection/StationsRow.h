// A row of StationsGrid: what belongs to a row of the collection grid and is not shown. Cells are text; numbers stand
// in them with all their digits, so that the file gets the very number that the link brought.
#pragma once

#include "forms/Grid.h"
#include "state/ProgramState.h"

#include <string>

namespace trekor {

enum StationsColumn : int {
  ColTime,      // "2024-05-06 07:08:09", local time
  ColGpsStatus, // whole number
  ColGpsTime,
  ColLatitude,
  ColLongitude,
  ColHeight,
  ColGpsSVs,  // whole number
  ColRowKind, // -1 a step row, else the observation's index
  ColStation, // position in file units
};

constexpr int StepRowKind = -1;

// Columns 0 to 6. Skipped when there is no such row.
void Write_Fix(Grid& stations, int row, const LocalTime& time, const GpsFix& gps);
// -1 for a step row, the observation's index for an event row; 0 where nothing stands.
int RowKind(const Grid& stations, int row);
double CellDouble(const std::string& cell);
float CellFloat(const std::string& cell);
int CellInteger(const std::string& cell);

} // namespace trekor
