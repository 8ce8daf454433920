// The road in equal steps: the live position against the next boundary, the boxes of station and step, the direction.
#pragma once

#include "collection/Feedback.h"
#include "collection/Grids.h"
#include "collection/RunContext.h"

#include <string>

namespace trekor {

class Stepping {
public:
  Stepping(RunContext& context, Grids& grids, Feedback& feedback) : ctx(context), grids(grids), feedback(feedback) {}

  // Called for each position; one boundary at most each time, so after a jump the following positions catch up.
  void Check_DMI();
  // The boundaries of a start at the station in box 6.
  void SetFirstBoundary();
  void New_Segment();
  // Runs the boundary tests that came while a row was being made.
  void ReleaseHeldDmi();

  // Kilometres of a text in the operator's unit; 0 for blank text and for units that step and start are not offered in.
  double StationTextToKm(const std::string& text) const;
  void Validate_Station(); // box 6 has lost the focus
  void Validate_Step();    // box 7
  void SetUnitLabels();
  void ShowUnitLabel();

  void Set_UpDnIcon();
  void UpDnPicture_Click();

  void RefreshStepBar();
  // Would sound "slowdown" at the end of a step; nothing calls it.
  void Check_SlowDown(int col);

private:
  void CrossBoundary();
  void ValidateBox(Station& value, TextBox& box);
  double StepPercent() const;

  RunContext& ctx;
  Grids& grids;
  Feedback& feedback;
  bool entryGuard = true; // quiets a box's own change handler while it is checked
};

} // namespace trekor
