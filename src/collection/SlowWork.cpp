#include "collection/SlowWork.h"

namespace trekor {

namespace {
constexpr double BarMilliseconds = 400, SlowMilliseconds = 800;
} // namespace

void SlowWork::DoWhatIsDue() {
  if (clock.Milliseconds() >= NextBarTime) {
    stepBar.RefreshStepBar();
    NextBarTime = clock.Milliseconds() + BarMilliseconds;
  }
  if (clock.Milliseconds() < NextSlowTime)
    return;
  simulation.Move();
  if (!stage.Ending())
    status.Refresh();
  NextSlowTime = clock.Milliseconds() + SlowMilliseconds;
}

} // namespace trekor
