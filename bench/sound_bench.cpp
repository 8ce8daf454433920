// From the order to play to the first sample at the device. The floor: a buffer that lies ready is handed to a bare
// device of the same size. The device is the library's that throws all away at the pace of a card.
//
//   trekor_sound_bench [ROUNDS]
#include "platform_os/FileDrives.h"
#include "platform_os/SdlSoundPlayer.h"
#include "platform_os/WaveFile.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace trekor {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::int16_t Level = 8000;

double Milliseconds(Clock::duration d) {
  return std::chrono::duration<double, std::milli>(d).count();
}

// What the device is given; tells when the sign of the samples last changed.
class Ear {
public:
  static void Listen(const Uint8* bytes, int length) {
    for (int i = 0; i + 1 < length; i += 2) {
      std::int16_t sample = 0;
      std::memcpy(&sample, bytes + i, 2);
      const int now = sample > Level / 2 ? 1 : sample < -Level / 2 ? -1 : 0;
      if (now != 0 && now != sign) {
        when = Clock::now();
        sign = now;
      }
    }
  }
  // Waits for samples of this sign.
  static Clock::time_point Heard(bool positive) {
    while (sign != (positive ? 1 : -1))
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    return when.load();
  }

private:
  static inline std::atomic<int> sign{0};
  static inline std::atomic<Clock::time_point> when{};
};

SDL_AudioCallback asked = nullptr;

void Overhear(void* self, Uint8* out, int length) {
  asked(self, out, length);
  Ear::Listen(out, length);
}

// A second in the kind that a release ships, all of one value.
void WriteWave(const fs::path& file, std::int16_t value) {
  const std::uint32_t rate = 22050, length = rate * 2;
  std::ofstream out(file, std::ios::binary);
  const auto put = [&](auto number) { out.write(reinterpret_cast<const char*>(&number), sizeof number); };
  out << "RIFF", put(length + 36), out << "WAVEfmt ", put(std::uint32_t{16});
  put(std::uint16_t{1}), put(std::uint16_t{1}), put(rate), put(rate * 2), put(std::uint16_t{2}), put(std::uint16_t{16});
  out << "data", put(length);
  for (std::uint32_t i = 0; i < rate; ++i)
    put(value);
}

struct Times {
  std::vector<double> call, sound;
};

// `play` begins a sound of round i, whose samples are positive in every other round.
template <typename Play> Times Measure(int rounds, Play play) {
  Times times;
  std::mt19937 random(1);
  for (int i = 0; i < rounds; ++i) {
    // Anywhere between two requests of the device.
    std::this_thread::sleep_for(std::chrono::microseconds(15000 + random() % 15000));
    const auto begin = Clock::now();
    play(i);
    times.call.push_back(Milliseconds(Clock::now() - begin));
    times.sound.push_back(Milliseconds(Ear::Heard(i % 2 == 0) - begin));
  }
  return times;
}

Times MeasurePlayer(int rounds, FileDrives& drives) {
  std::vector<std::vector<std::string>> paths;
  for (int i = 0; i < rounds; ++i) { // each key another file, which only the second folder has
    const std::string name = "O" + std::to_string(i) + ".WAV";
    WriteWave(drives.NativePath("C:\\Trekor\\" + name), i % 2 == 0 ? Level : -Level);
    paths.push_back({"C:\\Trekor\\Danish\\" + name, "C:\\Trekor\\" + name});
  }
  SdlSoundPlayer player(drives);
  player.Open_SoundDevice();
  player.PictureShown();
  while (player.Devices() == 0)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  return Measure(rounds, [&](int i) { player.Play(paths[static_cast<std::size_t>(i)]); });
}

struct Bare {
  const std::int16_t* sound = nullptr;
  std::size_t next = 0;
  static constexpr std::size_t Samples = std::size_t{2} * WaveRate;
  static void Feed(void* self, Uint8* out, int length) {
    auto& bare = *static_cast<Bare*>(self);
    std::memset(out, 0, static_cast<std::size_t>(length));
    const std::size_t n = bare.sound ? std::min(static_cast<std::size_t>(length) / 2, Samples - bare.next) : 0;
    if (n > 0)
      std::memcpy(out, bare.sound + bare.next, n * 2);
    bare.next += n;
  }
};

Times MeasureBare(int rounds) {
  const std::vector<std::int16_t> up(Bare::Samples, Level), down(Bare::Samples, -Level);
  SDL_InitSubSystem(SDL_INIT_AUDIO);
  Bare bare;
  SDL_AudioSpec stream{};
  stream.freq = WaveRate;
  stream.format = AUDIO_S16SYS;
  stream.channels = WaveChannels;
  stream.samples = SdlSoundPlayer::Frames;
  stream.callback = &Bare::Feed;
  stream.userdata = &bare;
  const SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &stream, nullptr, 0);
  SDL_PauseAudioDevice(device, 0);
  Times times = Measure(rounds, [&](int i) {
    SDL_LockAudioDevice(device);
    bare.sound = (i % 2 == 0 ? up : down).data();
    bare.next = 0;
    SDL_UnlockAudioDevice(device);
  });
  SDL_CloseAudioDevice(device);
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  return times;
}

void Tell(const char* what, std::vector<double> values) {
  std::sort(values.begin(), values.end());
  std::printf("%-22s p50 %7.3f   p99 %7.3f   highest %7.3f ms\n", what, values[values.size() / 2],
              values[values.size() * 99 / 100], values.back());
}

int Run(int rounds) {
  char name[] = "/tmp/trekor-sound-XXXXXX";
  const fs::path folder = ::mkdtemp(name);
  ::setenv("SDL_AUDIODRIVER", "dummy", 1);
  SDL_SetMainReady();
  FileDrives drives(folder / "drives");
  drives.MakeFolder("C:\\Trekor");
  const Times ours = MeasurePlayer(rounds, drives), floor = MeasureBare(rounds);
  Tell("the call", ours.call);
  Tell("the floor's call", floor.call);
  Tell("call to sound", ours.sound);
  Tell("the floor's sound", floor.sound);
  fs::remove_all(folder);
  return 0;
}

} // namespace
} // namespace trekor

// Stands before the library's own, so that both kinds of sound are overheard in the same way.
extern "C" SDL_AudioDeviceID SDL_OpenAudioDevice(const char* name, int capture, const SDL_AudioSpec* wanted,
                                                 SDL_AudioSpec* got, int changes) {
  using Open = decltype(&SDL_OpenAudioDevice);
  static const auto open = reinterpret_cast<Open>(::dlsym(RTLD_NEXT, "SDL_OpenAudioDevice"));
  SDL_AudioSpec overheard = *wanted;
  trekor::asked = std::exchange(overheard.callback, &trekor::Overhear);
  return open(name, capture, &overheard, got, changes);
}

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 400;
  return trekor::Run(std::max(2, rounds));
}
