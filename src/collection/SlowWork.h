// What a tick does only now and then: the step bar, and at longer intervals the simulation, the caption and the
// floating windows.
#pragma once

#include "collection/FormStatus.h"
#include "collection/RunStage.h"
#include "collection/Simulation.h"
#include "collection/StepBar.h"
#include "platform/Clock.h"

namespace trekor {

class SlowWork {
public:
  SlowWork(Clock& clock, const RunStage& stage, StepBar& stepBar, Simulation& simulation, FormStatus& status)
      : clock(clock), stage(stage), stepBar(stepBar), simulation(simulation), status(status) {}
  void DoWhatIsDue();

private:
  Clock& clock;
  const RunStage& stage;
  StepBar& stepBar;
  Simulation& simulation;
  FormStatus& status;
  double NextBarTime = 0, NextSlowTime = 0; // clock milliseconds
};

} // namespace trekor
