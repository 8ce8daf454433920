// The grid in a pause: which row is current, and the changing of event rows.
#include "collection/Grids.h"
#include "values/NumberText.h"

namespace trekor {

namespace {} // namespace

void Grids::Grid_CellChanged() {
  auto& f = ctx.fields;
  const Grid& grid = ctx.form.Grid;
  if (f.GridBusy || ctx.Flags().RunState != RunStates::Paused)
    return;
  f.GridBusy = true;
  f.CurrentCol = grid.Col();
  if (grid.Row() != f.CurrentRow) {
    f.CurrentRow = grid.Row();
    Load_RowValues();
    f.GridBusy = true;
  }
  const int obs = ctx.buffer.EventAt(f.CurrentRow);
  if (ctx.rooms.setup.Has(obs) && EditEventCell(obs))
    WriteEventCells(f.CurrentRow, obs);
  f.GridBusy = false;
}

void Grids::RemoveCurrentRow() {
  const int row = ctx.fields.CurrentRow;
  ctx.buffer.Remove(row);
  if (ctx.buffer.At(row)) // otherwise the selection has moved, which the tick sees
    Load_RowValues();
}

// False when the row has been removed.
bool Grids::EditEventCell(int obs) {
  const DataType type = ctx.rooms.setup.Observations(obs).DataTypeID;
  const int col = ctx.form.Grid.Col();
  if ((type == DataType::Integer || type == DataType::Float) && col == obs)
    return EditNumberCell(obs);
  if (type == DataType::Text && col >= MergedTextColumn && col <= ctx.rooms.setup.ObsCount())
    return EditTextCell(obs);
  return true;
}

bool Grids::EditNumberCell(int obs) {
  const auto answer = asking.Ask_Number(obs);
  if (ctx.fields.ending)
    return false;
  if (answer.empty()) {
    RemoveCurrentRow();
    return false;
  }
  Asking::TakeNumber(ctx.rooms.setup.Observations(obs), answer);
  return true;
}

bool Grids::EditTextCell(int obs) {
  const auto answer = asking.Ask_Text(obs);
  if (ctx.fields.ending)
    return false;
  if (answer.empty()) {
    RemoveCurrentRow();
    return false;
  }
  ctx.rooms.setup.Observations(obs).SetDefault(answer);
  return true;
}

void Grids::Load_RowValues() {
  auto& f = ctx.fields;
  Grid& grid = ctx.form.Grid;
  f.GridBusy = true;
  grid.SetRedraw(false);
  grid.SetSelectionMarks(false);
  const GridRow* row = ctx.buffer.At(f.CurrentRow);
  const int event = ctx.buffer.EventAt(f.CurrentRow);
  if (event > 0)
    ctx.Position().KeyStation.SetFileValue(row->station);
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    LoadValue(i, row && event == 0, event == i);
  grid.SetSelectionMarks(true);
  grid.SetRedraw(true);
  f.GridBusy = false;
}

void Grids::LoadValue(int obs, bool stepRow, bool own) {
  const int row = ctx.fields.CurrentRow;
  auto& o = ctx.rooms.setup.Observations(obs);
  if (o.DataTypeID == DataType::Unnamed)
    return;
  if (!stepRow && !own)
    return SetBar(obs, 0);
  if (o.DataTypeID == DataType::Text) {
    const int col = stepRow ? obs : MergedTextColumn;
    if (col < ctx.form.Grid.Cols())
      o.SetDefault(ctx.buffer.Cell(row, col));
    return SetBar(obs, ParBars[static_cast<std::size_t>(obs)].Max());
  }
  // An empty cell is the number 0, and the observation brings that into its limits.
  o.SetDefault(Val(ctx.buffer.Cell(row, obs)));
  ShowBar(obs);
}

} // namespace trekor
