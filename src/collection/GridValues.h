// The values of the observations as the grid shows them: a bar each in the head, a cell each in the rows.
#pragma once

#include "collection/RunGrid.h"
#include "setup/ParBar.h"
#include "values/Station.h"

#include <deque>

namespace trekor {

class GridValues {
public:
  GridValues(RunGrid& runGrid, Station& keyStation) : grid(runGrid), KeyStation(keyStation) {}

  // After a setup was chosen: drop the bars, then make one a column, the step bar (column 0) first.
  void DropBars() { ParBars.clear(); }
  void MakeBar(int col);
  void SetBar(int col, float value);
  float Bar(int col) const; // 0 where there is none
  // Shows the observation's value in its bar; in a cell.
  void ShowBar(int obs);
  void ShowCell(int row, int obs);
  // Writes the cells of an event row: the value, or a text across all of them.
  void WriteEventCells(int row, int obs);
  // Fills a new step row: carried values are written into it, values of one step start at their minimum.
  void CarryInto(int row);

  // Takes the values of the current row as those of the observations, and the station of an event row as KeyStation.
  void Load_RowValues();
  // KeyStation becomes the station of the current row, where there is one.
  void TakeRowStation();
  // Sets all bars to 0 and all observations, except texts, to their minimum.
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
