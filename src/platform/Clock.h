// Time as the program sees it. Tests pass a clock that they set themselves.
#pragma once

namespace trekor {

// A local date and time to the second, as the databases store it. Year 0 means "no date".
struct LocalTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
  bool operator==(const LocalTime&) const = default;
};

class Clock {
public:
  virtual ~Clock() = default;
  // A monotonic count of milliseconds; its zero is arbitrary.
  virtual double Milliseconds() = 0;
  // The present local date and time.
  virtual LocalTime Now() = 0;
};

} // namespace trekor
