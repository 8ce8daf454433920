// The grid in a pause: which row is current, and the changing of event rows.
#include "collection/Grids.h"
#include "values/NumberText.h"

namespace trekor {

namespace {
constexpr int TypeInteger = 1, TypeFloat = 2, TypeText = 4;
} // namespace

void Grids::Grid_CellChanged() {
  auto& f = ctx.fields;
  const Grid& grid = ctx.form.Grid;
  if (f.GridBusy || ctx.run().RunState != 2)
    return;
  f.GridBusy = true;
  f.CurrentCol = grid.Col();
  if (grid.Row() != f.CurrentRow) {
    f.CurrentRow = grid.Row();
    Load_RowValues();
    f.GridBusy = true;
  }
  const int obs = ctx.buffer.EventAt(f.CurrentRow);
  if (ctx.rooms.setup.Has(obs) && Edit_EventCell(obs))
    Write_EventCells(f.CurrentRow, obs);
  f.GridBusy = false;
}

void Grids::Remove_CurrentRow() {
  const int row = ctx.fields.CurrentRow;
  ctx.buffer.Remove(row);
  if (ctx.buffer.At(row)) // otherwise the selection has moved, which the tick sees
    Load_RowValues();
}

// False when the row has been removed.
bool Grids::Edit_EventCell(int obs) {
  const int type = ctx.rooms.setup.Observations(obs).DataTypeID;
  const int col = ctx.form.Grid.Col();
  if ((type == TypeInteger || type == TypeFloat) && col == obs)
    return Edit_Number(obs);
  if (type == TypeText && col >= MergedTextColumn && col <= ctx.rooms.setup.ObsCount())
    return Edit_Text(obs);
  return true;
}

bool Grids::Edit_Number(int obs) {
  const auto answer = ask.Ask_Number(obs);
  if (ctx.fields.ending)
    return false;
  if (answer.empty()) {
    Remove_CurrentRow();
    return false;
  }
  Asking::Take_Number(ctx.rooms.setup.Observations(obs), answer);
  return true;
}

bool Grids::Edit_Text(int obs) {
  const auto answer = ask.Ask_Text(obs);
  if (ctx.fields.ending)
    return false;
  if (answer.empty()) {
    Remove_CurrentRow();
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
    ctx.position().KeyStation.SetFileValue(row->station);
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    Load_Value(i, row && event == 0, event == i);
  grid.SetSelectionMarks(true);
  grid.SetRedraw(true);
  f.GridBusy = false;
}

void Grids::Load_Value(int obs, bool stepRow, bool own) {
  const int row = ctx.fields.CurrentRow;
  auto& o = ctx.rooms.setup.Observations(obs);
  if (o.DataTypeID == 3)
    return;
  if (!stepRow && !own)
    return SetBar(obs, 0);
  if (o.DataTypeID == TypeText) {
    const int col = stepRow ? obs : MergedTextColumn;
    if (col < ctx.form.Grid.Cols())
      o.SetDefault(ctx.buffer.Cell(row, col));
    return SetBar(obs, ParBars[static_cast<std::size_t>(obs)].Max());
  }
  // An empty cell is the number 0, and the observation brings that into its limits.
  o.SetDefault(Val(ctx.buffer.Cell(row, obs)));
  Show_Bar(obs);
}

} // namespace trekor
