#include "collection/Storing.h"

#include "values/Text.h"

namespace trekor {

void Storing::Flush_Row(const GridRow& row) {
  const bool step = row.kind == RowKind::Step;
  const auto before = ctx.fields.LastStationID;
  ctx.rooms.dataFiles.BeginRow();
  const auto station = ctx.rooms.dataFiles.AddStation({row.kind, row.station, row.time, row.fix});
  if (step)
    StoreSpan(row, station);
  else
    StorePoint(row, station);
  // A row that the disk had no room for leaves a gap, but the next span still begins at a station of the file.
  if (!ctx.rooms.dataFiles.EndRow() && ctx.Flags().DataFileOpen)
    ctx.fields.LastStationID = before;
}

void Storing::StorePoint(const GridRow& row, std::int32_t station) {
  if (!ctx.rooms.setup.Has(row.obs))
    return;
  const bool text = ctx.rooms.setup.Observations(row.obs).DataTypeID == DataType::Text;
  const auto column = static_cast<std::size_t>(text ? MergedTextColumn : row.obs);
  // A setup of one observation has no column for the merged text: its text events leave a station and nothing else.
  if (column < row.cells.size())
    StoreRegistration(station, station, row.obs, row.cells[column]);
}

// A blank cell is stored too when its value lives on from step to step. Where no station of the file is known before,
// the values stand at the step's end.
void Storing::StoreSpan(const GridRow& row, std::int32_t station) {
  const std::int32_t from = ctx.fields.LastStationID != 0 ? ctx.fields.LastStationID : station;
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i) {
    const RegMode mode = ctx.rooms.setup.Observations(i).RegModeCode;
    const std::string& cell = row.cells.at(static_cast<std::size_t>(i));
    if (!TrimView(cell).empty() || (mode != RegMode::Point && mode != RegMode::PresentStep))
      StoreRegistration(from, station, i, cell);
  }
  ctx.fields.LastStationID = station;
}

void Storing::StoreRegistration(std::int32_t from, std::int32_t to, int obs, const std::string& data) {
  const auto& o = ctx.rooms.setup.Observations(obs);
  ctx.rooms.dataFiles.AddRegistration(from, to, o.ObsCode, o.ParCode(), data);
}

void Storing::StoreStartStation() {
  ctx.rooms.dataFiles.BeginRow();
  ctx.rooms.dataFiles.AddStation(
      {RowKind::Step, ctx.Position().KeyStation.FiledValue(), ctx.rooms.platform.clock.Now(), ctx.State().gps.fix});
  ctx.rooms.dataFiles.EndRow();
  ctx.fields.LastStationID = ctx.State().file.StationID; // an older one, or 0, when the disk was full
}

} // namespace trekor
