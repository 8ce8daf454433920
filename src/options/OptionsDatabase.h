// The options: a history table of which only the first row of the index counts (highest id first, so the row saved
// last). While the program runs they are in the program state.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "store/Database.h"
#include "texts/MessageCatalogue.h"

#include <memory>

namespace trekor {

class OptionsDatabase {
public:
  OptionsDatabase(ProgramState& state, Platform& platform, MessageCatalogue& messages);
  // Updates and opens Software.mdb, loads the options, updates and opens Messages.mdb. False: the program ends, after a
  // message; options that can't be read would otherwise all be off.
  bool LoadSoftwareDatabases();
  // A field that is missing, null or beyond its range keeps the value in the state; when the row can't be read, all do.
  void LoadOptions();
  // Adds a row; a failure is skipped.
  void SaveOptions();
  void Close();

private:
  ProgramState& state;
  Platform& platform;
  MessageCatalogue& messages;
  std::unique_ptr<Database> database;
};

} // namespace trekor
