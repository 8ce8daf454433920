#include "platform_os/WaveFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace trekor {
namespace {

namespace fs = std::filesystem;

std::string Number(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i)
    text += static_cast<char>((value >> (8 * i)) & 0xFF);
  return text;
}

// What a head says, and how much really follows it.
struct Wave {
  std::uint32_t kind = 1, channels = 1, rate = 22050, bits = 16;
  std::uint32_t told = 44100, length = 44100;
  std::string Bytes() const {
    const std::uint32_t frame = channels * bits / 8;
    return "RIFF" + Number(told + 36, 4) + "WAVEfmt " + Number(16, 4) + Number(kind, 2) + Number(channels, 2) +
           Number(rate, 4) + Number(rate * frame, 4) + Number(frame, 2) + Number(bits, 2) + "data" + Number(told, 4) +
           std::string(length, '\x20');
  }
};

class WaveFile : public testing::Test {
protected:
  ~WaveFile() override { fs::remove(file); }
  // Of the device's samples; one that comes of a whole file's worth lasts a second.
  double Seconds(const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
    return Seconds();
  }
  double Seconds() const { return static_cast<double>(LoadWave(file.string()).size()) / (WaveRate * WaveChannels * 2); }
  fs::path file = fs::temp_directory_path() / ("trekor-wave-" + std::to_string(::getpid()) + ".wav");
};

TEST_F(WaveFile, OfAnyKindComesAsTheDeviceTakesIt) {
  for (const Wave& each : {Wave{}, Wave{.bits = 8, .told = 22050, .length = 22050},
                           Wave{.channels = 2, .rate = 8000, .told = 32000, .length = 32000},
                           Wave{.rate = 96000, .bits = 24, .told = 288000, .length = 288000},
                           Wave{.kind = 7, .bits = 8, .told = 22050, .length = 22050}})
    EXPECT_NEAR(Seconds(each.Bytes()), 1, 0.01) << each.kind << " " << each.channels << " " << each.rate;
}

TEST_F(WaveFile, ThatIsBrokenIsSilence) {
  const struct {
    const char* what;
    std::string bytes;
  } cases[] = {
      {"empty", ""},
      {"no wave", "These are the words that someone has saved under the wrong name."},
      {"half a head", Wave{}.Bytes().substr(0, 30)},
      {"a head alone", Wave{.length = 0}.Bytes()},
      {"a head that tells of nothing", Wave{.told = 0, .length = 0}.Bytes()},
      {"no channel", Wave{.channels = 0}.Bytes()},
      {"60,000 channels", Wave{.channels = 60000}.Bytes()},
      {"no rate", Wave{.rate = 0}.Bytes()},
      {"one sample a second, which would grow 44,100 times", Wave{.rate = 1}.Bytes()},
      {"a rate above any", Wave{.rate = 4000000000U}.Bytes()},
      {"no bits", Wave{.bits = 0}.Bytes()},
      {"an unknown kind", Wave{.kind = 999}.Bytes()},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Seconds(c.bytes), 0) << c.what;
  fs::remove(file);
  EXPECT_EQ(Seconds(), 0) << "none there";
  ::mkfifo(file.c_str(), 0600);
  EXPECT_EQ(Seconds(), 0) << "a pipe that nobody writes to";
}

TEST_F(WaveFile, WhoseLengthIsWrongPlaysWhatIsThere) {
  EXPECT_NEAR(Seconds(Wave{.told = 88200}.Bytes()), 1, 0.01);
  EXPECT_NEAR(Seconds(Wave{.told = 0xFFFFFFFF}.Bytes()), 1, 0.01);
  EXPECT_NEAR(Seconds(Wave{.told = 22050}.Bytes()), 0.5, 0.01);
  EXPECT_NEAR(Seconds(Wave{.told = 44101, .length = 44101}.Bytes()), 1, 0.01) << "half a sample more";
}

TEST_F(WaveFile, OfTwoHundredMegabytesPlaysItsFirstSeconds) {
  std::ofstream(file, std::ios::binary) << Wave{.told = 200'000'000, .length = 44100}.Bytes();
  fs::resize_file(file, 200'000'044);
  EXPECT_NEAR(Seconds(), 20, 0.01);
}

} // namespace
} // namespace trekor
