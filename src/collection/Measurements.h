// The main form's logic and the chief header of the run: idle, running, paused. The run's subjects have a file pair
// each in this folder (stepping, grids, registrations, feedback ...); this class owns them, loads the form, and is the
// door through which the link, the window and the program come in.
#pragma once

#include "collection/MeasurementsForm.h"
#include "collection/Prompts.h"
#include "collection/Rooms.h"

#include <functional>
#include <memory>

namespace trekor {

class Measurements {
public:
  // `form` is made before the rooms, as the socket's greeting tells its window handle.
  Measurements(MeasurementsForm& form, RunRooms rooms);
  ~Measurements();

  void LoadForm(); // the whole form load, to the enabled IdleTimer

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
  void PrepareStation(double km);

  // Stop a run and close a file, as every way out does first. May be called from the middle of a run operation (an EXIT
  // that came in at a pump): what stands in the grids is stored whole, and the operation below ends at its pump.
  void StopAndClose();
  // Unloads the forms that belong to the run and closes the sound device: the second to fourth step of the unload.
  void UnloadForms();
  // The unload of the main form is the program's business (program/Shutdown); this asks for it.
  std::function<void()> unloadMainForm;

  struct Parts;
  Parts& Subjects() { return *p; }

private:
  void WireEvents();
  void LoadControls();
  void LoadDirection();
  void ShowForm();
  void Send_SystemInfo();
  void CloseForm();

  MeasurementsForm& form;
  RunRooms rooms;
  std::unique_ptr<Parts> p;
};

} // namespace trekor
