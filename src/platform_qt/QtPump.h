// The toolkit's event loop, run for the events that are pending. The socket raises its events in here.
#pragma once

#include "platform/Pump.h"

namespace trekor {

class QtPump : public Pump {
public:
  void ProcessEvents() override;
  void WaitForEvents(double milliseconds) override;
};

} // namespace trekor
