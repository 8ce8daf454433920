// The grid in a pause: which row is current, and editing of event rows.
#pragma once

#include "collection/Asking.h"
#include "collection/GridValues.h"
#include "collection/RunStage.h"

namespace trekor {

class GridEditing {
public:
  GridEditing(RunGrid& runGrid, GridValues& values, Asking& asking, RunStage& stage)
      : grid(runGrid), values(values), asking(asking), stage(stage) {}

  // Called once a tick: looks whether the operator has moved the selection.
  void FollowSelection();
  // The operator has selected another cell than the current one.
  void Grid_CellChanged();
  // The row that moves up becomes current with its own values, or those of the removed row would be written into it.
  void RemoveCurrentRow();

private:
  bool EditEventCell(int obs);
  bool EditNumberCell(int obs);
  bool EditTextCell(int obs);
  bool TakeAnswer(const std::string& answer);

  RunGrid& grid;
  GridValues& values;
  Asking& asking;
  RunStage& stage;
};

} // namespace trekor
