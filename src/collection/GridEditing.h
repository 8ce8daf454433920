// The grid in a pause: which row is current, and the changing of event rows.
#pragma once

#include "collection/Asking.h"
#include "collection/GridValues.h"
#include "collection/RunStage.h"

namespace trekor {

class GridEditing {
public:
  GridEditing(RunGrid& runGrid, GridValues& values, Asking& asking, RunStage& stage)
      : grid(runGrid), values(values), asking(asking), stage(stage) {}

  // Once a tick: looks whether the operator has moved the selection.
  void FollowSelection();
  // The selected cell is another than the logic regards as selected.
  void Grid_CellChanged();
  // The row that moves up in its place becomes current with its own values, or those of the row that went would be
  // written into it.
  void RemoveCurrentRow();

private:
  bool EditEventCell(int obs);
  bool EditNumberCell(int obs);
  bool EditTextCell(int obs);

  RunGrid& grid;
  GridValues& values;
  Asking& asking;
  RunStage& stage;
};

} // namespace trekor
