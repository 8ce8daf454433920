#include "platform_qt/SdlSoundPlayer.h"

// The program has its own main.
#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <cstring>

namespace trekor {

namespace {

constexpr int Rate = 44100, Channels = 2;
constexpr int Frames = 512; // 12 ms from the key to the loudspeaker

} // namespace

SdlSoundPlayer::~SdlSoundPlayer() {
  SdlSoundPlayer::Close_SoundDevice(); // named, as nothing below this class is alive any more
  if (audioStarted)
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool SdlSoundPlayer::StartAudio() {
  if (!audioStarted) {
    SDL_SetMainReady();
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // else a request to terminate would be swallowed
    audioStarted = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
  }
  return audioStarted;
}

int SdlSoundPlayer::Devices() {
  return StartAudio() ? std::max(0, SDL_GetNumAudioDevices(0)) : 0;
}

void SdlSoundPlayer::OpenDevice() {
  if (!wanted || tried)
    return;
  tried = true;
  if (!StartAudio())
    return;
  SDL_AudioSpec stream{};
  stream.freq = Rate;
  stream.format = AUDIO_S16SYS;
  stream.channels = Channels;
  stream.samples = Frames;
  stream.callback = &SdlSoundPlayer::Feed;
  stream.userdata = this;
  device = SDL_OpenAudioDevice(nullptr, 0, &stream, nullptr, 0);
  if (device != 0)
    SDL_PauseAudioDevice(device, 0);
}

void SdlSoundPlayer::Close_SoundDevice() {
  wanted = tried = false;
  if (device != 0)
    SDL_CloseAudioDevice(device);
  device = 0;
  left = 0;
}

void SdlSoundPlayer::Play(const std::string& path) {
  OpenDevice();
  if (device == 0)
    return;
  const Samples& sound = Load(drives.NativePath(path));
  SDL_LockAudioDevice(device);
  next = sound.data();
  left = sound.size();
  SDL_UnlockAudioDevice(device);
}

bool SdlSoundPlayer::Playing() {
  if (device == 0)
    return false;
  SDL_LockAudioDevice(device);
  const bool playing = left > 0;
  SDL_UnlockAudioDevice(device);
  return playing;
}

const SdlSoundPlayer::Samples& SdlSoundPlayer::Load(const std::string& nativePath) {
  const auto [entry, fresh] = cache.try_emplace(nativePath);
  Samples& sound = entry->second;
  SDL_AudioSpec file{};
  Uint8* bytes = nullptr;
  Uint32 length = 0;
  if (!fresh || !SDL_LoadWAV(nativePath.c_str(), &file, &bytes, &length))
    return sound;
  SDL_AudioCVT cvt{};
  if (SDL_BuildAudioCVT(&cvt, file.format, file.channels, file.freq, AUDIO_S16SYS, Channels, Rate) >= 0) {
    sound.resize(std::size_t{length} * static_cast<std::size_t>(std::max(1, cvt.len_mult)));
    std::copy_n(bytes, length, sound.begin());
    cvt.buf = sound.data();
    cvt.len = static_cast<int>(length);
    cvt.len_cvt = cvt.len;
    sound.resize(!cvt.needed || SDL_ConvertAudio(&cvt) == 0 ? static_cast<std::size_t>(cvt.len_cvt) : 0);
  }
  SDL_FreeWAV(bytes);
  return sound;
}

// On the audio thread, under the device's lock.
void SdlSoundPlayer::Feed(void* self, std::uint8_t* out, int length) {
  auto& player = *static_cast<SdlSoundPlayer*>(self);
  const std::size_t room = static_cast<std::size_t>(length);
  const std::size_t n = std::min(room, player.left);
  if (n > 0)
    std::memcpy(out, player.next, n);
  std::memset(out + n, 0, room - n);
  player.next += n;
  player.left -= n;
}

} // namespace trekor
