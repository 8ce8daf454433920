// Plays wave files. One device; the newest sound replaces the one before; without a device there is silence. Nothing
// here makes its caller wait for a device or a disk.
#pragma once

#include <string>
#include <vector>

namespace trekor {

class SoundPlayer {
public:
  virtual ~SoundPlayer() = default;
  // Begins to open the device. What is played before it is open is not heard.
  virtual void Open_SoundDevice() = 0;
  virtual void Close_SoundDevice() = 0;
  // Number of output devices of the machine; 0 as long as the device was not asked for or its library still looks.
  virtual int Devices() = 0;
  // Plays the first of these wave files (paths of the program, "C:\...\D1.WAV") that is there when its turn comes, as
  // it is then. When none is there, the sound before goes on.
  virtual void Play(const std::vector<std::string>& paths) = 0;
};

} // namespace trekor
