// From a key to a value: which observation it concerns, how its value changes, what it sounds like, where it shows.
// Nothing reaches the data file here; values wait in the grids.
#pragma once

#include "collection/Asking.h"
#include "collection/Feedback.h"
#include "collection/Grids.h"
#include "collection/KeyRing.h"
#include "collection/Run.h"
#include "collection/RunContext.h"
#include "collection/Stepping.h"

namespace trekor {

class Registrations {
public:
  Registrations(RunContext& context, KeyRing& keyRing, Run& runStates, Asking& asking, Grids& collectionGrids,
                Stepping& roadSteps, Feedback& sounds)
      : ctx(context), ring(keyRing), run(runStates), ask(asking), grids(collectionGrids), stepping(roadSteps),
        feedback(sounds) {}

  // Takes one key from the ring, if there is one. The key is stamped with the live position now, not when it was
  // pressed.
  void Process_Key();

private:
  void Carry_Out(int key);
  void Register(int key);
  bool Find_Observation(int key);
  void Take_SecondKey(int key);
  void Arm();
  bool Change_Value();
  bool Change_Whole();
  bool Ask_Float();
  bool Ask_TextValue();
  void Show();
  void Delete_Key();
  void Delete_Cell();
  ClassObservation& Current() const { return ctx.rooms.setup.Observations(ctx.fields.CurrentObs); }
  int CurrentInt() const;
  bool Paused() const { return ctx.run().RunState == 2; }

  RunContext& ctx;
  KeyRing& ring;
  Run& run;
  Asking& ask;
  Grids& grids;
  Stepping& stepping;
  Feedback& feedback;
};

} // namespace trekor
