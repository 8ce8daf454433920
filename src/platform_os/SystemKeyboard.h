// The keyboard of the system that this was built for.
#pragma once

#ifdef _WIN32
#include "platform_os/WinKeyboard.h"
#else
#include "platform_os/X11Keyboard.h"
#endif

namespace trekor {

#ifdef _WIN32
using SystemKeyboard = WinKeyboard;
#else
using SystemKeyboard = X11Keyboard;
#endif

} // namespace trekor
