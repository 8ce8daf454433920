// Waiting for what a real connection brings, in the program's own way.
#pragma once

#include "platform/Pump.h"

#include <QElapsedTimer>

#include <functional>

namespace trekor::tests {

// Lets events run until it is done, five seconds at most. True when it is.
inline bool WaitUntil(Pump& pump, const std::function<bool()>& done) {
  QElapsedTimer clock;
  clock.start();
  bool is = done();
  for (; !is && clock.elapsed() < 5000; is = done())
    pump.WaitForEvents(20);
  return is;
}

} // namespace trekor::tests
