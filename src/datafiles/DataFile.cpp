#include "datafiles/DataFile.h"

#include "datafiles/DataFields.h"
#include "options/Sections.h"
#include "state/DateText.h"

namespace trekor {
namespace {

std::unique_ptr<Recordset> OpenIndexed(Database& database, const char* table, const char* index) {
  auto rows = database.OpenTable(table);
  if (rows && !rows->SetIndex(index))
    rows.reset();
  return rows;
}

} // namespace

DataFile::~DataFile() {
  CloseDataFile();
}

bool DataFile::Open(const std::string& nativePath, OpenMode mode) {
  CloseDataFile();
  database = Database::Open(nativePath, mode);
  if (!database)
    return false;
  rsSessions = OpenIndexed(*database, "Sessions", "SessionID");
  rsObservations = OpenIndexed(*database, "Observations", "ObsParID");
  rsStations = OpenIndexed(*database, "Stations", "StationID");
  rsRegistrations = OpenIndexed(*database, "Registrations", "RegID");
  if (rsSessions && rsObservations && rsStations && rsRegistrations)
    return true;
  CloseDataFile();
  return false;
}

void DataFile::CloseDataFile() {
  rsRegistrations.reset();
  rsStations.reset();
  rsObservations.reset();
  rsSessions.reset();
  database.reset();
}

void DataFile::ReadSession() {
  if (!rsSessions)
    return;
  const Recordset& row = *rsSessions;
  session.SessionID = static_cast<std::int32_t>(row.Get("SessionID").Integer());
  session.Date = ReadDate(row.Get("Date").Text());
  for (const auto& [name, member] : SessionTexts)
    session.*member = row.Get(name).Text();
  for (const auto& [name, member] : SessionNumbers)
    session.*member = static_cast<int>(row.Get(name).Integer());
  for (const auto& [name, member] : SessionStations)
    session.*member = row.Get(name).Number();
  session.SectionHeading = HeadingName(session.SectionDirection);
}

} // namespace trekor
