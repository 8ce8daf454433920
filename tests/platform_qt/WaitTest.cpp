// A wait on the real clock and the real loop.
#include "platform/WaitSeconds.h"
#include "platform_qt/QtClock.h"
#include "platform_qt/QtProcess.h"
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

TEST(ProcessTest, TellsItsWordsTheDateAndAnotherGuidEachTime) {
  std::string program = "Trekor", system = "7707-104", country = "/US";
  char* words[] = {program.data(), system.data(), country.data()};
  QtProcess process(3, words, false, "C:\\Trekor");
  EXPECT_EQ(process.CommandLine(), "7707-104 /US");
  unsigned char one[16] = {}, other[16] = {};
  EXPECT_TRUE(process.NewGuidBytes(one) && process.NewGuidBytes(other));
  EXPECT_FALSE(std::equal(one, one + 16, other));
  const std::time_t now = std::time(nullptr);
  const std::tm today = *std::localtime(&now);
  const LocalTime told = QtClock().Now();
  EXPECT_EQ(std::vector({told.year - 1900, told.month - 1, told.day}),
            std::vector({today.tm_year, today.tm_mon, today.tm_mday}));
}

} // namespace
} // namespace trekor
