// The rows of the run as they come and go: made at a boundary or a point, stored when the buffer has no more room for
// them or the run ends.
//
// Making a row pumps messages in its middle. Boundaries and keys that come there wait until the row is complete; an
// EXIT that comes there finishes the row first (FinishRow), so that it is stored whole.
#pragma once

#include "collection/GridValues.h"
#include "collection/RunStage.h"
#include "collection/Storing.h"

#include <optional>

namespace trekor {

class GridRows {
public:
  GridRows(RunGrid& runGrid, GridValues& values, Storing& storing, RunStage& stage, const Positions& position)
      : grid(runGrid), values(values), storing(storing), stage(stage), position(position) {}

  // A row that begins at the boundary just passed.
  void Add_StepRow();
  // A row beneath the current one, for the point of an observation at KeyStation.
  void Add_EventRow(int obs);
  // Completes the row that is being made, without pumping; nothing when there is none.
  void FinishRow();

  // The first station of a run in its file.
  void StoreStart();
  // The running step ends here and now, and all rows are stored.
  void StoreAll();

private:
  // The row that is being made: it stands in the buffer and lacks its values and what belongs to its end.
  struct PendingRow {
    RowKind kind = RowKind::Step;
    int place = 0;
    bool valuesDone = false;
  };
  void CarryValues();
  void FinishStepRow(int place);
  void FinishEventRow(int place);
  void TakeFix(int place);
  void DropOldest();

  RunGrid& grid;
  GridValues& values;
  Storing& storing;
  RunStage& stage;
  const Positions& position;
  std::optional<PendingRow> pending;
};

} // namespace trekor
