// The list of test setups and the choice of one of them.
#pragma once

#include "collection/Feedback.h"
#include "collection/GridHead.h"
#include "collection/KeyPictures.h"
#include "collection/MeasurementsForm.h"
#include "setup/SetupDatabase.h"

namespace trekor {

// What shows the chosen setup and plays its sounds.
struct SetupViews {
  KeyPictures& keyPictures;
  GridHead& gridHead;
  Feedback& feedback;
};

class SetupChoice {
public:
  SetupChoice(const SetupControls& controls, SetupDatabase& setupDatabase, TestSetup& setup, ProgramState& state,
              const SetupViews& views)
      : controls(controls), setupDatabase(setupDatabase), setup(setup), state(state), views(views) {}
  // Fills the list; the running setup stays when it is still there, otherwise the first one is chosen. When the list or
  // the chosen setup can't be read, the operator is told and the old setup stays.
  void Load_TestSetupNames();
  // The operator's choice in the list.
  void cboTestSetupNames_Click();

private:
  bool FillLists();
  int Listed(const std::string& id) const;
  void Select(int index);
  void Choose();
  void ChooseNone();

  SetupControls controls;
  SetupDatabase& setupDatabase;
  TestSetup& setup;
  ProgramState& state;
  SetupViews views;
  bool filling = false; // the list is moved by the program
  bool chosen = false;  // a setup is loaded, or the lack of one
};

} // namespace trekor
