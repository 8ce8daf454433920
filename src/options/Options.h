// The options: a history table whose first row of the index rules (ids are loaded highest first, so that is the row
// saved last). They live in the program state while the program runs.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"
#include "texts/Message.h"

#include <memory>

namespace trekor {

class OptionsDatabase {
public:
  OptionsDatabase(ProgramState& state, Platform& platform, MessageCatalogue& messages);
  // Updates and opens Software.mdb, loads the options, updates and opens Messages.mdb. False: the program ends; options
  // that are there and can't be read would otherwise all be off.
  bool LoadSoftwareDatabases();
  // A field that is missing, null or beyond its range leaves the value as it was, and so does a row that can't be read.
  void LoadOptions();
  void SaveOptions();
  void Close();

private:
  ProgramState& state;
  Platform& platform;
  MessageCatalogue& messages;
  std::unique_ptr<Database> database;
};

} // namespace trekor
