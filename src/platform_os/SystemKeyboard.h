// The keyboard class of the system that this is built for.
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
