// The one message pump. Everything that must "let pending events run" calls it: socket lines are dispatched here,
// keys arrive here, timers fire here. It returns when nothing is pending; it never waits.
#pragma once

namespace trekor {

class Pump {
public:
  virtual ~Pump() = default;
  virtual void ProcessEvents() = 0;
};

} // namespace trekor
