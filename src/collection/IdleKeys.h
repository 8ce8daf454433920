// What a key does while no run is on.
#pragma once

#include "collection/KeyAssignment.h"
#include "collection/MeasurementsForm.h"
#include "collection/Run.h"
#include "collection/ViewMenu.h"
#include "state/ProgramState.h"
#include "texts/TextDatabase.h"

namespace trekor {

class IdleKeys {
public:
  IdleKeys(MeasurementsForm& form, const Positions& position, Run& run, KeyAssignment& keyAssignment,
           ViewMenu& viewMenu, TextDatabase& texts)
      : form(form), position(position), run(run), keyAssignment(keyAssignment), viewMenu(viewMenu), texts(texts) {}
  bool IdleKey(int keyCode, int shift); // true: the key is taken

private:
  MeasurementsForm& form;
  const Positions& position;
  Run& run;
  KeyAssignment& keyAssignment;
  ViewMenu& viewMenu;
  TextDatabase& texts;
};

} // namespace trekor
