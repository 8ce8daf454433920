#include "collection/GridValues.h"

#include "values/NumberText.h"

namespace trekor {

namespace {
constexpr float FullStep = 100; // the step bar counts per cent
} // namespace

void GridValues::MakeBar(int col) {
  ParBar& bar = ParBars.emplace_back(grid.picture, RunGrid::BarRow, col, grid.CurrentCol);
  if (col == 0) {
    bar.SetMin(0);
    bar.SetMax(FullStep);
    return bar.SetDefault(0);
  }
  const auto& o = grid.setup.Observations(col);
  bar.SetMin(static_cast<float>(o.Min()));
  bar.SetMax(static_cast<float>(o.Max()));
  bar.SetDefault(static_cast<float>(o.DefaultNumber()));
}

void GridValues::SetBar(int col, float value) {
  if (col >= 0 && col < static_cast<int>(ParBars.size()))
    ParBars[static_cast<std::size_t>(col)].SetDefault(value);
}

float GridValues::Bar(int col) const {
  return col >= 0 && col < static_cast<int>(ParBars.size()) ? ParBars[static_cast<std::size_t>(col)].Default() : 0;
}

void GridValues::ShowBar(int obs) {
  SetBar(obs, static_cast<float>(grid.setup.Observations(obs).DefaultNumber()));
}

void GridValues::ShowCell(int row, int obs) {
  grid.rows.SetCell(row, obs, grid.setup.Observations(obs).DefaultText());
}

void GridValues::CarryInto(int row) {
  for (int i = 1; i <= grid.setup.ObsCount(); ++i)
    Carry(i, row);
}

void GridValues::Carry(int obs, int row) {
  auto& o = grid.setup.Observations(obs);
  if (o.IsCarried()) {
    if (o.HasValue())
      ShowCell(row, obs);
  } else if (o.DataTypeID == DataType::Text) {
    SetBar(obs, 0); // the text itself stays
  } else {
    o.Reset();
    if (Bar(obs) >= 0) // below 0 it waits for a second key
      ShowBar(obs);
  }
}

void GridValues::WriteEventCells(int row, int obs) {
  if (!grid.setup.Has(obs))
    return;
  const DataType type = grid.setup.Observations(obs).DataTypeID;
  if (type < DataType::Unnamed)
    ShowCell(row, obs);
  else if (type == DataType::Text)
    WriteText(row, obs);
}

// The abbreviation, then the text in all further cells, which a merged row shows as one. Columns are not merged: equal
// numbers of two rows would show as one.
void GridValues::WriteText(int row, int obs) {
  const auto& o = grid.setup.Observations(obs);
  grid.rows.SetCell(row, MergedTextColumn - 1, o.ObsAbrvDisp());
  grid.picture.SetMergeRow(row, true);
  for (int col = MergedTextColumn; col <= grid.setup.ObsCount(); ++col) {
    grid.rows.SetCell(row, col, o.DefaultText());
    grid.picture.SetCellAlignment(row, col, Align::Left);
  }
}

void GridValues::TakeRowStation() {
  if (const GridRow* row = grid.rows.At(grid.CurrentRow))
    KeyStation.SetFileValue(row->station);
}

void GridValues::Load_RowValues() {
  grid.GridBusy = true;
  grid.picture.SetRedraw(false);
  grid.picture.SetSelectionMarks(false);
  const bool row = grid.rows.At(grid.CurrentRow) != nullptr;
  const int event = grid.rows.EventAt(grid.CurrentRow);
  if (event > 0)
    TakeRowStation();
  for (int i = 1; i <= grid.setup.ObsCount(); ++i)
    LoadValue(i, row && event == 0, event == i);
  grid.picture.SetSelectionMarks(true);
  grid.picture.SetRedraw(true);
  grid.GridBusy = false;
}

void GridValues::LoadValue(int obs, bool stepRow, bool own) {
  const int row = grid.CurrentRow;
  auto& o = grid.setup.Observations(obs);
  if (o.DataTypeID == DataType::Unnamed)
    return;
  if (!stepRow && !own)
    return SetBar(obs, 0);
  if (o.DataTypeID == DataType::Text) {
    const int col = stepRow ? obs : MergedTextColumn;
    if (col < grid.picture.Cols())
      o.SetDefault(grid.rows.Cell(row, col));
    return SetBar(obs, ParBars[static_cast<std::size_t>(obs)].Max());
  }
  // An empty cell is the number 0, and the observation brings that into its limits.
  o.SetDefault(Val(grid.rows.Cell(row, obs)));
  ShowBar(obs);
}

void GridValues::ResetValues() {
  grid.picture.SetRedraw(false);
  for (auto& bar : ParBars)
    bar.SetDefault(0);
  for (int i = 1; i <= grid.setup.ObsCount(); ++i)
    grid.setup.Observations(i).Reset();
  grid.picture.SetRedraw(true);
}

} // namespace trekor
