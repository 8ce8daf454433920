// Carries out the keys of the ring: commands of the run, and registrations.
#pragma once

#include "collection/KeyMarks.h"
#include "collection/KeyRing.h"
#include "collection/Registrations.h"
#include "collection/Run.h"
#include "collection/RunStage.h"
#include "collection/Stepping.h"

namespace trekor {

class KeyOrders {
public:
  KeyOrders(RunStage& stage, KeyRing& ring, Run& run, Registrations& registrations, Stepping& stepping, KeyMarks& marks)
      : stage(stage), ring(ring), run(run), registrations(registrations), stepping(stepping), marks(marks) {}

  // Carries out one key of the ring, if there is one. It gets the position of now, not of when it was pressed.
  void Process_Key();

private:
  void CarryOut(int key);

  RunStage& stage;
  KeyRing& ring;
  Run& run;
  Registrations& registrations;
  Stepping& stepping;
  KeyMarks& marks;
};

} // namespace trekor
