// Plays wave files. One device; the newest sound replaces the one before; without a device there is silence.
#pragma once

#include <string>

namespace trekor {

class SoundPlayer {
public:
  virtual ~SoundPlayer() = default;
  virtual void Open_SoundDevice() = 0;
  virtual void Close_SoundDevice() = 0;
  // Number of output devices of the machine.
  virtual int Devices() = 0;
  // Begins to play the wave file (a path of the program, "C:\...\D1.WAV") and returns at once.
  virtual void Play(const std::string& path) = 0;
};

} // namespace trekor
