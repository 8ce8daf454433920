// The one message pump: socket lines are dispatched, keys delivered and timers fired in its calls. Whoever pumps in the
// middle of an operation must expect any of them there.
#pragma once

namespace trekor {

class Pump {
public:
  virtual ~Pump() = default;
  // Runs what is pending and returns; it never waits.
  virtual void ProcessEvents() = 0;
  // Runs what is pending. When nothing is, sleeps until an event comes, that many milliseconds at most. May return
  // early.
  virtual void WaitForEvents(double milliseconds) = 0;
};

} // namespace trekor
