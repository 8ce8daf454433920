// Walks the session's stations once for the limits in the head, then once more side by side with the registrations.
// Both queries only step forward and no query is made for a row, so memory and speed stay flat.
//
// Registrations are taken in the order in which they were made, as long as they belong to the present station. One that
// never finds its station stops all that follow. Programs of offices rely on that; see the cases in docs/comma-file.md.
#include "datafiles/CommaFile.h"

#include "datafiles/RowKind.h"

#include <algorithm>

namespace trekor {
namespace {

// Start values of the limits in the head: a road beyond them leaves them as they are.
constexpr double FirstMinimum = 999.999, FirstMaximum = -999.999;

// Fields of the two walks over the stations, by place. Every field of a query costs at every row, so each asks its own.
constexpr const char* LimitFields = "StationID, StationType, Station";
enum LimitPlace { LimID, LimType, LimStation };
constexpr const char* PositionFields = "StationID, Station, GPSStatus, GPSTime, Latitude, Longitude, Height, GPSSVs";
enum StationPlace { StaID, StaStation, StaStatus, StaTime, StaLatitude, StaLongitude, StaHeight, StaSVs };

std::string StationQuery(const char* fields, std::int32_t sessionID) {
  const std::string where = sessionID == 0 ? "" : " WHERE SessionID=" + std::to_string(sessionID);
  return std::string("SELECT ") + fields + " FROM Stations" + where + " ORDER BY StationID";
}

// The limits hold this place, too.
void Widen(Positions& limits, double km) {
  if (km < limits.StationMinimum.Default())
    limits.StationMinimum.SetDefault(km);
  if (km > limits.StationMaximum.Default())
    limits.StationMaximum.SetDefault(km);
}

} // namespace

struct CommaFile::Walk {
  Walk(const Database& database, std::int32_t sessionID, int loaded)
      : stations(database, StationQuery(PositionFields, sessionID)), registrations(database, RegistrationQuery),
        loadedObservations(loaded) {}
  // To the next registration whose stations are in this walk; false at the end. Filtered here and not by the query, as
  // both numbers are read anyway.
  bool NextRegistration();

