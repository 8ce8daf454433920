// Stations, registrations and observations. A write that fails is skipped and the next one is made: a full disk shows
// as missing rows and never stops a run.
#include "datafiles/DataFields.h"
#include "datafiles/DataFiles.h"
#include "services/Pictures.h"
#include "state/DateText.h"
#include "values/Text.h"

#include <algorithm>
#include <initializer_list>

namespace trekor {
namespace {

void SetFields(Recordset& row, const std::vector<int>& places, std::initializer_list<FieldValue> values) {
  std::size_t i = 0;
  for (const FieldValue& value : values)
    row.Set(places[i++], value);
}

int StationDirection(const Positions& position) {
  return position.DmiIncreasing ? 1 : -1;
}

} // namespace

// StationID, SessionID, Station, StationUnit, StationDirection, StationType, ...: 7, 1, 12.3, 0, 1, 0, ...
std::int32_t DataFiles::AddStation(const NewStation& station) {
  if (!rsStations)
    return state.file.StationID;
  const GpsFix& fix = station.fix;
  rsStations->AddNew();
  RecordStation.SetFileValue(station.FileStation);
  SetFields(*rsStations, stationPlaces,
            {state.file.SessionID, RecordStation.FileValue(), state.units.FileStationUnit,
             StationDirection(state.position), static_cast<int>(station.StationType), CutText(state.facility.Lane, 50),
             CutText(state.facility.LaneNumber, 16), DateText(station.Time), fix.GpsStatus, fix.GpsTime,
             fix.GpsLatitude, fix.GpsLongitude, double{fix.GpsHeight}, fix.GpsSVs});
  const auto id = static_cast<std::int32_t>(rsStations->Get("StationID").Integer());
  if (rsStations->Update())
    state.file.StationID = id; // otherwise the last row is still the one before
  const double km = RecordStation.Default();
  if (km > state.position.StationMaximum.Default())
    state.position.StationMaximum.SetDefault(km);
  if (km < state.position.StationMinimum.Default())
    state.position.StationMinimum.SetDefault(km);
  return state.file.StationID;
}

// RegID, FromID, ToID, ObsCode, ParCode, RegData: 31, 6, 7, 12, 0, "3"
void DataFiles::AddRegistration(std::int32_t fromID, std::int32_t toID, int obsCode, int parCode,
                                const std::string& regData) {
  if (!rsRegistrations)
    return;
  rsRegistrations->AddNew();
  SetFields(*rsRegistrations, registrationPlaces, {fromID, toID, obsCode, parCode, regData});
  rsRegistrations->Update();
}

void DataFiles::AddObservation(const ClassObservation& obs) {
  if (!rsObservations)
    return;
  Recordset& row = *rsObservations;
  row.AddNew();
  row.Set("SessionID", state.file.SessionID);
  row.Set("ObsCode", obs.ObsCode);
  row.Set("ObsName", obs.ObsNameFile());
  row.Set("ObsAbrv", obs.ObsAbrvFile());
  AddPicture("ObsIcon", obs.ObsIcon());
  row.Set("ParCode", obs.ParCode());
  row.Set("ParName", obs.ParNameFile());
  row.Set("ParAbrv", obs.ParAbrvFile());
  AddPicture("ParIcon", obs.ParIcon());
  row.Set("DataType", static_cast<int>(obs.DataTypeID));
  row.Set("TextUtil", obs.FileText());
  row.Set("Min", obs.Min());
  row.Set("Max", obs.Max());
  row.Set("RegModeCode", static_cast<int>(obs.RegModeCode));
  row.Update();
}

void DataFiles::AddPicture(const std::string& field, const std::string& picture) {
  pictureFailed |= !dbSaveImage(rsObservations.get(), field, picture, state.folders, platform, !pictureFailed);
}

} // namespace trekor
