// What the forms on data files use. They share the folder, so that one begins where the other was left.
#pragma once

#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "texts/MessageCatalogue.h"
#include "texts/TextDatabase.h"

#include <string>

namespace trekor {

struct FileDialogRooms {
  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  MessageCatalogue& messages;
  std::string& folder; // chosen last; empty at first
};

} // namespace trekor
