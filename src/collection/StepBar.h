// The bar above the column of stations: how much of the step is driven, in per cent.
#pragma once

#include "collection/Feedback.h"
#include "collection/GridValues.h"
#include "collection/RunStage.h"

namespace trekor {

class StepBar {
public:
  StepBar(const Positions& position, const RunStage& stage, GridValues& values, Feedback& feedback)
      : position(position), stage(stage), values(values), feedback(feedback) {}

  void RefreshStepBar();
  // Would sound "slowdown" at the end of a step. Kept unconnected, as the sound is loaded: nothing calls it.
  void Check_SlowDown(int col);

private:
  double StepPercent() const;

  const Positions& position;
  const RunStage& stage;
  GridValues& values;
  Feedback& feedback;
};

} // namespace trekor
