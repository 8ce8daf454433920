#include "collection/Storing.h"

#include "collection/StationsRow.h"
#include "state/DateText.h"
#include "values/Text.h"

namespace trekor {

namespace {

constexpr int TypeText = 4;
constexpr int MergedTextColumn = 2; // where the text of a text event can be read

NewStation StationOfRow(const Grid& stations, int row) {
  NewStation s;
  s.StationType = RowKind(stations, row) == StepRowKind ? 0 : 1;
  s.FileText = stations.Text(row, ColStation);
  s.Time = ReadDate(stations.Text(row, ColTime));
  s.GPSStatus = CellInteger(stations.Text(row, ColGpsStatus));
  s.GPSTime = CellDouble(stations.Text(row, ColGpsTime));
  s.Latitude = CellDouble(stations.Text(row, ColLatitude));
  s.Longitude = CellDouble(stations.Text(row, ColLongitude));
  s.Height = CellFloat(stations.Text(row, ColHeight));
  s.GPSSVs = CellInteger(stations.Text(row, ColGpsSVs));
  return s;
}

} // namespace

void Storing::Flush_Row(int row) {
  const Grid& stations = ctx.form.StationsGrid;
  if (row < stations.FixedRows() || row >= stations.Rows())
    return;
  const auto before = ctx.fields.LastStationID;
  ctx.rooms.files.BeginRow();
  const auto station = ctx.rooms.files.AddStation(StationOfRow(stations, row));
  const int kind = RowKind(stations, row);
  if (kind == StepRowKind)
    Store_Span(row, station);
  else
    Store_Point(row, kind, station);
  // A row that the disk had no room for leaves a gap, but the next span still begins at a station of the file.
  if (!ctx.rooms.files.EndRow() && ctx.run().DataFileOpen)
    ctx.fields.LastStationID = before;
}

void Storing::Store_Point(int row, int obs, std::int32_t station) {
  if (!ctx.rooms.setup.Has(obs))
    return;
  const bool text = ctx.rooms.setup.Observations(obs).DataTypeID == TypeText;
  const int column = text ? MergedTextColumn : obs;
  // A setup of one observation has no column for the merged text: its text events leave a station and nothing else.
  if (column < ctx.form.Grid.Cols())
    Add_Registration(station, station, obs, ctx.form.Grid.Text(row, column));
}

// A blank cell is stored too when its value lives on from step to step. Where no station of the file is known before,
// the values stand at the step's end.
void Storing::Store_Span(int row, std::int32_t station) {
  const std::int32_t from = ctx.fields.LastStationID != 0 ? ctx.fields.LastStationID : station;
  for (int i = 1; i <= ctx.rooms.setup.ObsCount(); ++i) {
    const int mode = ctx.rooms.setup.Observations(i).RegModeCode;
    const std::string& cell = ctx.form.Grid.Text(row, i);
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
  const auto& gps = ctx.state().gps;
  NewStation s;
  s.StationType = 0;
  s.FileText = ctx.position().KeyStation.FileText();
  s.Time = ctx.rooms.platform.clock.Now();
  s.GPSStatus = gps.GpsStatus;
  s.GPSTime = gps.GpsTime;
  s.Latitude = gps.GpsLatitude;
  s.Longitude = gps.GpsLongitude;
  s.Height = gps.GpsHeight;
  s.GPSSVs = gps.GpsSVs;
  ctx.rooms.files.BeginRow();
  ctx.rooms.files.AddStation(s);
  ctx.rooms.files.EndRow();
  ctx.fields.LastStationID = ctx.state().file.StationID; // an older one, or 0, when the disk was full
}

} // namespace trekor
