#include "platform_qt/DesktopScreen.h"

#include <windows.h>

namespace trekor {

void DesktopScreen::KeepOn(bool on) {
  SetThreadExecutionState(on ? ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
}

} // namespace trekor
