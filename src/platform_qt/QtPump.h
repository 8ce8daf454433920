// The toolkit's event loop, one helping at a time. Posted socket events are dispatched in here too.
#pragma once

#include "platform/Pump.h"

namespace trekor {

class QtPump : public Pump {
public:
  void ProcessEvents() override;
};

} // namespace trekor
