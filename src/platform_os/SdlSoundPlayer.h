// Wave files through SDL, on a thread of its own: a sound server may take seconds to answer and a disk may have to spin
// up, and the caller, who handles a key, waits for neither. The thread looks for a file when it is due and reads it
// each time, so that changed files are heard; a key's tone takes it a quarter of a millisecond.
#pragma once

#include "platform/Drives.h"
#include "platform/SoundPlayer.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

namespace trekor {

class SdlSoundPlayer : public SoundPlayer {
public:
  // How many samples the device asks for at once: a sound waits for up to 6 ms for its turn.
  static constexpr int Frames = 256;

  // The drives are used on the player's thread too, and must outlive the player.
  explicit SdlSoundPlayer(Drives& drives) : drives(drives) {}
  // Waits until the library has released the device: for ever when LetsGo was false.
  ~SdlSoundPlayer() override = default;
  SdlSoundPlayer(const SdlSoundPlayer&) = delete;
  SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

  // The device is opened after PictureShown, as the first picture must not wait for it, or after two seconds without
  // that call. A device that can't be opened is not tried again.
  void Open_SoundDevice() override;
  void Close_SoundDevice() override { worker.request_stop(); }
  int Devices() override;
  void Play(const std::vector<std::string>& paths) override;

  // The program's first picture is on the screen.
  void PictureShown();
  // Ends the thread. False when it has not ended within a second: a sound server that hangs can hold it for good. The
  // caller then ends the process without waiting, or it would keep the next start out.
  bool LetsGo();

private:
  using Paths = std::vector<std::string>;
  using Samples = std::vector<std::uint8_t>;

  void Work(const std::stop_token& stop);
  void OpenDevice();
  void CloseDevice();
  void PlayWhatIsAsked(const std::stop_token& stop);
  bool StartFirst(const Paths& paths);
  static void Feed(void* self, std::uint8_t* out, int length);

  Drives& drives;
  // Shared by the callers and the worker, under the mutex, which is held for moments only.
  std::mutex mutex;
  std::condition_variable_any changed;
  bool pictureShown = false, audioStarted = false, ended = false;
  unsigned device = 0;
  std::vector<Paths> asked; // oldest first
  // Shared by the worker and the library's own thread, under the device's lock.
  Samples sound;
  std::size_t next = 0;

  std::jthread worker; // the last member, so that it ends before the others go
};

} // namespace trekor
