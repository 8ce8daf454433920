// The main form: builds the subjects of the run, binds them to the form's events, loads and unloads. Each subject has a
// file pair in this folder (stepping, grid, registrations, feedback ...); a class that needs one gets it from here.
#pragma once

#include "collection/MeasurementsForm.h"
#include "collection/RunRooms.h"

#include <memory>

namespace trekor {

struct RunSubjects;

class Measurements {
public:
  // `form` is made before the rooms, as the socket's greeting tells its window handle.
  Measurements(MeasurementsForm& form, const RunRooms& rooms);
  ~Measurements();

  void LoadForm(); // the whole form load, to the enabled IdleTimer
  // Unloads the forms that belong to the run and closes the sound device.
  void UnloadForms();

  // They live as long as this.
  RunSubjects& Subjects() { return *subjects; }

private:
  void WireKeys();
  void WireControls();
  void WireMenus();
  void LoadControls();
  void ShowForm();
  void LoadOtherForms();
  bool QueryUnload();

  MeasurementsForm& form;
  RunRooms rooms;
  std::unique_ptr<RunSubjects> subjects;
};

} // namespace trekor
