#include "collection/Registrations.h"

#include "values/BarPictures.h"
#include "values/CodePage.h"
#include "values/KeyCodes.h"
#include "values/Text.h"

#include <cmath>

namespace trekor {

namespace {

constexpr float WaitingPicture = -bars::Waiting; // a bar draws the picture of a negative value
constexpr int NoDigit = -1;

// 0 to 9 for the digits of the keyboard and of the pad, else -1.
int DigitOf(int key) {
  if (keys::IsDigit(key))
    return key - '0';
  return keys::IsPadDigit(key) ? key - keys::Pad0 : NoDigit;
}

} // namespace

void Registrations::Register(int key) {
  if (stage.Paused()) {
    grids.values.TakeRowStation();
    if (grid.rows.EventAt(grid.CurrentRow) > 0)
      return; // an event row keeps its one value
  }
  if (grid.AwaitValue)
    return TakeSecondKey(key);
  if (!FindObservation(key))
    return feedback.PlaySystemSound(SystemSound::UndefinedKey);
  grid.picture.BringIntoView(grid.CurrentObs);
  if (Current().KeyingCode == Keying::TwoKeys)
    return Arm();
  if (stage.Paused() && Current().MakesOwnRow() && !asking.Ask_EventStation(grid.CurrentObs))
    return;
  if (!stage.Ending() && ChangeValue() && !stage.Ending())
    Show();
}

bool Registrations::FindObservation(int key) {
  // A code beyond the table leaves the observation of the key before, which acts once more. Kept: on European keyboards
  // the key 226 repeats the last one.
  if (key <= TestSetup::LastKeyCode)
    grid.CurrentObs = grid.setup.KeyToObs(key);
  return grid.setup.Has(grid.CurrentObs);
}

void Registrations::Arm() {
  feedback.PlayObservationSound(grid.CurrentObs, NoDigit);
  grid.AwaitValue = true;
  grids.values.SetBar(grid.CurrentObs, WaitingPicture);
}

void Registrations::TakeSecondKey(int key) {
  grid.AwaitValue = false;
  if (!grid.setup.Has(grid.CurrentObs)) // the first key was pressed under a larger setup
    return;
  grid.GridBusy = true;
  grids.values.SetBar(grid.CurrentObs, 0);
  if (const int digit = DigitOf(key); digit != NoDigit) {
    Current().SetDefault(std::int32_t{digit});
    feedback.PlayDigitSound(CurrentInt());
  } else {
    Current().SetDefault(FromWindows1252(std::string(1, static_cast<char>(key))));
  }
  Show();
}

// False: nothing was changed.
bool Registrations::ChangeValue() {
  const int obs = grid.CurrentObs;
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
  ClassObservation& o = Current();
  if (o.MakesOwnRow())
    return ChangeOfOwnRow();
  o.IncValue();
  if (o.DefaultNumber() == 1)
    feedback.PlayObservationSound(grid.CurrentObs, 1);
  else
    feedback.PlayDigitSound(CurrentInt());
  return true;
}

bool Registrations::ChangeOfOwnRow() {
  const int obs = grid.CurrentObs;
  ClassObservation& o = Current();
  feedback.PlayObservationSound(obs, NoDigit);
  if (o.Max() - o.Min() > 1) {
    const auto answer = asking.Ask_Number(obs);
    if (answer.empty() || stage.Ending())
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
  feedback.PlayObservationSound(grid.CurrentObs, NoDigit);
  const auto answer = asking.Ask_Number(grid.CurrentObs);
  if (answer.empty() || stage.Ending())
    return false;
  Asking::TakeNumber(Current(), answer);
  return true;
}

bool Registrations::AskTextValue() {
  feedback.PlayObservationSound(grid.CurrentObs, NoDigit);
  const auto answer = asking.Ask_Text(grid.CurrentObs);
  if (answer.empty() || stage.Ending())
    return false;
  Current().SetDefault(answer);
  return true;
}

void Registrations::Show() {
  grid.GridBusy = true;
  const DataType type = Current().DataTypeID;
  if (HasBar(type))
    grids.values.ShowBar(grid.CurrentObs);
  grids.values.ShowCell(grid.CurrentRow, grid.CurrentObs);
  if (type == DataType::Text) {
    grid.picture.SetRow(grid.CurrentRow);
    grid.picture.SetCol(grid.CurrentObs);
    grid.picture.SetCellAlignment(grid.CurrentRow, grid.CurrentObs, Align::Left);
  }
  if (Current().MakesOwnRow())
    grids.rows.Add_EventRow(grid.CurrentObs);
  if (stage.Paused())
    grid.picture.SetColSel(grid.setup.ObsCount());
  grid.GridBusy = false;
}

void Registrations::DeleteKey() {
  if (grid.AwaitValue) { // takes back the first key of the pair
    grid.AwaitValue = false;
    grids.values.SetBar(grid.CurrentObs, 0);
    grid.CurrentObs = 0;
  } else if (stage.Paused() && grid.rows.EventAt(grid.CurrentRow) > 0) {
    grids.editing.RemoveCurrentRow();
  } else if (stage.Paused()) {
    DeleteCell();
  }
}

void Registrations::DeleteCell() {
  const int row = grid.CurrentRow, col = grid.picture.Col();
  if (!grid.setup.Has(col) || TrimView(grid.rows.Cell(row, col)).empty())
    return;
  ClassObservation& o = grid.setup.Observations(col);
  if (HasBar(o.DataTypeID)) {
    o.Reset();
    grids.values.ShowBar(col);
    grids.values.ShowCell(row, col);
  } else {
    o.SetDefault(std::string());
    grid.rows.SetCell(row, col, "");
  }
}

int Registrations::CurrentInt() const {
  const double whole = std::floor(Current().DefaultNumber());
  return std::abs(whole) < 1e9 ? static_cast<int>(whole) : NoDigit;
}

} // namespace trekor
