// From a key to a value: which observation a key is for, how the value changes, how it sounds and where it is shown.
// Nothing goes to the data file here; values wait in the rows of the buffer.
#pragma once

#include "collection/Asking.h"
#include "collection/Feedback.h"
#include "collection/Grids.h"
#include "collection/RunStage.h"

namespace trekor {

class Registrations {
public:
  Registrations(const Grids& grids, Asking& asking, Feedback& feedback, const RunStage& stage)
      : grids(grids), grid(grids.data), asking(asking), feedback(feedback), stage(stage) {}

  // A key that is no command of the run.
  void Register(int key);
  // Takes back the first key of a pair; in a pause, empties the cell or removes an event row.
  void DeleteKey();

private:
  bool FindObservation(int key);
  void TakeSecondKey(int key);
  void Arm();
  bool ChangeValue();
  bool ChangeWhole();
  bool ChangeOfOwnRow();
  bool AskFloat();
  bool AskTextValue();
  void Show();
  void DeleteCell();
  ClassObservation& Current() const { return grid.setup.Observations(grid.CurrentObs); }
  int CurrentInt() const;

  Grids grids;
  RunGrid& grid;
  Asking& asking;
  Feedback& feedback;
  const RunStage& stage;
};

} // namespace trekor
