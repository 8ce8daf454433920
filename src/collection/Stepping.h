// The road in equal steps: the live position against the next boundary.
#pragma once

#include "collection/Feedback.h"
#include "collection/GridRows.h"
#include "collection/RunStage.h"
#include "forms/Controls.h"

namespace trekor {

class Stepping {
public:
  // `previous` is the box Previous.
  Stepping(Positions& position, RunStage& stage, GridRows& rows, Feedback& feedback, TextBox& previous)
      : position(position), stage(stage), rows(rows), feedback(feedback), previous(previous) {}

  // Called for each position; one boundary at most each time, so after a jump the following positions catch up.
  void Check_DMI();
  void New_Segment();
  // Carries out the positions that came while a row was being made.
  void ReleaseHeldDmi();
  // The place that a key registers is the live one.
  void TakeKeyStation() { position.KeyStation.SetDefault(position.DmiStation.Default()); }

private:
  void CrossBoundary();

  Positions& position;
  RunStage& stage;
  GridRows& rows;
  Feedback& feedback;
  TextBox& previous;
};

} // namespace trekor
