#include "platform_os/SdlSoundPlayer.h"

#include "platform_os/SdlLibrary.h"
#include "platform_os/SoundLibrary.h"
#include "platform_os/WaveFile.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace trekor {

namespace {

constexpr std::chrono::seconds LongestWaitForPicture{2}, LongestWaitForServer{1};

void Trace(const char* what, const char* why) {
  if (std::getenv("TREKOR_TRACE"))
    std::fprintf(stderr, "%s%s\n", what, why);
}

} // namespace

void SdlSoundPlayer::Open_SoundDevice() {
  if (!worker.joinable())
    worker = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

void SdlSoundPlayer::PictureShown() {
  const std::lock_guard lock(mutex);
  pictureShown = true;
  changed.notify_all();
}

int SdlSoundPlayer::Devices() {
  const std::lock_guard lock(mutex);
  return audioStarted ? std::max(0, Sdl()->GetNumAudioDevices(0)) : 0;
}

void SdlSoundPlayer::Play(const Paths& paths) {
  {
    const std::lock_guard lock(mutex);
    if (device == 0)
      return;
    asked.push_back(paths);
  }
  changed.notify_all(); // without the mutex, for which the worker would have to wait at once
}

void SdlSoundPlayer::Work(const std::stop_token& stop) {
  {
    std::unique_lock lock(mutex);
    changed.wait_for(lock, stop, LongestWaitForPicture, [this] { return pictureShown; });
  }
  if (!stop.stop_requested()) {
    OpenDevice();
    PlayWhatIsAsked(stop);
    CloseDevice();
    if (const SdlLibrary* sdl = Sdl())
      sdl->TLSCleanup(); // what the library keeps for a thread that it did not begin
  }
  const std::lock_guard lock(mutex);
  ended = true;
  changed.notify_all();
}

bool SdlSoundPlayer::LetsGo() {
  worker.request_stop();
  std::unique_lock lock(mutex);
  return changed.wait_for(lock, LongestWaitForServer, [this] { return ended || !worker.joinable(); });
}

void SdlSoundPlayer::OpenDevice() {
  SilenceSoundLibrary();
  const SdlLibrary* sdl = Sdl();
  if (!sdl)
    return Trace("no sound library", "");
  sdl->SetMainReady();
  sdl->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // else a request to terminate would be swallowed
  const bool started = sdl->InitSubSystem(SDL_INIT_AUDIO) == 0;
  SDL_AudioSpec stream{};
  stream.freq = WaveRate;
  stream.format = AUDIO_S16SYS;
  stream.channels = WaveChannels;
  stream.samples = Frames;
  stream.callback = &SdlSoundPlayer::Feed;
  stream.userdata = this;
  const SDL_AudioDeviceID opened = started ? sdl->OpenAudioDevice(nullptr, 0, &stream, nullptr, 0) : 0;
  if (opened != 0)
    sdl->PauseAudioDevice(opened, 0);
  Trace(opened != 0 ? "sound device open" : "no sound device: ", opened != 0 ? "" : sdl->GetError());
  const std::lock_guard lock(mutex);
  audioStarted = started;
  device = opened;
}

// After the mutex no other thread uses the device, so it is closed without holding it.
void SdlSoundPlayer::CloseDevice() {
  std::unique_lock lock(mutex);
  const bool started = std::exchange(audioStarted, false);
  const SDL_AudioDeviceID open = std::exchange(device, 0);
  lock.unlock();
  if (open != 0)
    Sdl()->CloseAudioDevice(open);
  if (started)
    Sdl()->QuitSubSystem(SDL_INIT_AUDIO);
}

// Only the newest of several that came meanwhile would be heard.
void SdlSoundPlayer::PlayWhatIsAsked(const std::stop_token& stop) {
  std::unique_lock lock(mutex);
  while (changed.wait(lock, stop, [this] { return !asked.empty(); })) {
    const std::vector<Paths> taken = std::exchange(asked, {});
    lock.unlock();
    std::any_of(taken.rbegin(), taken.rend(), [this](const Paths& paths) { return StartFirst(paths); });
    lock.lock();
  }
}

bool SdlSoundPlayer::StartFirst(const Paths& paths) {
  const auto path = std::find_if(paths.begin(), paths.end(), [this](const auto& p) { return drives.FileExists(p); });
  if (path == paths.end())
    return false;
  Samples loaded = LoadWave(drives.NativePath(*path));
  Sdl()->LockAudioDevice(device);
  sound.swap(loaded);
  next = 0;
  Sdl()->UnlockAudioDevice(device);
  return true;
}

// On the library's thread, under the device's lock.
void SdlSoundPlayer::Feed(void* self, std::uint8_t* out, int length) {
  auto& player = *static_cast<SdlSoundPlayer*>(self);
  const std::size_t room = static_cast<std::size_t>(length);
  const std::size_t n = std::min(room, player.sound.size() - player.next);
  std::copy_n(player.sound.begin() + static_cast<std::ptrdiff_t>(player.next), n, out);
  std::fill(out + n, out + room, std::uint8_t{0});
  player.next += n;
}

} // namespace trekor
