#include "collection/Stepping.h"

namespace trekor {

void Stepping::Check_DMI() {
  if (!stage.Running())
    return;
  if (stage.RowsWait()) {
    stage.HoldDmi();
    return;
  }
  CrossBoundary();
  ReleaseHeldDmi();
}

// One boundary for each message that waited. Making its row may pump, and further ones may wait then, so this is a loop
// and never nests.
void Stepping::ReleaseHeldDmi() {
  while (stage.TakeHeldDmi())
    if (stage.Running())
      CrossBoundary();
}

void Stepping::CrossBoundary() {
  const double boundary = position.NextStation.Default();
  const double here = position.DmiStation.Default();
  if (position.DmiIncreasing ? here < boundary : here > boundary)
    return;
  position.PreviousStation.SetDefault(boundary);
  position.NextStepKm += position.DmiIncreasing ? position.StepKm : -position.StepKm;
  position.NextStation.SetDefault(position.NextStepKm);
  New_Segment();
}

void Stepping::New_Segment() {
  previous.SetText(position.PreviousStation.Text());
  rows.Add_StepRow();
  feedback.PlaySystemSound(SystemSound::NewSegment);
}

} // namespace trekor
