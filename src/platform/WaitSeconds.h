// The one way to wait: events run meanwhile, and the processor sleeps between them.
#pragma once

#include "platform/Clock.h"
#include "platform/Pump.h"

namespace trekor {

// Returns when that many seconds have passed on the millisecond clock, or as soon as `done` is true between two events.
template <class Done> void WaitSeconds(double seconds, Clock& clock, Pump& pump, Done done) {
  const double end = clock.Milliseconds() + seconds * 1000;
  for (double left = 0; !done() && (left = end - clock.Milliseconds()) > 0;)
    pump.WaitForEvents(left);
}

inline void WaitSeconds(double seconds, Clock& clock, Pump& pump) {
  WaitSeconds(seconds, clock, pump, [] { return false; });
}

} // namespace trekor
