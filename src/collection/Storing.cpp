#include "collection/Storing.h"

#include "values/Text.h"

namespace trekor {

namespace {
constexpr int TypeText = 4;
constexpr int StepStation = 0, EventStation = 1; // as stored
} // namespace

void Storing::Flush_Row(const GridRow& row) {
  const bool step = row.kind == RowKind::Step;
  const auto before = ctx.fields.LastStationID;
  ctx.rooms.files.BeginRow();
  const auto station = ctx.rooms.files.AddStation({step ? StepStation : EventStation, row.station, row.time, row.fix});
  if (step)
    Store_Span(row, station);
  else
    Store_Point(row, station);
  // A row that the disk had no room for leaves a gap, but the next span still begins at a station of the file.
  if (!ctx.rooms.files.EndRow() && ctx.run().DataFileOpen)
    ctx.fields.LastStationID = before;
}

void Storing::Store_Point(const GridRow& row, std::int32_t station) {
  if (!ctx.rooms.setup.Has(row.obs))
    return;
  const bool text = ctx.rooms.setup.Observations(row.obs).DataTypeID == TypeText;
  const auto column = static_cast<std::size_t>(text ? MergedTextColumn : row.obs);
  // A setup of one observation has no column for the merged text: its text events leave a station and nothing else.
  if (column < row.cells.size())
    Add_Registration(station, station, row.obs, row.cells[column]);
}

// A blank cell is stored too when its value lives on from step to step. Where no station of the file is known before,
// the values stand at the step's end.
void Storing::Store_Span(const GridRow& row, std::int32_t station) {
  const std::int32_t from = ctx.fields.LastStationID != 0 ? ctx.fields.LastStationID : station;
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i) {
    const int mode = ctx.rooms.setup.Observations(i).RegModeCode;
    const std::string& cell = row.cells.at(static_cast<std::size_t>(i));
    if (!TrimView(cell).empty() || (mode != 0 && mode != 1))
      Add_Registration(from, station, i, cell);
  }
  ctx.fields.LastStationID = station;
}

void Storing::Add_Registration(std::int32_t from, std::int32_t to, int obs, const std::string& data) {
  const auto& o = ctx.rooms.setup.Observations(obs);
  ctx.rooms.files.AddRegistration(from, to, o.ObsCode, o.ParCode(), data);
}

void Storing::Store_StartStation() {
  ctx.rooms.files.BeginRow();
  ctx.rooms.files.AddStation(
      {StepStation, ctx.position().KeyStation.FiledValue(), ctx.rooms.platform.clock.Now(), ctx.state().gps.fix});
  ctx.rooms.files.EndRow();
  ctx.fields.LastStationID = ctx.state().file.StationID; // an older one, or 0, when the disk was full
}

} // namespace trekor
