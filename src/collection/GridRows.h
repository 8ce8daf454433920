// The rows of the run: made at a boundary or a point, stored when the buffer has no more room for them or the run ends.
//
// Making a row lets events run in its middle. Boundaries and keys that come then wait until the row is complete; an
// EXIT finishes the row first (FinishRow), so that it is stored whole.
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

  // Adds a row that begins at the boundary just passed.
  void Add_StepRow();
  // The first row of a run once more, as its boundary has changed before the run began.
  void RenewFirstRow();
  // Adds a row below the current one, for the point of an observation at KeyStation.
  void Add_EventRow(int obs);
  // Completes the row that is being made, without pumping; nothing when there is none.
  void FinishRow();

  // Stores the station at which the first span of a run begins.
  void StoreStart();
  // Ends the running step here and stores all rows.
  void StoreAll();

private:
  // The row that is being made: it is in the buffer and lacks its values and what belongs to its end.
  struct PendingRow {
    RowKind kind = RowKind::Step;
    int place = 0;
    bool valuesDone = false;
  };
  std::string RoadOfStep() const;
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
