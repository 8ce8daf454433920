#include "collection/GridRows.h"

namespace trekor {

void GridRows::Add_StepRow() {
  const WhileSet making = stage.MakeRow();
  grid.SelectNewestRow();
  grid.picture.SetRedraw(false);
  grid.picture.SetCol(0);
  pending = PendingRow{.kind = RowKind::Step, .place = grid.CurrentRow};
  grid.rows.Insert(pending->place, {.kind = RowKind::Step, .station = position.NextStation.FiledValue()}, RoadOfStep());
  stage.LetEventsIn();
  CarryValues();
  stage.LetEventsIn();
  FinishRow();
  DropOldest();
}

std::string GridRows::RoadOfStep() const {
  return position.PreviousStation.Text() + " to " + position.NextStation.Text();
}

void GridRows::RenewFirstRow() {
  if (GridRow* row = grid.rows.At(grid.rows.Top())) {
    row->station = position.NextStation.FiledValue();
    grid.rows.SetCell(grid.rows.Top(), 0, RoadOfStep());
  }
}

void GridRows::CarryValues() {
  if (!pending || pending->valuesDone)
    return;
  pending->valuesDone = true;
  values.CarryInto(pending->place);
}

void GridRows::Add_EventRow(int obs) {
  const WhileSet making = stage.MakeRow();
  const auto& key = position.KeyStation;
  grid.GridBusy = true;
  grid.picture.SetRedraw(false);
  grid.picture.SetCol(0);
  pending = PendingRow{.kind = RowKind::Event, .place = grid.CurrentRow + 1};
  grid.rows.Insert(pending->place, {.kind = RowKind::Event, .obs = obs, .station = key.FiledValue()}, key.Text());
  if (grid.setup.Has(obs))
    stage.LetEventsIn();
  FinishRow();
  DropOldest();
}

void GridRows::FinishRow() {
  if (!pending)
    return;
  if (pending->kind == RowKind::Step)
    FinishStepRow(pending->place);
  else
    FinishEventRow(pending->place);
  pending.reset();
  grid.picture.SetRedraw(true);
}

// The row below was the running step until now; at the very start there is none.
void GridRows::FinishStepRow(int place) {
  CarryValues();
  TakeFix(place + 1);
}

void GridRows::FinishEventRow(int place) {
  values.WriteEventCells(place, grid.rows.EventAt(place));
  grid.GridBusy = false;
  TakeFix(place);
}

void GridRows::TakeFix(int place) {
  if (GridRow* row = grid.rows.At(place))
    storing.TakeFix(*row);
}

// Rows are stored when they leave the buffer, so that no key waits for the disk. Without a data file they are only
// removed. Removes as many as are above the depth, which may have been lowered.
void GridRows::DropOldest() {
  while (grid.rows.Overfull()) {
    if (stage.FileOpen()) {
      stage.LetEventsIn();
      if (!grid.rows.Overfull()) // an exit within the pump has stored all rows
        return;
      storing.Flush_Row(*grid.rows.At(grid.rows.Bottom()));
    }
    grid.rows.Remove(grid.rows.Bottom());
  }
}

void GridRows::StoreStart() {
  grid.SelectNewestRow();
  storing.StoreStartStation();
}

// Bottom row first, so that the oldest is stored first.
void GridRows::StoreAll() {
  if (GridRow* running = grid.rows.At(grid.rows.Top())) {
    running->station = position.KeyStation.FiledValue();
    storing.TakeFix(*running);
  }
  for (int place = grid.rows.Bottom(); place >= grid.rows.Top(); --place)
    storing.Flush_Row(*grid.rows.At(place));
  storing.EndRun();
}

} // namespace trekor
