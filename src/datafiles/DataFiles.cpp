// Creating, opening and closing. The rows are in DataRows.cpp, the session in DataSessions.cpp.
#include "datafiles/DataFiles.h"

#include "datafiles/DataFields.h"
#include "dbupdate/UpdateDatabase.h"
#include "store/InUse.h"
#include "values/Text.h"

#include <utility>

namespace trekor {
namespace {

constexpr const char* TemplateFile = "\\DATAfile.mdb";
// Wider than any road, so that the first station of a session sets both.
constexpr double FirstMinimum = 999999.999, FirstMaximum = -999999.999;

std::unique_ptr<Recordset> OpenIndexed(Database& database, const char* table, const char* index) {
  auto rows = database.OpenTable(table);
  if (rows && !rows->SetIndex(index))
    rows.reset();
  return rows;
}

} // namespace

DataFiles::DataFiles(ProgramState& programState, Platform& seams)
    : state(programState), platform(seams), RecordStation(programState.units) {}

DataFiles::~DataFiles() {
  CloseDataFile();
}

bool DataFiles::Init_DataFiles() {
  const UpdateResult update = UpdateDatabase(state.folders, platform, "DataFile", state.folders.MdbFolder, "");
  state.versions.DataFile = update.version;
  return !update.programEnds;
}

bool DataFiles::CreateDataFile(const TestSetup& setup) {
  // Storing an icon lets events run, and the link may ask for the next file in there.
  if (state.file.DataName.empty() || preparing)
    return false;
  BuildPath();
  if (IsOpen(state.file.DataFilePath))
    return false;
  CloseDataFile();
  state.run.DataFileOpen = false;
  if (!InstallTemplate() || !OpenDataFile())
    return false;
  preparing = true;
  state.run.DataFileOpen = StartSession(setup);
  preparing = false;
  if (!state.run.DataFileOpen)
    CloseDataFile();
  return state.run.DataFileOpen;
}

bool DataFiles::ReopenDataFile(const TestSetup& setup) {
  std::string& name = state.file.DataName;
  if (name.size() >= 4 && SameText(std::string_view(name).substr(name.size() - 4), ".MDB"))
    name.resize(name.size() - 4);
  if (name.empty() || preparing)
    return false;
  BuildPath();
  if (IsOpen(state.file.DataFilePath))
    return false;
  CloseDataFile();
  state.run.DataFileOpen = false;
  if (UpdateDatabase(state.folders, platform, "DATAfile", state.file.DataPath, name).programEnds) {
    platform.process.End();
    return false;
  }
  if (!OpenDataFile())
    return false;
  state.run.DataFileOpen = true;
  preparing = true;
  StartSession(setup);
  preparing = false;
  return database != nullptr;
}

void DataFiles::BuildPath() {
  state.file.DataFilePath = state.file.DataPath + "\\" + state.file.DataName + ".mdb";
}

bool DataFiles::IsOpen(const std::string& path) const {
  return database && SameText(database->Path(), platform.drives.NativePath(path));
}

// The template is the layout of the file. What another program is writing is never replaced under its hands, though
// some file systems would let us.
bool DataFiles::InstallTemplate() {
  const std::string& path = state.file.DataFilePath;
  return !InUse(platform.drives.NativePath(path)) &&
         platform.drives.CopyFile(state.folders.MdbFolder + TemplateFile, path);
}

// One transaction: a new session is in the file with all its observations or not at all.
bool DataFiles::StartSession(const TestSetup& setup) {
  state.position.StationMaximum.SetDefault(FirstMaximum);
  state.position.StationMinimum.SetDefault(FirstMinimum);
  state.file.StationID = 0;
  BeginRow();
  NewSession();
  for (int i = 1; i <= setup.ObsCount(); ++i)
    AddObservation(setup.Observations(i));
  return EndRow();
}

bool DataFiles::OpenDataFile(OpenMode mode) {
  CloseDataFile();
  database = Database::Open(platform.drives.NativePath(state.file.DataFilePath), mode);
  if (!database)
    return false;
  rsSessions = OpenIndexed(*database, "Sessions", "SessionID");
  rsObservations = OpenIndexed(*database, "Observations", "ObsParID");
  rsStations = OpenIndexed(*database, "Stations", "StationID");
  rsRegistrations = OpenIndexed(*database, "Registrations", "RegID");
  if (!rsSessions || !rsObservations || !rsStations || !rsRegistrations) {
    CloseDataFile(); // some other program's database
    return false;
  }
  stationPlaces = FieldPlaces(*rsStations, StationFields);
  registrationPlaces = FieldPlaces(*rsRegistrations, RegistrationFields);
  return true;
}

void DataFiles::CloseDataFile() {
  rsRegistrations.reset();
  rsStations.reset();
  rsObservations.reset();
  rsSessions.reset();
  database.reset();
}

void DataFiles::BeginRow() {
  stationBefore = state.file.StationID;
  if (database)
    database->Begin();
}

// A full disk shows as missing rows: the grid row that didn't get through is dropped whole, and the last stored station
// is the one before it again.
bool DataFiles::EndRow() {
  if (!database)
    return false;
  const bool stored = database->Commit();
  if (!stored) {
    database->Rollback();
    state.file.StationID = stationBefore;
  }
  return stored;
}

} // namespace trekor
