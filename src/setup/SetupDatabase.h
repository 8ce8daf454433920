// The vocabulary database Observations.mdb: items, folders, setups, lookups. Its recordsets stay open for the program's
// life.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <cstdint>
#include <memory>
#include <string>

namespace trekor {

class SetupDatabase {
public:
  SetupDatabase(ProgramState& state, Platform& platform);
  ~SetupDatabase();
  // Update check, open, recordsets. False: the program ends, and when the database is there but can't be read that was
  // told. One without tables gets its message and stays closed.
  bool LoadDatabase();
  void CloseDatabase();

  // Tells the operator that the vocabulary can't be read.
  void TellCannotOpen();

  std::unique_ptr<Database> ObsDB;
  std::unique_ptr<Recordset> rsObservations, rsLanguages, rsObsLinguistic, rsSetups, rsSetupNames, rsDataTypes,
      rsKeyingCodes, rsRegModes;

private:
  void OpenRecordsets();

  ProgramState& state;
  Platform& platform;
};

} // namespace trekor