  Cursor stations, registrations;
  std::int64_t FromID = 0, ToID = 0; // of the registration on which the walk stands
  int loadedObservations;
  std::int64_t FirstID = 0, LastID = 0;
  std::int64_t lowestID = 0; // FirstID moves on, this stays
  int rows = 1;              // one above the number of stations once they are counted
  int StationsDone = 0, percent = -1;
  CommaPosition here, prior; // the station of the walk, and the start of the stretch that comes next
  bool failed = false;
  bool all = true; // every registration so far is in a record of its own place
};

bool CommaFile::Walk::NextRegistration() {
  while (registrations.Step()) {
    FromID = registrations.Integer(RegFromID);
    ToID = registrations.Integer(RegToID);
    if (FromID >= lowestID && ToID <= LastID && !(ToID == 0 && registrations.IsNull(RegToID)))
      return true;
    all = false;
  }
  return false;
}

CommaFile::CommaFile(const CommaSources& commaSources, Paths& nativePaths, DataFile& dataFile)
    : sources(commaSources), paths(nativePaths), data(dataFile), RecordStation(commaSources.units) {}

bool CommaFile::WriteCommaFile(std::int32_t sessionID, bool write, int loadedObservations) {
  outcome = CommaOutcome::Nothing;
  if (!write || !data.database || !ChooseSession(sessionID))
    return false;
  sources.position.StepSize.SetFileValue(data.session.SegmentSize); // for good: the next start may have to ask for it
  Walk walk(*data.database, sessionID, loadedObservations);
  if (!PassStations(walk, sessionID)) {
    outcome = walk.failed ? CommaOutcome::Unreadable : CommaOutcome::Nothing;
    return false;
  }
  CommaOutput out;
  out.Open(paths.NativePath(sources.file.DataPath + "\\" + sources.file.AsciiName + ".TKR"));
  CommaRecords records(out, table, sources);
  walk.failed = !records.WriteCommaHeader(data.session, *data.database) || walk.failed;
  WriteRecords(walk, records);
  records.WriteLastRecord();
  holdsAll = walk.all;
  const bool whole = out.Close();
  writeError = out.Error();
  outcome = walk.failed ? CommaOutcome::Unreadable : whole ? CommaOutcome::Written : CommaOutcome::Unwritable;
  return outcome == CommaOutcome::Written;
}

// With no match the recordset stays on its first row, and a walk over the sessions goes on from there.
bool CommaFile::ChooseSession(std::int32_t sessionID) {
  if (!data.rsSessions)
    return false;
  bool found = true;
  if (sessionID != 0) {
    data.rsSessions->MoveFirst();
    found = data.rsSessions->Seek(sessionID);
  } else {
    data.rsSessions->MoveLast();
  }
  if (found)
    data.ReadSession();
  if (data.rsSessions->Failed())
    outcome = CommaOutcome::Unreadable;
  return found && outcome != CommaOutcome::Unreadable;
}

// Writes the limits and the last two step stations into the run's own Positions, which keep them after the file is
// closed. Each goes through file units, so limits hold and mile.feet rounds. False when there are no stations.
bool CommaFile::PassStations(Walk& w, std::int32_t sessionID) {
  Cursor row(*data.database, StationQuery(LimitFields, sessionID));
  if (!row.Step()) {
    w.failed = row.Failed();
    return false;
  }
  Positions& p = sources.position;
  p.StationMinimum.SetDefault(FirstMinimum);
  p.StationMaximum.SetDefault(FirstMaximum);
  w.FirstID = w.lowestID = row.Integer(LimID);
  do {
    ++w.rows;
    w.LastID = row.Integer(LimID);
    if (!row.IsNull(LimStation))
      RecordStation.SetFileValue(row.Real(LimStation));
    Widen(p, RecordStation.Default());
    if (row.Integer(LimType) == std::int64_t{static_cast<int>(RowKind::Step)}) {
      p.PreviousStation.SetFileValue(p.KeyStation.FileValue());
      p.KeyStation.SetFileValue(RecordStation.FileValue());
    }
  } while (row.Step());
  w.failed = row.Failed();
  return true;
}

namespace {

// A field without a value leaves that of the row before. A null reads as 0, so only a 0 must be asked.
void Take(const Cursor& row, int place, double& into) {
  const double number = row.Real(place);
  if (number != 0 || !row.IsNull(place))
    into = number;
}

void Take(const Cursor& row, int place, float& into) {
  double number = double{into};
  Take(row, place, number);
  into = ToSingle(number);
}

void Take(const Cursor& row, int place, int& into) {
  const std::int64_t number = row.Integer(place);
  if (number != 0 || !row.IsNull(place))
    into = static_cast<int>(number);
}

} // namespace

// Sets state.file.StationID to the station's number, too.
void CommaFile::ReadStation(Walk& w) {
  const Cursor& row = w.stations;
  CommaPosition& into = w.here;
  sources.file.StationID = static_cast<std::int32_t>(row.Integer(StaID));
  const double position = row.Real(StaStation);
  if (position != 0 || !row.IsNull(StaStation))
    RecordStation.SetFileValue(position);
  into.km = RecordStation.Default();
  Take(row, StaStatus, into.fix.GpsStatus);
  Take(row, StaTime, into.fix.GpsTime);
  Take(row, StaLatitude, into.fix.GpsLatitude);
  Take(row, StaLongitude, into.fix.GpsLongitude);
  Take(row, StaHeight, into.fix.GpsHeight);
  Take(row, StaSVs, into.fix.GpsSVs);
}

void CommaFile::WriteRecords(Walk& w, CommaRecords& records) {
  if (AsciiFileProgress)
    AsciiFileProgress(0);
  w.percent = 0;
  if (w.stations.Step())
    ReadStation(w);
  w.prior = w.here; // the first station makes no record of its own
  bool more = w.NextRegistration();
  while (more && w.stations.Step()) {
    Progress(w);
    ReadStation(w);
    more = WriteRegistrations(w, records);
  }
  w.all = w.all && w.registrations.Eof();
  w.failed = w.failed || w.stations.Failed() || w.registrations.Failed();
}

// Writes all registrations of the present station; false when there are no more. A stretch ends the station's turn: a
// point after it waits for a station of its own number, which never comes. Readers rely on it.
bool CommaFile::WriteRegistrations(Walk& w, CommaRecords& records) {
  const std::int64_t ThisID = sources.file.StationID;
  bool more = !w.registrations.Eof();
  while (more && w.ToID == ThisID) {
    if (w.FromID != ThisID) {
      ReadSegment(w);
      records.WriteSegmentRecord(w.prior, w.here);
      w.prior = w.here;
      w.FirstID = ThisID;
      return true;
    }
    w.all = records.WritePointRecord(w.registrations, w.here) && w.all;
    more = w.NextRegistration();
  }
  return more;
}

// The values of one stretch. Its first registration is taken whatever its start; the others only when they start where
// the last written stretch ended. Only as many values are cleared as the running setup has: with a smaller one loaded,
// the places above keep their digits from the stretch before. Readers rely on it.
void CommaFile::ReadSegment(Walk& w) {
  const auto loaded = static_cast<std::size_t>(std::max(w.loadedObservations, 0));
  const std::size_t cleared = std::min(loaded + 1, table.ObsValues.size());
  std::fill(table.ObsValues.begin() + 1, table.ObsValues.begin() + static_cast<std::ptrdiff_t>(cleared), '\0');
  const std::int64_t SegmentTo = w.ToID;
  w.all = w.all && w.FromID == w.FirstID;
  do {
    const std::int64_t code = w.registrations.Integer(RegObsCode);
    const auto value = static_cast<char>(SegmentDigit(w.registrations.TextView(RegRegData)));
    int columns = 0;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(table.CommaObsCount); ++i)
      if (table.ObsCodes[i] == code) {
        table.ObsValues[i] = value;
        ++columns;
      }
    w.all = w.all && columns == 1; // in none it is lost, in two it is also the other one's
  } while (w.NextRegistration() && w.FromID == w.FirstID && w.ToID == SegmentTo);
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
