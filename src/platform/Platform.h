// All seams to the machine together, borrowed. A class that needs one of them takes that one; Program takes this.
#pragma once

#include "platform/Clock.h"
#include "platform/Drives.h"
#include "platform/Keyboard.h"
#include "platform/Process.h"
#include "platform/Pump.h"
#include "platform/Screen.h"
#include "platform/Shell.h"
#include "platform/Socket.h"
#include "platform/SoundPlayer.h"

namespace trekor {

struct Platform {
  trekor::Clock& clock;
  trekor::Pump& pump;
  trekor::Socket& socket;
  trekor::SoundPlayer& sound;
  trekor::Keyboard& keyboard;
  trekor::Drives& drives;
  trekor::Process& process;
  trekor::Shell& shell;
  trekor::Screen& screen;
};

} // namespace trekor
