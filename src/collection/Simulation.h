// The simulated vehicle: moves a metre now and then, until the first position comes on the link.
#pragma once

#include "collection/RunNews.h"
#include "collection/RunStage.h"
#include "collection/Stepping.h"
#include "state/ProgramState.h"

namespace trekor {

class Simulation {
public:
  Simulation(ProgramState& state, const RunStage& stage, RunNews& news, Stepping& stepping)
      : state(state), stage(stage), news(news), stepping(stepping) {}
  void Move();

private:
  ProgramState& state;
  const RunStage& stage;
  RunNews& news;
  Stepping& stepping;
};

} // namespace trekor
