// The whole program without its windows: state, rooms and forms, built once and living to the end. The seams are
// borrowed.
#pragma once

#include "collection/Measurements.h"
#include "program/Dispatcher.h"

namespace trekor {

class Program {
public:
  explicit Program(Platform& platform);
  ~Program();
  // Starts the program. False when it is to end at once (second instance, no command line, a database that can't be
  // opened); the user has then been told, except of a second instance.
  bool Main();
  // Unloads the main form, stores all looks and ends the program. Only the first call counts.
  void UnloadMainForm();

  // For tests and measurements, which act as the operator does and look at what came of it. The program itself has no
  // use for it.
  struct Seam {
    ProgramState& state;
    MeasurementsForm& form;
    Measurements& measurements;
    DataFiles& dataFiles;
    SocketProp& socket;
    FileDialogs& dialogs;
    std::unique_ptr<Database>& HardwareDb;
  };
  Seam ForTests() { return {state, form, measurements, dataFiles, socket, dialogs, HardwareDb}; }

private:
  bool InitHardware();

  ProgramState state;
  Platform& platform;
  MeasurementsForm form;
  cSendKeys SendKeysObject;
  TextDatabase texts;
  MessageCatalogue messages;
  OptionsDatabase options;
  SetupDatabase setupDatabase;
  TestSetup setup;
  DataFiles dataFiles;
  CommaFile comma;
  SocketProp socket;
  Sections sections;
  FileDialogs dialogs;
  Options optionsDialog;
  std::unique_ptr<Database> HardwareDb;
  Measurements measurements;
  Dispatcher dispatcher;
  bool unloaded = false;
};

} // namespace trekor
