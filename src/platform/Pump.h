// The one message pump. Everything that must "let pending events run" calls it: socket lines are dispatched here,
// keys arrive here, timers fire here.
#pragma once

namespace trekor {

class Pump {
public:
  virtual ~Pump() = default;
  // Runs what is pending and returns; it never waits.
  virtual void ProcessEvents() = 0;
  // For whoever waits: runs what is pending, and when nothing is lets the processor sleep until an event comes, that
  // many milliseconds at most. May return early.
  virtual void WaitForEvents(double milliseconds) = 0;
};

} // namespace trekor
