// The observations' values as the grid shows them: a bar each in the head, a cell each in the rows.
#pragma once

#include "collection/RunGrid.h"
#include "setup/ParBar.h"
#include "values/Station.h"

#include <deque>

namespace trekor {

class GridValues {
public:
  GridValues(RunGrid& runGrid, Station& keyStation) : grid(runGrid), KeyStation(keyStation) {}

  // For a setup that was just chosen: no bar, then one a column, the step bar (column 0) first.
  void DropBars() { ParBars.clear(); }
  void MakeBar(int col);
  void SetBar(int col, float value);
  float Bar(int col) const; // 0 where there is none
  // The observation's value into its bar and into a cell.
  void ShowBar(int obs);
  void ShowCell(int row, int obs);
  // The cells of an event row: the value, or a text over all of them.
  void WriteEventCells(int row, int obs);
  // What holds until it is changed goes into the new row; what belongs to one step starts afresh.
  void CarryInto(int row);

  // Makes the values of the current row those of the observations, and the point of an event row KeyStation.
  void Load_RowValues();
  // KeyStation becomes the station of the current row, where there is one.
  void TakeRowStation();
  // Puts all bars to 0 and all observations to their minimum.
  void ResetValues();

private:
  void Carry(int obs, int row);
  void WriteText(int row, int obs);
  void LoadValue(int obs, bool stepRow, bool own);

  RunGrid& grid;
  Station& KeyStation;
  std::deque<ParBar> ParBars;
};

} // namespace trekor
