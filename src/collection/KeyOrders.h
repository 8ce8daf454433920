// One key of the ring: an order to the run, or a registration.
#pragma once

#include "collection/KeyRing.h"
#include "collection/Registrations.h"
#include "collection/Run.h"
#include "collection/RunStage.h"
#include "collection/Stepping.h"

namespace trekor {

class KeyOrders {
public:
  KeyOrders(RunStage& stage, KeyRing& ring, Run& run, Registrations& registrations, Stepping& stepping)
      : stage(stage), ring(ring), run(run), registrations(registrations), stepping(stepping) {}

  // Takes one key from the ring, if there is one. The key is stamped with the live position now, not when it was
  // pressed.
  void Process_Key();

private:
  void CarryOut(int key);

  RunStage& stage;
  KeyRing& ring;
  Run& run;
  Registrations& registrations;
  Stepping& stepping;
};

} // namespace trekor
