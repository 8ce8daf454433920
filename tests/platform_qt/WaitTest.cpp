// A wait on the real clock and the real loop.
#include "platform/WaitSeconds.h"
#include "platform_qt/QtClock.h"
#include "platform_qt/QtPump.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <ctime>

namespace trekor {
namespace {

double ProcessorSeconds() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) / 1e9;
}

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
  const double begin = clock.Milliseconds(), before = ProcessorSeconds();
  WaitSeconds(1, clock, pump);
  EXPECT_LT(ProcessorSeconds() - before, 0.02); // of the second
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
