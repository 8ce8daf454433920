#include "collection/Idle.h"

namespace trekor {

// The timer is off meanwhile, so that slow ticks cannot pile up; while a key has a prompt open there are no ticks.
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
