// Wave files through SDL. The device is opened after the first picture of the program (OpenDevice) or at the first
// sound, whichever comes first, as a sound server may take its time; one that could not be opened is not tried again.
//
// A file is read and brought to the device's format once and kept. The newest sound replaces the one before.
#pragma once

#include "platform/Drives.h"
#include "platform/SoundPlayer.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace trekor {

class SdlSoundPlayer : public SoundPlayer {
public:
  explicit SdlSoundPlayer(Drives& drives) : drives(drives) {}
  ~SdlSoundPlayer() override;
  SdlSoundPlayer(const SdlSoundPlayer&) = delete;
  SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

  void Open_SoundDevice() override { wanted = true; }
  void Close_SoundDevice() override;
  int Devices() override;
  void Play(const std::string& path) override;

  // Opens the device when it was asked for and is not open yet.
  void OpenDevice();
  // Whether a sound is still being played.
  bool Playing();

private:
  using Samples = std::vector<std::uint8_t>;
  bool StartAudio();
  const Samples& Load(const std::string& nativePath);
  static void Feed(void* self, std::uint8_t* out, int length);

  Drives& drives;
  bool wanted = false, tried = false, audioStarted = false;
  unsigned device = 0;
  std::map<std::string, Samples> cache; // by native path; an unreadable file is kept as an empty one
  // Shared with the audio thread, under the device's lock.
  const std::uint8_t* next = nullptr;
  std::size_t left = 0;
};

} // namespace trekor
