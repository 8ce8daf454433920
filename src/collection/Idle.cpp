#include "collection/Idle.h"

namespace trekor {

// The timer rests meanwhile, so that slow ticks cannot pile up; a prompt that a key opens keeps it at rest.
void Idle::Idle_Tick() {
  timer.SetRunning(false);
  Tick();
  if (!stage.Ending())
    timer.SetRunning(true);
}

void Idle::Tick() {
  IdleStarted = true;
  stage.LetEventsIn(); // socket messages and keys get in here
  if (stage.Ending())
    return;
  if (stage.InRun())
    keyOrders.Process_Key();
  gridEditing.FollowSelection();
  if (!stage.Ending())
    slowWork.DoWhatIsDue();
}

} // namespace trekor
