// What the operator must see at a glance in the corner of the grid: whether the link is up, how old the last position
// is, and keys that were lost. Only shown: nothing of it is stored or sent.
#pragma once

#include "collection/KeyRing.h"
#include "collection/RunGrid.h"
#include "collection/RunStage.h"
#include "platform/Clock.h"
#include "platform/Socket.h"

#include <string>

namespace trekor {

class RunMarks {
public:
  RunMarks(RunGrid& grid, const RunStage& stage, const Positions& position, const KeyRing& ring)
      : grid(grid), stage(stage), position(position), ring(ring) {}
  // `now` in the clock's milliseconds. Called at the pace of the step bar, and by the link's watchdog.
  void Refresh(double now, bool linkUp);

private:
  void ShowLink(bool linkUp);
  void Show(int row, const std::string& text, bool alert);
  double PositionAge(double now);

  RunGrid& grid;
  const RunStage& stage;
  const Positions& position;
  const KeyRing& ring;
  unsigned heard = 0;    // positions, at the last look
  double heardAt = 0;    // ms
  bool watching = false; // the age counts from the start of the run at the earliest
};

} // namespace trekor
