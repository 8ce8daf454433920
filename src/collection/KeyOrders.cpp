#include "collection/KeyOrders.h"

#include "values/KeyCodes.h"

namespace trekor {

void KeyOrders::Process_Key() {
  // A key that comes while a row is being made waits for the next tick.
  if (ring.Empty() || stage.RowsWait())
    return;
  if (stage.InRun())
    stepping.TakeKeyStation();
  const int key = ring.Front();
  ring.Advance(); // first: a command that waited for a stop may begin the next run, which clears the ring
  marks.Pressed(key);
  CarryOut(key);
  marks.Refresh();
  stepping.ReleaseHeldDmi();
}

void KeyOrders::CarryOut(int key) {
  switch (key) {
  case keys::F2:
    return stage.InRun() ? doers.run.Resume_Run() : doers.run.Start_Run();
  case keys::F3:
    return doers.run.Pause_Run();
  case keys::Esc:
  case keys::F4:
    return stage.Paused() ? doers.run.Stop_FromPause() : doers.run.Stop_Run();
  case keys::Delete:
    return doers.registrations.DeleteKey();
  default:
    return doers.registrations.Register(key);
  }
}

} // namespace trekor
