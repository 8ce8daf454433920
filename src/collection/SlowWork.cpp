#include "collection/SlowWork.h"

namespace trekor {

namespace {
constexpr double BarMilliseconds = 400, SlowMilliseconds = 800;
} // namespace

void SlowWork::DoWhatIsDue() {
  if (clock.Milliseconds() >= NextBarTime) {
    works.stepBar.RefreshStepBar();
    ShowMarks();
    works.keyMarks.Refresh();
    NextBarTime = clock.Milliseconds() + BarMilliseconds;
  }
  if (clock.Milliseconds() < NextSlowTime)
    return;
  works.simulation.Move();
  if (!stage.Ending())
    works.status.Refresh();
  NextSlowTime = clock.Milliseconds() + SlowMilliseconds;
}

void SlowWork::ShowMarks() {
  works.marks.Refresh(clock.Milliseconds(), socket.State() == SocketState::Connected);
}

} // namespace trekor
