#include "collection/Stepping.h"

#include "values/DistanceUnits.h"
#include "values/EntryCheck.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <cmath>

namespace trekor {

namespace {

// Shorter than the factor of the Station object, and meant so: a mile-based step differs in the seventh digit.
constexpr double MilesPerKmOfSteps = 0.6213712;
constexpr double SmallestStep = 0.001; // km

double MileFeetToKm(double v) {
  const double whole = std::trunc(v);
  const double sign = v > 0 ? 1 : v < 0 ? -1 : 0;
  return sign * (std::abs(whole) / MilesPerKmOfSteps + std::abs(v - whole) * 10000 / 5280 / MilesPerKmOfSteps);
}

} // namespace

void Stepping::Check_DMI() {
  if (ctx.Flags().RunState != RunStates::Running)
    return;
  if (ctx.fields.rowOnStack) {
    ++ctx.fields.heldDmi;
    return;
  }
  CrossBoundary();
  ReleaseHeldDmi();
}

// One boundary for each message that was held. Making its row may pump and hold further ones, so this loops and never
// nests.
void Stepping::ReleaseHeldDmi() {
  while (ctx.fields.heldDmi > 0 && !ctx.fields.rowOnStack) {
    --ctx.fields.heldDmi;
    if (ctx.Flags().RunState == RunStates::Running)
      CrossBoundary();
  }
}

void Stepping::CrossBoundary() {
  auto& at = ctx.Position();
  const double boundary = at.NextStation.Default();
  const double here = at.DmiStation.Default();
  if (at.DmiIncreasing ? here < boundary : here > boundary)
    return;
  at.PreviousStation.SetDefault(boundary);
  at.NextStepKm += at.DmiIncreasing ? at.StepKm : -at.StepKm;
  at.NextStation.SetDefault(at.NextStepKm);
  New_Segment();
}

void Stepping::New_Segment() {
  ctx.form.Texts8.SetText(ctx.Position().PreviousStation.Text());
  grids.Add_StepRow();
  feedback.PlaySystemSound(0);
}

void Stepping::SetFirstBoundary() {
  auto& at = ctx.Position();
  double s = StationTextToKm(ctx.form.Texts6.Text());
  // The whole steps before the start, also left of zero; the small addend forgives a start that is a hair short.
  s = std::floor(s / at.StepKm + 0.00001) * at.StepKm;
  if (at.DmiIncreasing)
    s += at.StepKm;
  else if (s == at.KeyStation.Default()) // exactly: a start that is a bit off the step counts as between two
    s -= at.StepKm;
  at.NextStepKm = s;
  at.NextStation.SetDefault(at.NextStepKm);
  at.PreviousStation.SetDefault(at.KeyStation.Default());
}

double Stepping::StationTextToKm(const std::string& text) const {
  if (TrimView(text).empty())
    return 0;
  const double v = TextToDouble(text);
  switch (ctx.State().units.StationUnit) {
  case 0:
    return v;
  case 1:
    return v / 1000;
  case 2:
    return v / MilesPerKmOfSteps;
  case 3:
    return MileFeetToKm(v);
  case 4:
    return v / 5280 / MilesPerKmOfSteps;
  case 5:
    return v / 1760 / MilesPerKmOfSteps;
  default:
    return 0;
  }
}

// The limits are kilometres, the box is in the operator's unit. An empty box counts as 0.
void Stepping::ValidateBox(Station& value, TextBox& box) {
  const int unit = ctx.State().units.StationUnit;
  double number = value.Value();
  CheckEntry(&number, box, Station::KmToStation(value.Min(), unit), Station::KmToStation(value.Max(), unit), entryGuard,
             false, false);
  value.SetValue(number);
}

void Stepping::Validate_Station() {
  ValidateBox(ctx.Position().DmiStation, ctx.form.Texts6);
  Set_DMI(ctx.State(), ctx.rooms.socket);
}

void Stepping::Validate_Step() {
  Station& step = ctx.Position().StepSize;
  ValidateBox(step, ctx.form.Texts7);
  step.SetText(ctx.form.Texts7.Text());
  step.SetDefault(std::abs(step.Default()));
  if (step.Default() == 0)
    step.SetDefault(SmallestStep);
  ctx.form.Texts7.SetText(step.Text());
}

void Stepping::ShowUnitLabel() {
  ctx.form.StationUnitLabel.SetCaption(UnitName(ctx.State().units.StationUnit));
}

void Stepping::SetUnitLabels() {
  ShowUnitLabel();
  SendUnits(ctx.State(), ctx.rooms.socket);
}

void Stepping::Set_UpDnIcon() {
  const bool up = ctx.Position().DmiIncreasing;
  ctx.form.UpDnPicture.SetPicture(up ? "UPICON" : "DNICON");
  ctx.form.DmiDirLabel.SetCaption(up ? "1" : "0");
  if (!ctx.Flags().FromLink)
    Set_DMI(ctx.State(), ctx.rooms.socket);
}

void Stepping::UpDnPicture_Click() {
  if (ctx.Flags().RunState != RunStates::Idle || ctx.fields.starting) // the first boundary lies ahead already
    return;
  ctx.Position().DmiIncreasing = !ctx.Position().DmiIncreasing;
  Set_UpDnIcon();
}

double Stepping::StepPercent() const {
  const auto& at = ctx.Position();
  const double gone = at.DmiStation.Default() - at.PreviousStation.Default();
  return (at.DmiIncreasing ? gone : -gone) / at.StepSize.Default() * 100;
}

void Stepping::RefreshStepBar() {
  if (ctx.Flags().RunState != RunStates::Running || ctx.Position().StepSize.Default() == 0)
    return;
  // A vehicle that has backed up behind the boundary gives a negative number, which the bar takes for that of a
  // picture.
  grids.SetBar(0, static_cast<float>(StepPercent()));
}

void Stepping::Check_SlowDown(int col) {
  grids.SetBar(col, static_cast<float>(StepPercent()));
  if (grids.Bar(col) == 100)
    feedback.PlaySystemSound(2);
}

} // namespace trekor
