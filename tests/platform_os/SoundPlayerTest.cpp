#include "platform_os/FileDrives.h"
#include "platform_os/SdlSoundPlayer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace trekor {
namespace {

namespace fs = std::filesystem;

// Counts what the thread that plays asks of the disk.
class WatchedDrives : public FileDrives {
public:
  using FileDrives::FileDrives;
  std::string NativePath(const std::string& path) override { return Count(), FileDrives::NativePath(path); }
  bool FileExists(const std::string& path) override { return Count(), FileDrives::FileExists(path); }
  std::atomic<int> byTheCaller{0};

private:
  void Count() { byTheCaller += std::this_thread::get_id() == caller ? 1 : 0; }
  std::thread::id caller = std::this_thread::get_id();
};

// The library's device that writes what would be heard into a file; here into a pipe, whose opening hangs, as a sound
// server may, until somebody listens.
class SoundPlayerTest : public testing::Test {
protected:
  SoundPlayerTest() {
    fs::create_directories(folder);
    ::mkfifo((folder / "heard").c_str(), 0600);
    std::signal(SIGPIPE, SIG_IGN);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1); // the program forbids it to start a bus
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    ::setenv("SDL_DISKAUDIOFILE", (folder / "heard").c_str(), 1);
  }
  ~SoundPlayerTest() override {
    ::close(ear);
    fs::remove_all(folder);
    ::setenv("SDL_AUDIODRIVER", "dummy", 1);
  }
  void Listen() {
    ear = ::open((folder / "heard").c_str(), O_RDONLY | O_CLOEXEC);
    while (player.Devices() == 0)
      std::this_thread::yield();
  }
  // Ten seconds, stereo, in which every sample has this value, or its two bytes are samples.
  void Wave(const std::string& name, std::int16_t value, std::uint32_t frames = 441000, std::uint16_t bytes = 2) {
    const std::uint32_t rate = 44100, length = frames * 2 * bytes;
    std::ofstream file(folder / "drives" / "C" / name, std::ios::binary);
    const auto put = [&](auto number) { file.write(reinterpret_cast<const char*>(&number), sizeof number); };
    file << "RIFF", put(length + 36), file << "WAVEfmt ", put(std::uint32_t{16});
    put(std::uint16_t{1}), put(std::uint16_t{2}), put(rate), put(rate * 2 * bytes);
    put(static_cast<std::uint16_t>(2 * bytes)), put(static_cast<std::uint16_t>(8 * bytes));
    file << "data", put(length);
    const std::vector<std::int16_t> samples(length / 2, value);
    file.write(reinterpret_cast<const char*>(samples.data()), length);
  }
  // Whether a sample of this value is heard within five seconds, which is long before any wave here has ended; what
  // came before it is kept.
  bool Hears(std::int16_t value) {
    before.clear();
    std::int16_t sample = 0;
    for (int n = 0; n < 5 * 44100 * 2 && ::read(ear, &sample, sizeof sample) == sizeof sample; ++n) {
      if (sample == value)
        return true;
      before.insert(sample);
    }
    return false;
  }

  std::set<std::int16_t> before;
  fs::path folder = fs::temp_directory_path() / ("trekor-sound-" + std::to_string(::getpid()));
  WatchedDrives drives{folder / "drives"};
  SdlSoundPlayer player{drives};
  int ear = -1;
};

TEST_F(SoundPlayerTest, NobodyWaitsForADeviceThatHangs) {
  Wave("a.wav", 1000);
  Wave("b.wav", 2000);
  player.Open_SoundDevice();
  player.PictureShown();
  player.Play({"C:\\a.wav"}); // too early, and not made up for when the device is there
  EXPECT_EQ(player.Devices(), 0);
  Listen();
  player.Play({"C:\\b.wav"});
  EXPECT_TRUE(Hears(2000));
  EXPECT_FALSE(before.contains(1000));
  player.Close_SoundDevice();
}

TEST_F(SoundPlayerTest, EachSoundIsReadAfreshAndTheNewestIsHeard) {
  Wave("a.wav", 1000);
  Wave("b.wav", 2000);
  player.Open_SoundDevice();
  Listen(); // no picture is ever shown
  const std::vector<std::string> either{"C:\\A.WAV", "C:\\none\\a.wav", "C:\\b.wav"};
  player.Play(either);
  EXPECT_TRUE(Hears(1000));
  Wave("a.wav", 1001); // of the same size, within the same tick of the disk's clock
  player.Play(either);
  EXPECT_TRUE(Hears(1001)) << "the old one was kept, or played to its end";
  drives.DeleteFile("C:\\a.wav");
  player.Play(either);
  EXPECT_TRUE(Hears(2000));
  player.Play({"C:\\none.wav"});
  Wave("a.wav", 1000);
  player.Play(either);
  player.Play({"C:\\none.wav"}); // cuts off nothing
  EXPECT_TRUE(Hears(1000));
  Wave("a.wav", 3000, 100);
  player.Play(either);
  EXPECT_TRUE(Hears(3000)) << "a short one, from its beginning";
  Wave("a.wav", 0x4040, 441000, 1);
  for (int i = 0; i < 20; ++i)
    player.Play({"C:\\b.wav"}); // more than can be read meanwhile
  player.Play(either);
  EXPECT_TRUE(Hears(-16384)) << "the newest of them, eight bits brought to sixteen";
  EXPECT_EQ(drives.byTheCaller, 0) << "the key would have waited for the disk";
  std::ofstream(folder / "drives" / "C" / "a.wav") << "no wave";
  player.Play(either);
  EXPECT_TRUE(Hears(0));
}

TEST_F(SoundPlayerTest, AFolderOfBrokenWavesHoldsUpNeitherTheCallerNorTheNextSound) {
  const fs::path broken = folder / "drives" / "C" / "broken.wav";
  Wave("a.wav", 1000);
  Wave("b.wav", 2000);
  Wave("huge.wav", 3000);
  fs::resize_file(folder / "drives" / "C" / "huge.wav", 200'000'000);
  player.Open_SoundDevice();
  Listen();
  for (const std::size_t length : {std::size_t{0}, std::size_t{12}, std::size_t{44}, std::size_t{45}}) {
    fs::copy_file(folder / "drives" / "C" / "a.wav", broken, fs::copy_options::overwrite_existing);
    fs::resize_file(broken, length);
    player.Play({"C:\\broken.wav"});
    EXPECT_TRUE(Hears(0)) << length;
    player.Play({"C:\\huge.wav"});
    EXPECT_TRUE(Hears(3000));
    player.Play({"C:\\b.wav"});
    EXPECT_TRUE(Hears(2000)) << length;
  }
}

TEST_F(SoundPlayerTest, AMachineWithoutACardIsSilentOnStandardErrorToo) {
  ::setenv("SDL_AUDIODRIVER", "alsa", 1);
  ::setenv("ALSA_CONFIG_PATH", "/dev/null", 1); // no card whatever the machine has
  ::setenv("TREKOR_TRACE", "1", 1);
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const int standardError = ::dup(2);
  ::dup2(ends[1], 2);
  player.Open_SoundDevice();
  player.PictureShown();
  std::string told;
  for (char c = 0; told.find("no sound device") == std::string::npos && ::read(ends[0], &c, 1) == 1;)
    told += c;
  ::dup2(standardError, 2);
  for (const int end : {ends[0], ends[1], standardError})
    ::close(end);
  ::unsetenv("TREKOR_TRACE");
  ::unsetenv("ALSA_CONFIG_PATH");
  EXPECT_EQ(told, "no sound device");
  player.Play({"C:\\a.wav"});
}

} // namespace
} // namespace trekor
