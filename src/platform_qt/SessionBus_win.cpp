#include "platform_qt/SessionBus.h"

namespace trekor {

bool HasSessionBus() {
  return false;
}

void StartNoSessionBus() {}

} // namespace trekor
