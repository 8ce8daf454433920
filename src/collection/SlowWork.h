// What a tick does only now and then: every 400 ms the step bar and the marks beside it and on the keys, every 800 ms
// the simulation, the caption and the floating windows.
#pragma once

#include "collection/FormStatus.h"
#include "collection/KeyMarks.h"
#include "collection/RunMarks.h"
#include "collection/RunStage.h"
#include "collection/Simulation.h"
#include "collection/StepBar.h"
#include "platform/Clock.h"

namespace trekor {

class SlowWork {
public:
  // What it does.
  struct Works {
    StepBar& stepBar;
    RunMarks& marks;
    KeyMarks& keyMarks;
    Simulation& simulation;
    FormStatus& status;
  };
  SlowWork(Clock& clock, Socket& socket, const RunStage& stage, const Works& works)
      : clock(clock), socket(socket), stage(stage), works(works) {}
  void DoWhatIsDue();
  // Link and age of the position, as they are now.
  void ShowMarks();

private:
  Clock& clock;
  Socket& socket;
  const RunStage& stage;
  Works works;
  double NextBarTime = 0, NextSlowTime = 0; // clock milliseconds
};

} // namespace trekor
