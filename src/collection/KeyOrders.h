// Carries out the keys of the ring: commands of the run, and registrations.
#pragma once

#include "collection/KeyMarks.h"
#include "collection/KeyRing.h"
#include "collection/Registrations.h"
#include "collection/Run.h"
#include "collection/RunStage.h"
#include "collection/Stepping.h"

namespace trekor {

// Who carries a key out.
struct KeyDoers {
  Run& run;
  Registrations& registrations;
};

class KeyOrders {
public:
  KeyOrders(RunStage& stage, KeyRing& ring, Stepping& stepping, KeyMarks& marks, const KeyDoers& doers)
      : stage(stage), ring(ring), stepping(stepping), marks(marks), doers(doers) {}

  // Carries out one key of the ring, if there is one. It gets the position of now, not of when it was pressed.
  void Process_Key();

private:
  void CarryOut(int key);

  RunStage& stage;
  KeyRing& ring;
  Stepping& stepping;
  KeyMarks& marks;
  KeyDoers doers;
};

} // namespace trekor
