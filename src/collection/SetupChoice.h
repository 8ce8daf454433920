// The list of test setups and the choice of one.
#pragma once

#include "collection/Feedback.h"
#include "collection/Grids.h"
#include "collection/KeyPictures.h"
#include "collection/RunContext.h"

namespace trekor {

class SetupChoice {
public:
  SetupChoice(RunContext& context, KeyPictures& keyPictures, Grids& grids, Feedback& feedback)
      : ctx(context), keyPictures(keyPictures), grids(grids), feedback(feedback) {}
  // Fills the list; the running setup stays when it is still there, otherwise the first one is chosen. A list that
  // can't be read is told and changes nothing, and so it is with a setup.
  void Load_TestSetupNames();
  // The operator's choice in the list.
  void cboTestSetupNames_Click();
  void Lock_SetupControls();
  void Unlock_SetupControls();

private:
  bool FillLists();
  int Listed(const std::string& id) const;
  void Select(int index);
  void Choose();
  void ChooseNone();
  void EnableControls(bool on);

  RunContext& ctx;
  KeyPictures& keyPictures;
  Grids& grids;
  Feedback& feedback;
  bool filling = false; // the list is moved by the program
  bool chosen = false;  // a setup is loaded, or the lack of one
};

} // namespace trekor
