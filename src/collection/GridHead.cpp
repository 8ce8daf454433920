#include "collection/GridHead.h"

namespace trekor {

namespace {
constexpr int StationsWidth = 2400, ObservationWidth = 840; // twips
} // namespace

void GridHead::Setup_Grid() {
  grid.GridBusy = true;
  grid.picture.SetRedraw(false);
  grid.rows.Clear();
  grid.picture.SetCols(grid.setup.ObsCount() + 1);
  values.DropBars();
  values.MakeBar(0);
  grid.picture.SetText(RunGrid::NameRow, 0, "Stations");
  // A setup without observations ends here, with GridBusy and redraw as they are: Format_GridHeader follows.
  if (grid.setup.ObsCount() == 0)
    return;
  for (int i = 1; i <= grid.setup.ObsCount(); ++i)
    MakeColumn(i);
  grid.SelectNewestRow();
  grid.picture.SetRedraw(true);
  grid.GridBusy = false;
}

void GridHead::MakeColumn(int i) {
  const auto& o = grid.setup.Observations(i);
  grid.picture.SetText(RunGrid::KeyRow, i, keyPictures.KeyCaption(o.KeyCode()));
  values.MakeBar(i);
  grid.picture.SetCellPicture(RunGrid::IconRow, i, o.ObsIcon());
  grid.picture.SetText(RunGrid::NameRow, i, o.ObsAbrvDisp());
}

void GridHead::Format_GridHeader() {
  grid.GridBusy = true;
  grid.picture.SetRedraw(false);
  grid.picture.SetCols(grid.setup.ObsCount() + 1);
  for (int col = 0; col < grid.picture.Cols(); ++col) {
    grid.picture.SetColWidth(col, col == 0 ? StationsWidth : ObservationWidth);
    grid.picture.SetCellAlignment(RunGrid::KeyRow, col, Align::Centre);
    grid.picture.SetCellAlignment(RunGrid::NameRow, col, Align::Centre);
  }
  grid.picture.SetRedraw(true);
  grid.GridBusy = false;
}

} // namespace trekor
