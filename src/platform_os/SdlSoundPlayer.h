// Wave files through SDL, on a thread of its own: a sound server may take seconds to answer and a disk may sleep, and
// the caller, who has a key in hand, waits for neither. The thread looks for a file when it is to be played and reads
// it afresh, so that whatever happened to the folders is heard; a key's tone costs it a quarter of a millisecond.
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
  // The drives are asked for files on the player's thread too.
  explicit SdlSoundPlayer(Drives& drives) : drives(drives) {}
  // Waits until the library lets go of the device: for ever, when LetsGo says so.
  ~SdlSoundPlayer() override = default;
  SdlSoundPlayer(const SdlSoundPlayer&) = delete;
  SdlSoundPlayer& operator=(const SdlSoundPlayer&) = delete;

  // The device is opened when the program has shown its first picture, which must not wait for it, or after two seconds
  // when nothing can be seen of the program. One that can't be opened is not tried again.
  void Open_SoundDevice() override;
  void Close_SoundDevice() override { worker.request_stop(); }
  int Devices() override;
  void Play(const std::vector<std::string>& paths) override;

  void PictureShown();
  // Ends the thread. False when it does not come back within a second: a sound server that hangs may hold it for good,
  // and must not hold the process, which nothing else keeps by then and which would keep the next start out.
  bool LetsGo();

private:
  using Paths = std::vector<std::string>;
  using Samples = std::vector<std::uint8_t>;

  void Work(const std::stop_token& stop);
  void OpenDevice();
  void CloseDevice();
  void PlayWhatIsAsked(const std::stop_token& stop);
  bool StartFirst(const Paths& paths);
  static Samples Load(const std::string& nativePath);
  static void Feed(void* self, std::uint8_t* out, int length);

  Drives& drives;
  // Between the callers and the worker, under the mutex, which nobody holds for long.
  std::mutex mutex;
  std::condition_variable_any changed;
  bool pictureShown = false, audioStarted = false, ended = false;
  unsigned device = 0;
  std::vector<Paths> asked; // oldest first
  // Between the worker and the library's own thread, under the device's lock.
  Samples sound;
  std::size_t next = 0;

  std::jthread worker; // the last member, so that it ends before the others go
};

} // namespace trekor
