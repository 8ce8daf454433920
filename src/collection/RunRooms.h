// The rooms that the run uses; built by program/Program, and outliving the run.
#pragma once

#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "datafiles/FileDialogs.h"
#include "link/Outgoing.h"
#include "link/SocketProp.h"
#include "options/Options.h"
#include "options/OptionsDatabase.h"
#include "options/Sections.h"
#include "platform/Platform.h"
#include "services/cSendKeys.h"
#include "setup/ClassKeyBoard.h"
#include "setup/ParBar.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"
#include "texts/MessageCatalogue.h"
#include "texts/TextDatabase.h"

namespace trekor {

struct RunRooms {
  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  MessageCatalogue& messages;
  OptionsDatabase& options;
  Sections& sections;
  SetupDatabase& setupDatabase;
  TestSetup& setup;
  DataFiles& dataFiles;
  CommaFile& comma;
  SocketProp& socket;
  FileDialogs& dialogs;
  Options& optionsDialog;
  cSendKeys& SendKeysObject;
};

} // namespace trekor
