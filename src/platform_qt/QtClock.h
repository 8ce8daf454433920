// The machine's clock.
#pragma once

#include "platform/Clock.h"

namespace trekor {

class QtClock : public Clock {
public:
  double Milliseconds() override;
  LocalTime Now() override;
};

} // namespace trekor
