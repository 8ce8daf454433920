#include "platform_qt/QtClock.h"

#include <QDateTime>

#include <chrono>

namespace trekor {

double QtClock::Milliseconds() {
  using namespace std::chrono;
  return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

LocalTime QtClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate d = now.date();
  const QTime t = now.time();
  return {d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second()};
}

} // namespace trekor
