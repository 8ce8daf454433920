#include "collection/Registrations.h"

#include "values/KeyCodes.h"
#include "values/Text.h"

#include <cmath>

namespace trekor {

namespace {

constexpr int KeyingTwoKeys = 2;
constexpr float WaitingPicture = -13;
constexpr int NoDigit = -1;

// 0 to 9 for the digits of the keyboard and of the pad, else -1.
int DigitOf(int key) {
  if (keys::IsDigit(key))
    return key - '0';
  return keys::IsPadDigit(key) ? key - keys::Pad0 : NoDigit;
}

} // namespace

void Registrations::Process_Key() {
  // A key that comes while a row is being made waits for the next tick.
  if (ring.Empty() || ctx.fields.rowOnStack)
    return;
  auto& at = ctx.Position();
  if (ctx.Flags().RunState != RunStates::Idle)
    at.KeyStation.SetDefault(at.DmiStation.Default());
  const int key = ring.Front();
  ring.Advance(); // first: an order that has waited for a stop may begin the next run, and a new ring with it
  CarryOut(key);
  stepping.ReleaseHeldDmi();
}

void Registrations::CarryOut(int key) {
  switch (key) {
  case keys::F2:
    return ctx.Flags().RunState != RunStates::Idle ? run.Resume_Run() : run.Start_Run();
  case keys::F3:
    return run.Pause_Run();
  case keys::Esc:
  case keys::F4:
    return Paused() ? run.Stop_FromPause() : run.Stop_Run();
  case keys::Delete:
    return DeleteKey();
  default:
    return Register(key);
  }
}

void Registrations::Register(int key) {
  auto& f = ctx.fields;
  if (Paused()) {
    if (const GridRow* row = ctx.buffer.At(f.CurrentRow))
      ctx.Position().KeyStation.SetFileValue(row->station);
    if (ctx.buffer.EventAt(f.CurrentRow) > 0)
      return; // an event row keeps its one value
  }
  if (f.AwaitValue)
    return TakeSecondKey(key);
  if (!FindObservation(key))
    return feedback.PlaySystemSound(1);
  if (Current().KeyingCode == KeyingTwoKeys)
    return Arm();
  if (Paused() && Current().MakesOwnRow() && !asking.Ask_EventStation(f.CurrentObs))
    return;
  if (!f.ending && ChangeValue() && !f.ending)
    Show();
}

bool Registrations::FindObservation(int key) {
  // A code beyond the table finds nothing and leaves the observation of the key before: that acts once more.
  if (key <= TestSetup::LastKeyCode)
    ctx.fields.CurrentObs = ctx.rooms.setup.KeyToObs(key);
  return ctx.rooms.setup.Has(ctx.fields.CurrentObs);
}

void Registrations::Arm() {
  feedback.PlayObservationSound(ctx.fields.CurrentObs, NoDigit);
  ctx.fields.AwaitValue = true;
  grids.SetBar(ctx.fields.CurrentObs, WaitingPicture);
}

void Registrations::TakeSecondKey(int key) {
  auto& f = ctx.fields;
  f.AwaitValue = false;
  if (!ctx.rooms.setup.Has(f.CurrentObs)) // armed under a larger setup
    return;
  f.GridBusy = true;
  grids.SetBar(f.CurrentObs, 0);
  if (const int digit = DigitOf(key); digit != NoDigit) {
    Current().SetDefault(std::int32_t{digit});
    feedback.PlayDigitSound(CurrentInt());
  } else {
    Current().SetDefault(FromWindows1252(std::string(1, static_cast<char>(key))));
  }
  Show();
}

// False ends the key with nothing changed.
bool Registrations::ChangeValue() {
  const int obs = ctx.fields.CurrentObs;
  switch (Current().DataTypeID) {
  case DataType::Boolean:
    Current().IncValue();
    feedback.PlayObservationSound(obs, CurrentInt());
    return true;
  case DataType::Integer:
    return ChangeWhole();
  case DataType::Float:
    return AskFloat();
  case DataType::Text:
    return AskTextValue();
  default:
    return true;
  }
}

bool Registrations::ChangeWhole() {
  const int obs = ctx.fields.CurrentObs;
  ClassObservation& o = Current();
  if (!o.MakesOwnRow()) {
    o.IncValue();
    if (o.DefaultNumber() == 1)
      feedback.PlayObservationSound(obs, 1);
    else
      feedback.PlayDigitSound(CurrentInt());
    return true;
  }
  feedback.PlayObservationSound(obs, NoDigit);
  if (o.Max() - o.Min() > 1) {
    const auto answer = asking.Ask_Number(obs);
    if (answer.empty() || ctx.fields.ending)
      return false;
    Asking::TakeNumber(o, answer);
  } else {
    const bool toMinimum = o.RegModeCode != RegMode::Point && o.DefaultNumber() == o.Max();
    o.SetDefault(toMinimum ? o.Min() : o.Max());
  }
  feedback.PlayObservationSound(obs, CurrentInt());
  return true;
}

bool Registrations::AskFloat() {
  feedback.PlayObservationSound(ctx.fields.CurrentObs, NoDigit);
  const auto answer = asking.Ask_Number(ctx.fields.CurrentObs);
  if (answer.empty() || ctx.fields.ending)
    return false;
  Asking::TakeNumber(Current(), answer);
  return true;
}

bool Registrations::AskTextValue() {
  feedback.PlayObservationSound(ctx.fields.CurrentObs, NoDigit);
  const auto answer = asking.Ask_Text(ctx.fields.CurrentObs);
  if (answer.empty() || ctx.fields.ending)
    return false;
  Current().SetDefault(answer);
  return true;
}

void Registrations::Show() {
  auto& f = ctx.fields;
  Grid& grid = ctx.form.Grid;
  f.GridBusy = true;
  const DataType type = Current().DataTypeID;
  if (HasBar(type))
    grids.ShowBar(f.CurrentObs);
  grids.ShowCell(f.CurrentRow, f.CurrentObs);
  if (type == DataType::Text) {
    grid.SetRow(f.CurrentRow);
    grid.SetCol(f.CurrentObs);
    grid.SetCellAlignment(f.CurrentRow, f.CurrentObs, Align::Left);
  }
  if (Current().MakesOwnRow())
    grids.Add_EventRow(f.CurrentObs);
  if (Paused())
    grid.SetColSel(ctx.rooms.setup.ObsCount());
  f.GridBusy = false;
}

void Registrations::DeleteKey() {
  auto& f = ctx.fields;
  if (f.AwaitValue) { // the first key of the pair is withdrawn
    f.AwaitValue = false;
    grids.SetBar(f.CurrentObs, 0);
    f.CurrentObs = 0;
  } else if (Paused() && ctx.buffer.EventAt(f.CurrentRow) > 0) {
    grids.RemoveCurrentRow();
  } else if (Paused()) {
    DeleteCell();
  }
}

void Registrations::DeleteCell() {
  const int row = ctx.fields.CurrentRow, col = ctx.form.Grid.Col();
  if (!ctx.rooms.setup.Has(col) || TrimView(ctx.buffer.Cell(row, col)).empty())
    return;
  ClassObservation& o = ctx.rooms.setup.Observations(col);
  if (HasBar(o.DataTypeID)) {
    o.Reset();
    grids.ShowBar(col);
    grids.ShowCell(row, col);
  } else {
    o.SetDefault(std::string());
    ctx.buffer.SetCell(row, col, "");
  }
}

int Registrations::CurrentInt() const {
  const double whole = std::floor(Current().DefaultNumber());
  return std::abs(whole) < 1e9 ? static_cast<int>(whole) : NoDigit;
}

} // namespace trekor
