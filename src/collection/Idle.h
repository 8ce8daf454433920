// The tick that drives the run: every 25 ms one pump, one key at most, and now and then the slow work. A tick without a
// key or a message asks no database and no window system, and writes nothing that has not changed.
#pragma once

#include "collection/GridEditing.h"
#include "collection/KeyOrders.h"
#include "collection/RunStage.h"
#include "collection/SlowWork.h"
#include "forms/Controls.h"

namespace trekor {

class Idle {
public:
  Idle(Timer& timer, const RunStage& stage, KeyOrders& keyOrders, GridEditing& gridEditing, SlowWork& slowWork)
      : timer(timer), stage(stage), keyOrders(keyOrders), gridEditing(gridEditing), slowWork(slowWork) {}
  void Idle_Tick();

private:
  void Tick();

  Timer& timer;
  const RunStage& stage;
  KeyOrders& keyOrders;
  GridEditing& gridEditing;
  SlowWork& slowWork;
  bool IdleStarted = false; // a tick has begun; kept for whoever asks, as yet nobody
};

} // namespace trekor
