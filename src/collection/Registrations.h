// From a key to a value: which observation it concerns, how its value changes, what it sounds like, where it shows.
// Nothing reaches the data file here; values wait in the grids.
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

  // A key that is no order to the run.
  void Register(int key);
  // Withdraws the first key of a pair; in a pause it empties the cell, or takes away an event row.
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
