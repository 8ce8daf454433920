// What the main form tells and allows: its caption, and which buttons, menus and boxes may be used in idle, in a run
// and with an open data file.
#pragma once

#include "collection/KeyPictures.h"
#include "collection/MeasurementsForm.h"
#include "collection/RunStage.h"

namespace trekor {

class FormStatus {
public:
  FormStatus(MeasurementsForm& form, const ProgramState& state, const RunStage& stage, KeyPictures& keyPictures)
      : form(form), state(state), stage(stage), keyPictures(keyPictures) {}

  void SetCaption();
  void AsciiFileProgress(int percent); // the caption tells how far the comma file is
  // Now and then: the caption, and the floating windows of a form that was minimised or restored.
  void Refresh();

  void SetButtons(bool play, bool pause, bool stop);
  void SetMenusEnabled(bool on);
  // From the moment when a file stores the setup's observations until it is closed.
  void Lock_SetupControls() { EnableSetupControls(false); }
  void Unlock_SetupControls() { EnableSetupControls(true); }
  // Step and direction, from the first run in a file until it is closed.
  void LockStep() { EnableStep(false); }
  void UnlockStep() { EnableStep(true); }
  // The box Previous shows where the run has ended.
  void ShowEndOfRun();

private:
  void EnableSetupControls(bool on);
  void EnableStep(bool on);

  MeasurementsForm& form;
  const ProgramState& state;
  const RunStage& stage;
  KeyPictures& keyPictures;
};

} // namespace trekor
