#include "collection/Storing.h"

#include "values/Text.h"

namespace trekor {

bool Storing::CreateFile() {
  if (!dataFiles.CreateDataFile(setup))
    return false;
  LastStationID = 0;
  return true;
}

bool Storing::ReopenFile() {
  if (!dataFiles.ReopenDataFile(setup))
    return false;
  LastStationID = 0;
  return true;
}

void Storing::TakeFix(GridRow& row) const {
  row.time = clock.Now();
  row.fix = state.gps.fix;
}

void Storing::Flush_Row(const GridRow& row) {
  const bool step = row.kind == RowKind::Step;
  const auto before = LastStationID;
  dataFiles.BeginRow();
  const auto station = dataFiles.AddStation({row.kind, row.station, row.time, row.fix});
  if (step)
    StoreSpan(row, station);
  else
    StorePoint(row, station);
  // A row that does not fit on the disk leaves a gap, but the next span still begins at a station of the file.
  if (!dataFiles.EndRow() && state.run.DataFileOpen)
    LastStationID = before;
}

void Storing::StorePoint(const GridRow& row, std::int32_t station) {
  if (!setup.Has(row.obs))
    return;
  const bool text = setup.Observations(row.obs).DataTypeID == DataType::Text;
  const auto column = static_cast<std::size_t>(text ? MergedTextColumn : row.obs);
  // A setup of one observation has no column for the merged text: its text events leave a station and nothing else.
  if (column < row.cells.size())
    StoreRegistration(station, station, row.obs, row.cells[column]);
}

// A blank cell is stored too when its value is carried from step to step. When no earlier station of the file is known,
// the span begins at its own end.
void Storing::StoreSpan(const GridRow& row, std::int32_t station) {
  const std::int32_t from = LastStationID != 0 ? LastStationID : station;
  const std::string blank;
  for (int i = 1; i <= setup.ObsCount(); ++i) {
    const RegMode mode = setup.Observations(i).RegModeCode;
    const auto column = static_cast<std::size_t>(i);
    const std::string& cell = column < row.cells.size() ? row.cells[column] : blank;
    if (!TrimView(cell).empty() || (mode != RegMode::Point && mode != RegMode::PresentStep))
      StoreRegistration(from, station, i, cell);
  }
  LastStationID = station;
}

void Storing::StoreRegistration(std::int32_t from, std::int32_t to, int obs, const std::string& data) {
  const auto& o = setup.Observations(obs);
  dataFiles.AddRegistration(from, to, o.ObsCode, o.ParCode(), data);
}

void Storing::StoreStartStation() {
  dataFiles.BeginRow();
  dataFiles.AddStation({RowKind::Step, state.position.KeyStation.FiledValue(), clock.Now(), state.gps.fix});
  dataFiles.EndRow();
  LastStationID = state.file.StationID; // an older one, or 0, when the disk was full
}

} // namespace trekor
