// The toolkit's event loop, one helping at a time. The socket's events are raised in here too.
#pragma once

#include "platform/Pump.h"

namespace trekor {

class QtPump : public Pump {
public:
  void ProcessEvents() override;
  void WaitForEvents(double milliseconds) override;
};

} // namespace trekor
