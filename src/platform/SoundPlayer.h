// Plays wave files on one device. The newest sound replaces the one before; without a device there is silence. No call
// waits for a device or a disk.
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
  // Number of output devices of the machine; 0 until the device has been opened.
  virtual int Devices() = 0;
  // Plays the first of these wave files (paths like "C:\...\D1.WAV") that exists when its turn comes. When none exists,
  // the sound before goes on.
  virtual void Play(const std::vector<std::string>& paths) = 0;
};

} // namespace trekor
