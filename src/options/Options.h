// The form with which the operator changes the options. What he changes is marked in bold and goes into the program
// state, and from there to everybody, when he applies it.
#pragma once

#include "options/OptionsDatabase.h"
#include "options/OptionsForm.h"
#include "platform/Platform.h"
#include "state/ProgramState.h"
#include "texts/TextDatabase.h"
#include "texts/YesNoPrompt.h"

namespace trekor {

class Options {
public:
  Options(ProgramState& state, Platform& platform, TextDatabase& texts, OptionsDatabase& database);
  // Shows the form modally. OptionsChanged is true afterwards when options were changed and applied, and the form was
  // not cancelled behind that.
  void ShowDialog();
  // Hides the form, when it is shown, and drops what is not yet applied; OptionsChanged tells of what is.
  void GiveWay();
  // From the moment when a data file is being made until it is closed its units stay. A form that is shown goes back to
  // them.
  void LockFileUnits(bool lock);
  // The link has named a unit for the stations of the files: a form that is shown takes it up, unless the operator has
  // chosen one himself.
  void FollowFileUnit();
  void Unload();
  OptionsForm form;
  YesNoPrompt SavePrompt; // when it is left with changes

private:
  void Wire();
  void WireFeedback();
  bool Key(int keyCode, int shift);
  void Leave();
  void CmdOK_Click();
  void CmdCancel_Click();
  void CmdApply_Click();
  void TKRCheck_Click();

  void Fill();
  void FillUnits();
  void FillFileUnits();
  void FillChecks();
  void ShowLastChange();
  void Enable(Control& control, bool on);
  void EnableFileUnits();
  void EnableFeedback();

  void Mark(Control& control);
  void Unmark();
  bool AnyMarked() const;

  void TakeUnits();
  void TakeFileUnits();
  void TakeChecks();

  ProgramState& state;
  Platform& platform;
  TextDatabase& texts;
  OptionsDatabase& database;
  bool filling = false; // the program is writing the controls itself
  bool fileUnitsLocked = false;
  bool applied = false; // since the form has been opened
};

} // namespace trekor
