// The tick that carries the whole run: every 25 ms one pump, one key at most, and now and then the slow work. Nothing
// in here asks a database or the window system, and nothing is written that has not changed.
#pragma once

#include "collection/Feedback.h"
#include "collection/KeyPictures.h"
#include "collection/Registrations.h"
#include "collection/RunContext.h"
#include "collection/Stepping.h"

namespace trekor {

class Idle {
public:
  Idle(RunContext& context, Registrations& registrations, Grids& grids, Stepping& stepping, Feedback& feedback,
       KeyPictures& keyPictures)
      : ctx(context), registrations(registrations), grids(grids), stepping(stepping), feedback(feedback),
        keyPictures(keyPictures) {}
  void Idle_Tick();

private:
  void Tick();
  void SlowWork();
  void SimulateDMI();
  void WatchMinimise();

  RunContext& ctx;
  Registrations& registrations;
  Grids& grids;
  Stepping& stepping;
  Feedback& feedback;
  KeyPictures& keyPictures;
};

} // namespace trekor
