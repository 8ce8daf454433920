// The whole program without its windows: state, rooms and forms, built once and living to the end.
#pragma once

#include "collection/Measurements.h"
#include "program/Dispatcher.h"

namespace trekor {

class Program {
public:
  explicit Program(Platform& platform);
  ~Program();
  // Start-up in its fixed order. False when the program is to end at once (second instance, no command line, a database
  // that cannot be opened); whatever had to be said has been said.
  bool Main();
  // The unload of the main form, which ends the program. Runs once.
  void UnloadMainForm();

  ProgramState state;
  Platform& platform;
  MeasurementsForm form;
  cSendKeys SendKeysObject; // before the texts
  TextDatabase texts;
  MessageCatalogue messages;
  OptionsDatabase options;
  SetupDatabase setupDatabase;
  TestSetup setup;
  DataFiles dataFiles;
  CommaFile comma;
  SocketProp socket;
  Sections sections;
  FileNewDialog2 fileNew;
  std::unique_ptr<Database> HardwareDb;
  Measurements measurements;
  Dispatcher dispatcher;

private:
  bool InitHardware();
  bool unloaded = false;
};

} // namespace trekor
