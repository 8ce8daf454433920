// The walk: the session's stations once through for the limits that stand in the head, then once more side by side with
// the registrations. Both queries only step forward and nothing is asked a row, so that memory and speed stay flat.
//
// Registrations are taken in the order in which they were made, as far as they fit the station on which the walk
// stands. One that never finds its station stops all that come behind it. That is meant: see the cases in
// docs/comma-file.md.
#include "datafiles/CommaFile.h"

#include <algorithm>

namespace trekor {
namespace {

// Start values of the limits in the head: a road beyond them keeps them.
constexpr double FirstMinimum = 999.999, FirstMaximum = -999.999;

constexpr const char* StationColumns =
    "SELECT StationID, StationType, Station, GPSStatus, GPSTime, Latitude, Longitude, Height, GPSSVs FROM Stations";
enum StationPlace { StaID, StaType, StaStation, StaStatus, StaTime, StaLatitude, StaLongitude, StaHeight, StaSVs };

std::string StationQuery(std::int32_t sessionID) {
  const std::string where = sessionID == 0 ? "" : " WHERE SessionID=" + std::to_string(sessionID);
  return StationColumns + where + " ORDER BY StationID";
}

} // namespace

struct CommaFile::Walk {
  Walk(const Database& database, const std::string& stationQuery, int loaded)
      : stations(database, stationQuery), registrations(database, RegistrationQuery), loadedObservations(loaded) {}
  Cursor stations, registrations;
  int loadedObservations;
  std::int64_t FirstID = 0, LastID = 0;
  int rows = 1; // one above the number of stations once they are counted
  int StationsDone = 0, percent = -1;
  CommaPosition here, prior; // the station of the walk, and the start of the stretch that comes next
  bool failed = false;
};

CommaFile::CommaFile(ProgramState& programState, Platform& seams, DataFiles& dataFiles)
    : state(programState), platform(seams), files(dataFiles), RecordStation(programState.units) {}

bool CommaFile::WriteCommaFile(std::int32_t sessionID, bool write, int loadedObservations) {
  outcome = CommaOutcome::Nothing;
  if (!write || !files.database || !ChooseSession(sessionID))
    return false;
  state.position.StepSize.SetFileValue(files.session.SegmentSize); // for good: the next start may have to ask for it
  Walk walk(*files.database, StationQuery(sessionID), loadedObservations);
  if (!walk.stations.Step()) {
    outcome = walk.stations.Failed() ? CommaOutcome::Failed : CommaOutcome::Nothing;
    return false;
  }
  PassStations(walk);
  CommaOutput out;
  out.Open(platform.drives.NativePath(state.file.DataPath + "\\" + state.file.AsciiName + ".TKR"));
  CommaRecords records(out, table, state);
  records.WriteCommaHeader(files.session, *files.database);
  WriteRecords(walk, records);
  records.WriteLastRecord();
  const bool whole = out.Close() && !walk.failed;
  outcome = whole ? CommaOutcome::Written : CommaOutcome::Failed;
  return whole;
}

// With no match the recordset stays on its first row; whoever walks the sessions goes on from there.
bool CommaFile::ChooseSession(std::int32_t sessionID) {
  if (!files.rsSessions)
    return false;
  if (sessionID != 0) {
    files.rsSessions->MoveFirst();
    if (!files.rsSessions->Seek(sessionID))
      return false;
  } else {
    files.rsSessions->MoveLast();
  }
  files.ReadSession();
  return true;
}

// The limits and the last two step stations, into the run's own objects: no run needs them now, and they keep what they
// get here after the file is closed. Each takes the file value of the other, so limits hold and mile.feet rounds.
void CommaFile::PassStations(Walk& w) {
  Positions& p = state.position;
  p.StationMinimum.SetDefault(FirstMinimum);
  p.StationMaximum.SetDefault(FirstMaximum);
  w.FirstID = w.stations.Integer(StaID);
  do {
    ++w.rows;
    w.LastID = w.stations.Integer(StaID);
    if (!w.stations.IsNull(StaStation))
      RecordStation.SetFileValue(w.stations.Real(StaStation));
    const double km = RecordStation.Default();
    if (km < p.StationMinimum.Default())
      p.StationMinimum.SetDefault(km);
    if (km > p.StationMaximum.Default())
      p.StationMaximum.SetDefault(km);
    if (w.stations.Integer(StaType) == 0) {
      p.PreviousStation.SetFileValue(p.KeyStation.FileValue());
      p.KeyStation.SetFileValue(RecordStation.FileValue());
    }
  } while (w.stations.Step());
  w.failed = w.stations.Failed();
}

// A field without a value leaves that of the row before.
static void ReadStationRow(const Cursor& row, Station& station, CommaPosition& into) {
  if (!row.IsNull(StaStation))
    station.SetFileValue(row.Real(StaStation));
  into.km = station.Default();
  if (!row.IsNull(StaStatus))
    into.GPSStatus = static_cast<int>(row.Integer(StaStatus));
  if (!row.IsNull(StaTime))
    into.GPSTime = row.Real(StaTime);
  if (!row.IsNull(StaLatitude))
    into.Latitude = row.Real(StaLatitude);
  if (!row.IsNull(StaLongitude))
    into.Longitude = row.Real(StaLongitude);
  if (!row.IsNull(StaHeight))
    into.Height = static_cast<double>(static_cast<float>(row.Real(StaHeight)));
  if (!row.IsNull(StaSVs))
    into.GPSSVs = static_cast<std::int32_t>(row.Integer(StaSVs));
}

void CommaFile::WriteRecords(Walk& w, CommaRecords& records) {
  if (AsciiFileProgress)
    AsciiFileProgress(0);
  w.percent = 0;
  w.stations.Restart();
  if (w.stations.Step())
    ReadStationRow(w.stations, RecordStation, w.here);
  w.prior = w.here; // the first station makes no record of its own
  w.registrations.Bind(1, w.FirstID);
  w.registrations.Bind(2, w.LastID);
  bool more = w.registrations.Step();
  while (more && w.stations.Step()) {
    Progress(w);
    ReadStationRow(w.stations, RecordStation, w.here);
    more = WriteRegistrations(w, records);
  }
  w.failed = w.failed || w.stations.Failed() || w.registrations.Failed();
}

// All registrations that are due at the present station. False at the end of them. A stretch ends the station's turn: a
// point that follows it waits for a station of its own number, and none comes.
bool CommaFile::WriteRegistrations(Walk& w, CommaRecords& records) {
  Cursor& r = w.registrations;
  const std::int64_t ThisID = w.stations.Integer(StaID);
  while (!r.Eof() && r.Integer(RegToID) == ThisID) {
    if (r.Integer(RegFromID) != ThisID) {
      ReadSegment(w);
      records.WriteSegmentRecord(w.prior, w.here);
      w.prior = w.here;
      w.FirstID = ThisID;
      return true;
    }
    records.WritePointRecord(r, w.here);
    r.Step();
  }
  return !r.Eof();
}

// The values of one stretch. Its first registration is taken whatever its start; the others only when they start where
// the last written stretch ended. Only the values of the running setup are cleared first: with a smaller one loaded,
// the places above it keep their digits from the stretch before.
void CommaFile::ReadSegment(Walk& w) {
  const std::size_t clear =
      std::min(static_cast<std::size_t>(std::max(w.loadedObservations, 0)) + 1, table.ObsValues.size());
  std::fill(table.ObsValues.begin() + 1, table.ObsValues.begin() + static_cast<std::ptrdiff_t>(clear), '\0');
  Cursor& r = w.registrations;
  const std::int64_t SegmentTo = r.Integer(RegToID);
  do {
    const std::int64_t code = r.Integer(RegObsCode);
    const auto value = static_cast<char>(SegmentDigit(r.TextView(RegRegData)));
    for (std::size_t i = 1; i <= static_cast<std::size_t>(table.CommaObsCount); ++i)
      if (table.ObsCodes[i] == code)
        table.ObsValues[i] = value;
  } while (r.Step() && r.Integer(RegFromID) == w.FirstID && r.Integer(RegToID) == SegmentTo);
}

void CommaFile::Progress(Walk& w) {
  const int percent = static_cast<int>(100LL * ++w.StationsDone / w.rows);
  if (percent == w.percent)
    return;
  w.percent = percent;
  if (AsciiFileProgress)
    AsciiFileProgress(percent);
}

} // namespace trekor
