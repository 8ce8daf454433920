// What a key does while no run is on.
#pragma once

#include "collection/KeyAssignment.h"
#include "collection/MeasurementsForm.h"
#include "collection/Run.h"
#include "collection/ViewMenu.h"
#include "state/ProgramState.h"
#include "texts/TextDatabase.h"

namespace trekor {

// Who carries a key out.
struct IdleKeyDoers {
  Run& run;
  KeyAssignment& keyAssignment;
  ViewMenu& viewMenu;
  TextDatabase& texts;
};

class IdleKeys {
public:
  IdleKeys(MeasurementsForm& form, const Positions& position, const IdleKeyDoers& doers)
      : form(form), position(position), doers(doers) {}
  bool IdleKey(int keyCode, int shift); // true: the key is taken

private:
  MeasurementsForm& form;
  const Positions& position;
  IdleKeyDoers doers;
};

} // namespace trekor
