#include "collection/GridEditing.h"

namespace trekor {

void GridEditing::FollowSelection() {
  if (stage.Paused() && (grid.picture.Row() != grid.CurrentRow || grid.picture.Col() != grid.CurrentCol))
    Grid_CellChanged();
}

void GridEditing::Grid_CellChanged() {
  if (grid.GridBusy || !stage.Paused())
    return;
  grid.GridBusy = true;
  grid.CurrentCol = grid.picture.Col();
  if (grid.picture.Row() != grid.CurrentRow) {
    grid.CurrentRow = grid.picture.Row();
    values.Load_RowValues();
    grid.GridBusy = true;
  }
  const int obs = grid.rows.EventAt(grid.CurrentRow);
  if (grid.setup.Has(obs) && EditEventCell(obs))
    values.WriteEventCells(grid.CurrentRow, obs);
  grid.GridBusy = false;
}

void GridEditing::RemoveCurrentRow() {
  const int row = grid.CurrentRow;
  grid.rows.Remove(row);
  if (grid.rows.At(row)) // otherwise the selection has moved, which the tick sees
    values.Load_RowValues();
}

// False when the row has been removed.
bool GridEditing::EditEventCell(int obs) {
  const DataType type = grid.setup.Observations(obs).DataTypeID;
  const int col = grid.picture.Col();
  if ((type == DataType::Integer || type == DataType::Float) && col == obs)
    return EditNumberCell(obs);
  if (type == DataType::Text && col >= MergedTextColumn && col <= grid.setup.ObsCount())
    return EditTextCell(obs);
  return true;
}

bool GridEditing::EditNumberCell(int obs) {
  const auto answer = asking.Ask_Number(obs);
  if (!TakeAnswer(answer))
    return false;
  Asking::TakeNumber(grid.setup.Observations(obs), answer);
  return true;
}

bool GridEditing::EditTextCell(int obs) {
  const auto answer = asking.Ask_Text(obs);
  if (!TakeAnswer(answer))
    return false;
  grid.setup.Observations(obs).SetDefault(answer);
  return true;
}

// An emptied answer takes the row away.
bool GridEditing::TakeAnswer(const std::string& answer) {
  if (stage.Ending())
    return false;
  if (answer.empty())
    RemoveCurrentRow();
  return !answer.empty();
}

} // namespace trekor
