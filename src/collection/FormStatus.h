// The caption of the main form, and which of its buttons, menus and boxes are enabled in idle, in a run and with an
// open data file.
#pragma once

#include "collection/KeyPictures.h"
#include "collection/MeasurementsForm.h"
#include "collection/RunStage.h"
#include "options/Options.h"

namespace trekor {

class FormStatus {
public:
  FormStatus(MeasurementsForm& form, const ProgramState& state, const RunStage& stage, KeyPictures& keyPictures,
             Options& options)
      : form(form), state(state), stage(stage), keyPictures(keyPictures), options(options) {}

  void SetCaption();
  void AsciiFileProgress(int percent); // in the caption, while a comma file is written
  // Called now and then: the caption, and the floating windows when the form was minimised or restored.
  void Refresh();

  void SetButtons(bool play, bool pause, bool stop);
  void SetMenusEnabled(bool on);
  // The choice of the setup and of the files' units, from the storing of its observations in a file until that is
  // closed.
  void Lock_SetupControls() { EnableSetupControls(false); }
  void Unlock_SetupControls() { EnableSetupControls(true); }
  // Step and direction, from the first run in a file until it is closed.
  void LockStep() { EnableStep(false); }
  void UnlockStep() { EnableStep(true); }
  // Shows the station of the end of the run in the box Previous.
  void ShowEndOfRun();

private:
  void EnableSetupControls(bool on);
  void EnableStep(bool on);

  MeasurementsForm& form;
  const ProgramState& state;
  const RunStage& stage;
  KeyPictures& keyPictures;
  Options& options;
};

} // namespace trekor
