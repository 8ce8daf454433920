// A wait on the real clock and the real loop.
#include "platform/WaitSeconds.h"
#include "platform_qt/QtClock.h"
#include "platform_qt/QtPump.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <ctime>

namespace trekor {
namespace {

TEST(WaitTest, AWaitSleepsBetweenTheEvents) {
  QtClock clock;
  QtPump pump;
  int ticks = 0;
  QTimer tick; // the program's own, which goes on running
  QObject::connect(&tick, &QTimer::timeout, [&] {
    if (++ticks == 5)
      WaitSeconds(0.1, clock, pump); // a handler that waits itself
  });
  tick.start(25);
  const double begin = clock.Milliseconds();
  const std::clock_t before = std::clock(); // of the processor
  WaitSeconds(1, clock, pump);
  EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 50); // of the second
  const double waited = clock.Milliseconds() - begin;
  EXPECT_GE(waited, 1000);
  EXPECT_LT(waited, 1500);
  EXPECT_GE(ticks, 30);

  int turns = 0;
  WaitSeconds(10, clock, pump, [&] { return ++turns > 2; }); // what was waited for has come
  EXPECT_LT(clock.Milliseconds() - begin, 2000);
}

} // namespace
} // namespace trekor
