// Creating, opening and closing. The rows are in DataRows.cpp, the session in DataSessions.cpp.
#include "datafiles/DataFiles.h"

#include "datafiles/DataFields.h"
#include "datafiles/NewNames.h"
#include "dbupdate/UpdateDatabase.h"
#include "store/InUse.h"
#include "values/Text.h"

#include <utility>

namespace trekor {
namespace {

constexpr const char* TemplateFile = "\\DATAfile.mdb";
// Wider than any road, so that the first station of a session sets both.
constexpr double FirstMinimum = 999999.999, FirstMaximum = -999999.999;

// Another program's database: the update would bring it up to the layout of a data file, and what that has no place for
// would be gone. False for a file that can't be read, of which the update tells.
bool IsForeign(const std::string& nativePath) {
  const auto database = Database::Open(nativePath, OpenMode::Untouched);
  const auto lacks = [&](const char* table) { return !database->HasTable(table); };
  return database && (lacks("Sessions") || lacks("Observations") || lacks("Stations") || lacks("Registrations"));
}

} // namespace

DataFiles::DataFiles(ProgramState& programState, Platform& seams)
    : state(programState), platform(seams), RecordStation(programState.units) {}

bool DataFiles::InitDataFiles() {
  const UpdateResult update = UpdateDatabase(state.folders, platform, "DataFile", state.folders.MdbFolder, "");
  state.versions.DataFile = update.version;
  return !update.programEnds;
}

bool DataFiles::CreateDataFile(const TestSetup& setup) {
  FileNaming& file = state.file;
  if (file.DataName.empty() || preparing)
    return false;
  const std::string path = PathOfNames();
  const bool begun = !IsOpen(path) && InstallTemplate(path) && BeginFile(path, setup);
  if (!begun && state.run.DataFileOpen) {
    file.DataPath = openPath;
    file.DataName = openName;
    file.DataGuid = session.GUID;
  }
  return begun;
}

// The open file is kept until the new one has its session: a disk can be too full for the pictures alone.
bool DataFiles::BeginFile(const std::string& path, const TestSetup& setup) {
  DataFileHandles before = std::exchange(static_cast<DataFileHandles&>(*this), {});
  const SessionRow sessionBefore = session;
  const FileNaming fileBefore = state.file;
  Positions& at = state.position;
  const double lowest = at.StationMinimum.Default(), highest = at.StationMaximum.Default();
  state.file.DataFilePath = path;
  preparing = true;
  const bool begun = OpenDataFile() && StartSession(setup);
  preparing = false;
  if (begun) {
    openPath = state.file.DataPath;
    openName = state.file.DataName;
    return state.run.DataFileOpen = true;
  }
  CloseDataFile();
  platform.drives.DeleteFile(path); // a file without a session only takes room
  static_cast<DataFileHandles&>(*this) = std::move(before);
  session = sessionBefore;
  state.file = fileBefore;
  at.StationMinimum.SetDefault(lowest);
  at.StationMaximum.SetDefault(highest);
  return false;
}

bool DataFiles::ReopenDataFile(const TestSetup& setup) {
  std::string& name = state.file.DataName;
  name = DataNameOf(name); // the operator chooses it as it stands in its folder
  if (name.empty() || preparing)
    return false;
  const std::string path = PathOfNames();
  if (IsOpen(path) || BelongsToProgram(state, platform.drives, path) || IsForeign(platform.drives.NativePath(path)))
    return false;
  CloseDataFile();
  state.run.DataFileOpen = false;
  state.file.DataFilePath = path;
  if (UpdateDatabase(state.folders, platform, "DATAfile", state.file.DataPath, name).programEnds) {
    platform.process.End();
    return false;
  }
  if (!OpenDataFile())
    return false;
  openPath = state.file.DataPath;
  openName = name;
  preparing = true;
  const bool begun = StartSession(setup);
  preparing = false;
  if (!begun)
    CloseDataFile(); // its rows would get the number of another session, or none
  return state.run.DataFileOpen = begun;
}

std::string DataFiles::PathOfNames() const {
  return state.file.DataPath + "\\" + state.file.DataName + ".mdb";
}

bool DataFiles::IsOpen(const std::string& path) const {
  return database && SameFile(database->Path(), platform.drives.NativePath(path));
}

bool BelongsToProgram(const ProgramState& state, Drives& drives, const std::string& path) {
  const FolderPaths& folders = state.folders;
  const std::string native = drives.NativePath(path), own = folders.MdbFolder + "\\" + state.command.HardwareName;
  const auto same = [&](const std::string& other) { return SameFile(native, drives.NativePath(other)); };
  for (const std::string& folder : {folders.MdbFolder, folders.SharedMdbFolder, folders.RootFolder + "\\BAK"})
    if (LiesIn(native, drives.NativePath(folder)))
      return true;
  return same(own + ".mdb") || same(state.facility.SectionsPath); // both are named from outside, and may lie anywhere
}

// A new data file is a copy of the template. A file that another program has open for writing is never replaced, though
// some file systems would allow it.
bool DataFiles::InstallTemplate(const std::string& path) {
  return !BelongsToProgram(state, platform.drives, path) && !InUse(platform.drives.NativePath(path)) &&
         platform.drives.CopyFile(state.folders.MdbFolder + TemplateFile, path);
}

// One transaction: a new session is in the file with all its observations or not at all.
bool DataFiles::StartSession(const TestSetup& setup) {
  state.position.StationMaximum.SetDefault(FirstMaximum);
  state.position.StationMinimum.SetDefault(FirstMinimum);
  state.file.StationID = 0;
  pictureFailed = false;
  BeginRow();
  NewSession();
  for (int i = 1; i <= setup.ObsCount(); ++i)
    AddObservation(setup.Observations(i));
  return EndRow();
}

bool DataFiles::OpenDataFile(OpenMode mode) {
  if (!Open(platform.drives.NativePath(state.file.DataFilePath), mode))
    return false;
  stationPlaces = FieldPlaces(*rsStations, StationFields);
  registrationPlaces = FieldPlaces(*rsRegistrations, RegistrationFields);
  return true;
}

void DataFiles::BeginRow() {
  const Positions& at = state.position;
  const bool together = database && database->Begin();
  before = {state.file.StationID, at.StationMinimum.Default(), at.StationMaximum.Default(), together};
}

// A full disk shows as missing rows: the grid row that didn't get through is dropped whole, and the last stored station
// is the one before it again. Rows that could not be held together went in one by one and stay: better some of them
// than none. Their station tells whether the grid row is in the file.
bool DataFiles::EndRow() {
  if (!database)
    return false;
  const bool stored = before.together ? database->Commit() : state.file.StationID != before.station;
  if (!stored) {
    if (before.together)
      database->Rollback();
    state.file.StationID = before.station;
    state.position.StationMinimum.SetDefault(before.lowest);
    state.position.StationMaximum.SetDefault(before.highest);
  }
  return stored;
}

} // namespace trekor
