// The main form's logic and the chief header of the run: idle, running, paused. The run's subjects have a file pair each in
// this folder (stepping, grids, registrations, feedback); this class owns them and what they share.
#pragma once

#include "collection/MeasurementsForm.h"
#include "collection/Prompts.h"
#include "core/ProgramState.h"
#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "datafiles/FileNewDialog2.h"
#include "link/Outgoing.h"
#include "link/SocketProp.h"
#include "options/Options.h"
#include "options/Sections.h"
#include "platform/Platform.h"
#include "setup/ClassKeyBoard.h"
#include "setup/ParBar.h"
#include "setup/TestSetup.h"
#include "texts/Message.h"
#include "texts/Texts.h"

#include <functional>
#include <memory>

namespace trekor {

// What the run works with; all of it outlives the run. The rooms are built by the roof (core/Program).
struct RunRooms {
  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  MessageCatalogue& messages;
  OptionsDatabase& options;
  Sections& sections;
  SetupDatabase& setupDatabase;
  TestSetup& setup;
  DataFiles& files;
  CommaFile& comma;
  SocketProp& socket;
  FileNewDialog2& fileNew;
};

class Measurements {
public:
  // `form` is made before the rooms, as the socket's greeting tells its window handle.
  Measurements(MeasurementsForm& form, RunRooms rooms);
  ~Measurements();

  void Load_Form(); // the whole form load, to the enabled IdleTimer

  // What the link and the window call.
  bool Form_KeyDown(int keyCode, int shift); // true: the key is taken
  bool Form_KeyPress(char32_t character);    // true: thrown away
  void Check_DMI();
  void Set_UpDnIcon();
  void Prepare_File();
  void mnuNew_Click();
  void mnuClose_Click();
  void mnuExit_Click();
  void SetUnitLabels();
  void SetCaption();
  void EnterHugeNumber(int index);
  void EnterHugeText(int index);
  void Idle_Tick();
  void AsciiFileProgress(int percent);
  // PREPARE of the link: the station of the start, in kilometres.
  void Prepare_Station(double km);

  // Stop a run and close a file, as every way out does first.
  void Stop_AndClose();
  // The unload of the main form is the roof's business (core/Shutdown); this asks for it.
  std::function<void()> UnloadMainForm;

  struct Parts;
  Parts& parts() { return *p; }

private:
  MeasurementsForm& form;
  RunRooms rooms;
  std::unique_ptr<Parts> p;
};

} // namespace trekor
