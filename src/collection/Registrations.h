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
  Registrations(RunContext& context, KeyRing& ring, Run& run, Asking& asking, Grids& grids, Stepping& stepping,
                Feedback& feedback)
      : ctx(context), ring(ring), run(run), asking(asking), grids(grids), stepping(stepping), feedback(feedback) {}

  // Takes one key from the ring, if there is one. The key is stamped with the live position now, not when it was
  // pressed.
  void Process_Key();

private:
  void CarryOut(int key);
  void Register(int key);
  bool FindObservation(int key);
  void TakeSecondKey(int key);
  void Arm();
  bool ChangeValue();
  bool ChangeWhole();
  bool AskFloat();
  bool AskTextValue();
  void Show();
  void DeleteKey();
  void DeleteCell();
  ClassObservation& Current() const { return ctx.rooms.setup.Observations(ctx.fields.CurrentObs); }
  int CurrentInt() const;
  bool Paused() const { return ctx.Flags().RunState == RunStates::Paused; }

  RunContext& ctx;
  KeyRing& ring;
  Run& run;
  Asking& asking;
  Grids& grids;
  Stepping& stepping;
  Feedback& feedback;
};

} // namespace trekor
