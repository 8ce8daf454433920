#include "collection/Grids.h"

namespace trekor {

namespace {
constexpr int StationsWidth = 2400, ObservationWidth = 840; // twips
constexpr float FullStep = 100;                             // the step bar counts per cent

// A value that is worth carrying: not 0, and no text that reads so.
bool HasValue(const ClassObservation& o) {
  const auto text = o.DefaultText();
  return o.DataTypeID == DataType::Text ? !text.empty() && text != "0" : o.DefaultNumber() != 0;
}

} // namespace

void Grids::Setup_Grid() {
  auto& f = ctx.fields;
  Grid& grid = ctx.form.Grid;
  f.GridBusy = true;
  grid.SetRedraw(false);
  ctx.buffer.Clear();
  grid.SetCols(ctx.rooms.setup.ObsCount() + 1);
  ParBars.clear();
  MakeBar(0);
  grid.SetText(NameRow, 0, "Stations");
  // A setup without observations ends here, with GridBusy and redraw as they are: Format_GridHeader follows.
  if (ctx.rooms.setup.ObsCount() == 0)
    return;
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    MakeColumn(i);
  f.CurrentRow = grid.FixedRows();
  f.CurrentCol = 0;
  grid.SetRedraw(true);
  f.GridBusy = false;
}

void Grids::MakeColumn(int i) {
  Grid& grid = ctx.form.Grid;
  const auto& o = ctx.rooms.setup.Observations(i);
  grid.SetText(KeyRow, i, keyCaption ? keyCaption(o.KeyCode()) : "");
  MakeBar(i);
  grid.SetCellPicture(IconRow, i, o.ObsIcon());
  grid.SetText(NameRow, i, o.ObsAbrvDisp());
}

void Grids::MakeBar(int col) {
  ParBar& bar = ParBars.emplace_back(ctx.form.Grid, BarRow, col, ctx.fields.CurrentCol);
  if (col == 0) {
    bar.SetMin(0);
    bar.SetMax(FullStep);
    return bar.SetDefault(0);
  }
  const auto& o = ctx.rooms.setup.Observations(col);
  bar.SetMin(static_cast<float>(o.Min()));
  bar.SetMax(static_cast<float>(o.Max()));
  bar.SetDefault(static_cast<float>(o.DefaultNumber()));
}

void Grids::Format_GridHeader() {
  Grid& grid = ctx.form.Grid;
  ctx.fields.GridBusy = true;
  grid.SetRedraw(false);
  grid.SetCols(ctx.rooms.setup.ObsCount() + 1);
  for (int col = 0; col < grid.Cols(); ++col) {
    grid.SetColWidth(col, col == 0 ? StationsWidth : ObservationWidth);
    grid.SetCellAlignment(KeyRow, col, Align::Centre);
    grid.SetCellAlignment(NameRow, col, Align::Centre);
  }
  grid.SetRedraw(true);
  ctx.fields.GridBusy = false;
}

void Grids::Add_StepRow() {
  const WhileSet making(ctx.fields.rowOnStack);
  Grid& grid = ctx.form.Grid;
  ctx.fields.CurrentRow = grid.FixedRows();
  ctx.fields.CurrentCol = 0;
  grid.SetRedraw(false);
  grid.SetCol(0);
  const auto& at = ctx.Position();
  pending = PendingRow{.kind = RowKind::Step, .place = ctx.fields.CurrentRow};
  ctx.buffer.Insert(pending->place, {.kind = RowKind::Step, .station = at.NextStation.FiledValue()},
                    at.PreviousStation.Text() + " to " + at.NextStation.Text());
  ctx.Pump();
  CarryValues();
  ctx.Pump();
  FinishRow();
  DropOldest();
}

// What holds until it is changed goes into the new row; what belongs to one step starts afresh.
void Grids::CarryValues() {
  if (!pending || pending->valuesDone)
    return;
  pending->valuesDone = true;
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    Carry(i, pending->place);
}

void Grids::Carry(int obs, int row) {
  auto& o = ctx.rooms.setup.Observations(obs);
  if (o.IsCarried()) {
    if (HasValue(o))
      ShowCell(row, obs);
  } else if (o.DataTypeID == DataType::Text) {
    SetBar(obs, 0); // the text itself stays
  } else {
    o.Reset();
    if (Bar(obs) >= 0) // below 0 it waits for a second key, and goes on waiting
      ShowBar(obs);
  }
}

void Grids::Add_EventRow(int obs) {
  const WhileSet making(ctx.fields.rowOnStack);
  Grid& grid = ctx.form.Grid;
  const auto& key = ctx.Position().KeyStation;
  ctx.fields.GridBusy = true;
  grid.SetRedraw(false);
  grid.SetCol(0);
  pending = PendingRow{.kind = RowKind::Event, .place = ctx.fields.CurrentRow + 1};
  ctx.buffer.Insert(pending->place, {.kind = RowKind::Event, .obs = obs, .station = key.FiledValue()}, key.Text());
  if (ctx.rooms.setup.Has(obs))
    ctx.Pump();
  FinishRow();
  DropOldest();
}

void Grids::FinishRow() {
  if (!pending)
    return;
  if (pending->kind == RowKind::Step)
    FinishStepRow(pending->place);
  else
    FinishEventRow(pending->place);
  pending.reset();
  ctx.form.Grid.SetRedraw(true);
}

// The row beneath was the running step until now; at the very start there is none.
void Grids::FinishStepRow(int place) {
  CarryValues();
  TakeFix(place + 1);
}

void Grids::FinishEventRow(int place) {
  WriteEventCells(place, ctx.buffer.EventAt(place));
  ctx.fields.GridBusy = false;
  TakeFix(place);
}

// The present time and position, where there is a row.
void Grids::TakeFix(int place) {
  GridRow* row = ctx.buffer.At(place);
  if (!row)
    return;
  row->time = ctx.rooms.platform.clock.Now();
  row->fix = ctx.State().gps.fix;
}

void Grids::WriteEventCells(int row, int obs) {
  if (!ctx.rooms.setup.Has(obs))
    return;
  const DataType type = ctx.rooms.setup.Observations(obs).DataTypeID;
  if (type < DataType::Unnamed)
    ShowCell(row, obs);
  else if (type == DataType::Text)
    WriteText(row, obs);
}

// The abbreviation, then the text in every cell of the rest: a merged row shows them as one. Only the row is merged;
// merged columns would glue equal numbers of different rows together.
void Grids::WriteText(int row, int obs) {
  Grid& grid = ctx.form.Grid;
  const auto& o = ctx.rooms.setup.Observations(obs);
  ctx.buffer.SetCell(row, MergedTextColumn - 1, o.ObsAbrvDisp());
  grid.SetMergeRow(row, true);
  for (int col = MergedTextColumn; col <= ctx.rooms.setup.ObsCount(); ++col) {
    ctx.buffer.SetCell(row, col, o.DefaultText());
    grid.SetCellAlignment(row, col, Align::Left);
  }
}

// Storing waits until a row leaves the buffer: it stays off the road of a key. Without a data file the row just goes.
// Down to the depth, however many rows that takes: a buffer that has once missed its row would keep the whole run.
void Grids::DropOldest() {
  while (BufferFull()) {
    if (ctx.Flags().DataFileOpen) {
      ctx.Pump();
      if (!BufferFull()) // an exit has stored all rows in that pump
        return;
      storing.Flush_Row(*ctx.buffer.At(ctx.buffer.Bottom()));
    }
    ctx.buffer.Remove(ctx.buffer.Bottom());
  }
}

bool Grids::BufferFull() const {
  return ctx.buffer.Count() > ctx.fields.GridDepth;
}

void Grids::ResetValues() {
  ctx.form.Grid.SetRedraw(false);
  for (auto& bar : ParBars)
    bar.SetDefault(0);
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i)
    ctx.rooms.setup.Observations(i).Reset();
  ctx.form.Grid.SetRedraw(true);
}

void Grids::ShowCell(int row, int obs) {
  ctx.buffer.SetCell(row, obs, ctx.rooms.setup.Observations(obs).DefaultText());
}

void Grids::ShowBar(int obs) {
  SetBar(obs, static_cast<float>(ctx.rooms.setup.Observations(obs).DefaultNumber()));
}

void Grids::SetBar(int col, float value) {
  if (col >= 0 && col < static_cast<int>(ParBars.size()))
    ParBars[static_cast<std::size_t>(col)].SetDefault(value);
}

float Grids::Bar(int col) const {
  return col >= 0 && col < static_cast<int>(ParBars.size()) ? ParBars[static_cast<std::size_t>(col)].Default() : 0;
}

} // namespace trekor
