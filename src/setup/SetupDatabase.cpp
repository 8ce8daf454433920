#include "setup/SetupDatabase.h"

#include "dbupdate/UpdateDatabase.h"

namespace trekor {

SetupDatabase::SetupDatabase(ProgramState& programState, Platform& seams) : state(programState), platform(seams) {}

SetupDatabase::~SetupDatabase() {
  CloseDatabase();
}

bool SetupDatabase::LoadDatabase() {
  CloseDatabase();
  UpdateResult update = UpdateDatabase(state.folders, platform, "Observations", state.folders.MdbFolder, "");
  if (update.programEnds)
    return false;
  state.versions.Observations = update.version;
  ObsDB = std::move(update.database);
  const bool hasTables = ObsDB && !ObsDB->TableNames().empty();
  if (hasTables)
    OpenRecordsets();
  if (platform.drives.FileExists(update.path) && (!ObsDB || ObsDB->Failed())) {
    CloseDatabase();
    TellCannotOpen();
    return false;
  }
  if (!hasTables) {
    ObsDB.reset();
    platform.shell.MsgBox("Cannot find tables in specified database!", "Database Explorer", BoxIcon::Stop);
  }
  return true;
}

void SetupDatabase::TellCannotOpen() {
  platform.shell.MsgBox("Cannot open " + state.folders.MdbFolder + "\\Observations.mdb", state.folders.programName,
                        BoxIcon::Stop);
}

void SetupDatabase::OpenRecordsets() {
  rsObservations = ObsDB->OpenQuery("SELECT * FROM Observations ORDER BY ObsParID");
  rsLanguages = ObsDB->OpenQuery("SELECT * FROM Languages ORDER BY Language");
  rsObsLinguistic = ObsDB->OpenTable("ObsLinguistic");
  rsSetups = ObsDB->OpenTable("Setups");
  rsSetupNames = ObsDB->OpenTable("SetupNames");
  rsDataTypes = ObsDB->OpenTable("DataTypes");
  rsKeyingCodes = ObsDB->OpenTable("KeyingCodes");
  rsRegModes = ObsDB->OpenTable("RegModes");
}

void SetupDatabase::CloseDatabase() {
  for (std::unique_ptr<Recordset>* recordset : {&rsObservations, &rsLanguages, &rsObsLinguistic, &rsSetups,
                                                &rsSetupNames, &rsDataTypes, &rsKeyingCodes, &rsRegModes})
    recordset->reset();
  ObsDB.reset();
}

} // namespace trekor
