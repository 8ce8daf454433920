#include "collection/StepBoxes.h"

#include "values/DistanceUnits.h"
#include "values/EntryCheck.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <cmath>

namespace trekor {

namespace {

// Fewer digits than the factor of Station: a mile-based step differs in the seventh digit. Kept: data files in the
// field have their boundaries there.
constexpr double MilesPerKmOfSteps = 0.6213712;
constexpr double SmallestStep = 0.001; // km

double MileFeetToKm(double v) {
  const double whole = std::trunc(v);
  const double sign = v > 0 ? 1 : v < 0 ? -1 : 0;
  return sign * (std::abs(whole) / MilesPerKmOfSteps + std::abs(v - whole) * 10000 / 5280 / MilesPerKmOfSteps);
}

} // namespace

TextBox& StepBoxes::Box(int index) const {
  return index == 6 ? controls.Texts6 : index == 7 ? controls.Texts7 : controls.Texts8;
}

std::string StepBoxes::LabelCaption(int index) const {
  return (index == 6 ? controls.labels6 : index == 7 ? controls.labels7 : controls.labels8).Caption();
}

void StepBoxes::EnterHugeNumber(int index) {
  TextBox& box = Box(index);
  const auto answer = asking.AskBoxNumber(LabelCaption(index), box.Text());
  if (Trim(answer).empty() || stage.Ending())
    return;
  box.SetText(answer);
  if (index != 6)
    return;
  Station& station = state.position.DmiStation;
  station.SetText(answer);
  box.SetText(station.Text());
  news.Set_DMI();
}

void StepBoxes::EnterHugeText(int index) {
  TextBox& box = Box(index);
  const auto answer = asking.AskBoxText(LabelCaption(index), box.Text());
  if (!Trim(answer).empty() && !stage.Ending())
    box.SetText(answer);
}

// The limits are kilometres, the box is in the operator's unit. An empty box counts as 0.
void StepBoxes::ValidateBox(Station& value, TextBox& box) {
  const int unit = state.units.StationUnit;
  double number = value.Value();
  CheckEntry(&number, box, Station::KmToStation(value.Min(), unit), Station::KmToStation(value.Max(), unit), entryGuard,
             false, false);
  value.SetValue(number);
}

void StepBoxes::Validate_Station() {
  ValidateBox(state.position.DmiStation, controls.Texts6);
  news.Set_DMI();
}

void StepBoxes::Validate_Step() {
  Station& step = state.position.StepSize;
  ValidateBox(step, controls.Texts7);
  step.SetText(controls.Texts7.Text());
  step.SetDefault(std::abs(step.Default()));
  if (step.Default() == 0)
    step.SetDefault(SmallestStep);
  controls.Texts7.SetText(step.Text());
}

void StepBoxes::ReadPrevious() {
  Station& previous = state.position.PreviousStation;
  previous.SetText(controls.Texts8.Text());
  controls.Texts8.SetText(previous.Text());
}

// The box Station belongs to no value until a start reads it.
void StepBoxes::KeepBoxes() {
  auto& at = state.position;
  at.PreviousStation.SetText(controls.Texts8.Text());
  at.StepSize.SetText(controls.Texts7.Text());
  Station station(state.units);
  station.SetText(controls.Texts6.Text());
  before = {controls.Texts6.Text(), station.Default(), at.KeyStation.Default(), state.units.StationUnit};
}

// A station that the link has prepared meanwhile may be written in either unit, and even as the text of before.
void StepBoxes::RenewBoxes() {
  const auto& at = state.position;
  ShowUnitLabel();
  controls.Texts8.SetText(at.PreviousStation.Text());
  controls.Texts7.SetText(at.StepSize.Text());
  if (before.unit == state.units.StationUnit)
    return;
  Station station(state.units);
  const bool asBefore = controls.Texts6.Text() == before.text && at.KeyStation.Default() == before.key;
  station.SetDefault(asBefore ? before.km : at.KeyStation.Default());
  controls.Texts6.SetText(station.Text());
}

// A run that has been announced begins where it was announced.
void StepBoxes::PrepareStation(double km) {
  if (stage.Announced())
    return;
  state.position.KeyStation.SetDefault(km);
  controls.Texts6.SetText(state.position.KeyStation.Text());
}

bool StepBoxes::ReadStart() {
  auto& at = state.position;
  at.DmiAtStart = at.DmiStation.Default();
  // Asked also when the link has commanded the start. A box that was just set to 0 is noticed only below.
  if (at.StepSize.Default() == 0)
    EnterHugeNumber(7);
  if (stage.Ending() || !ReadStep())
    return false;
  SettleStation();
  return true;
}

bool StepBoxes::ReadStep() {
  auto& at = state.position;
  at.StepSize.SetText(controls.Texts7.Text());
  at.StepKm = StationTextToKm(controls.Texts7.Text());
  return at.StepKm > 0;
}

void StepBoxes::SettleStation() {
  auto& key = state.position.KeyStation;
  if (TrimView(controls.Texts6.Text()).empty()) // as where the box is left, not a run from nowhere
    controls.Texts6.SetText("0");
  const double station = TextToDouble(controls.Texts6.Text()), step = TextToDouble(controls.Texts7.Text());
  if (step != 0) {
    key.SetValue(station);
    controls.Texts6.SetText(key.Text());
  }
  if (!news.FromLink())
    EnterHugeNumber(6);
  key.SetText(controls.Texts6.Text());
  controls.Texts6.SetText(key.Text());
}

void StepBoxes::SetFirstBoundary() {
  auto& at = state.position;
  boundaryUp = at.DmiIncreasing;
  double s = StationTextToKm(controls.Texts6.Text());
  // Whole steps before the start, also for negative stations; the small addend is for a start just short of a boundary.
  s = std::floor(s / at.StepKm + 0.00001) * at.StepKm;
  if (at.DmiIncreasing)
    s += at.StepKm;
  else if (s == at.KeyStation.Default()) // exactly: a start slightly off a boundary counts as between two
    s -= at.StepKm;
  at.NextStepKm = s;
  at.NextStation.SetDefault(at.NextStepKm);
  at.PreviousStation.SetDefault(at.KeyStation.Default());
}

double StepBoxes::StationTextToKm(const std::string& text) const {
  if (TrimView(text).empty())
    return 0;
  const double v = TextToDouble(text);
  switch (state.units.StationUnit) {
  case units::Km:
    return v;
  case units::Metre:
    return v / 1000;
  case units::Mile:
    return v / MilesPerKmOfSteps;
  case units::MileFeet:
    return MileFeetToKm(v);
  case units::Feet:
    return v / 5280 / MilesPerKmOfSteps;
  case units::Yards:
    return v / 1760 / MilesPerKmOfSteps;
  default:
    return 0;
  }
}

void StepBoxes::ShowUnitLabel() {
  controls.StationUnitLabel.SetCaption(UnitName(state.units.StationUnit));
}

void StepBoxes::SetUnitLabels() {
  ShowUnitLabel();
  news.SendUnits();
}

// Sets the opposite of the label and then clicks, so that picture, label and direction agree: with the label "1"
// stations increase.
void StepBoxes::LoadDirection() {
  state.position.DmiIncreasing = controls.DmiDirLabel.Caption() != "1";
  UpDnPicture_Click();
}

void StepBoxes::Set_UpDnIcon() {
  const bool up = state.position.DmiIncreasing;
  controls.UpDnPicture.SetPicture(up ? "UPICON" : "DNICON");
  controls.DmiDirLabel.SetCaption(up ? "1" : "0");
  if (!news.FromLink())
    news.Set_DMI();
}

void StepBoxes::UpDnPicture_Click() {
  if (!stage.AtRest()) // the first boundary is already set
    return;
  state.position.DmiIncreasing = !state.position.DmiIncreasing;
  Set_UpDnIcon();
}

} // namespace trekor
