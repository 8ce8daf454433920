// The vocabulary database Observations.mdb: items, setups and their lookup tables. It stays open for the life of the
// program.
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
  // Updates and opens the database and its recordsets. False, after a message: the program ends, as the database can't
  // be updated or read. A database without tables gets a message and stays closed.
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
