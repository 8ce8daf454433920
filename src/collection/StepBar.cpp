#include "collection/StepBar.h"

namespace trekor {

double StepBar::StepPercent() const {
  const double gone = position.DmiStation.Default() - position.PreviousStation.Default();
  return (position.DmiIncreasing ? gone : -gone) / position.StepSize.Default() * 100;
}

void StepBar::RefreshStepBar() {
  if (!stage.Running() || position.StepSize.Default() == 0)
    return;
  // For a vehicle behind the last boundary this is negative, which the bar takes as the number of a picture.
  values.SetBar(0, static_cast<float>(StepPercent()));
}

void StepBar::Check_SlowDown(int col) {
  values.SetBar(col, static_cast<float>(StepPercent()));
  if (values.Bar(col) == 100)
    feedback.PlaySystemSound(SystemSound::SlowDown);
}

} // namespace trekor
