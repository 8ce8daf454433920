// The waves that speak, where the build had a synthesizer to speak them.
#include "templates/Share.h"

#include "platform_os/WaveFile.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <set>

namespace trekor::tests {

constexpr double FullScale = 32767, Loudness = 0.2;

class Voices : public testing::Test {
protected:
  void SetUp() override {
    if (!std::filesystem::exists(BuildPlace("/resources/voices.made")))
      GTEST_SKIP() << "built without voices";
  }
  static std::string Digit(const std::string& language, int digit) {
    return Share("Audio/" + language + "/D" + std::to_string(digit) + ".wav");
  }
  // As the device gets them: both channels in turn.
  static std::vector<std::int16_t> Heard(const std::string& path) {
    const auto bytes = LoadWave(path);
    std::vector<std::int16_t> samples(bytes.size() / 2);
    if (!bytes.empty())
      std::memcpy(samples.data(), bytes.data(), samples.size() * 2);
    return samples;
  }
  static double Seconds(std::size_t samples) { return static_cast<double>(samples) / (WaveRate * WaveChannels); }
};

constexpr const char* Languages[] = {"English", "Danish", "Korean", "Chinese", "Russian"};

TEST_F(Voices, SayEveryDigitInEachLanguageShortlyAndDifferently) {
  std::set<std::vector<std::int16_t>> different;
  for (const std::string language : Languages)
    for (int digit = 0; digit < 10; ++digit) {
      const auto samples = Heard(Digit(language, digit));
      EXPECT_TRUE(Seconds(samples.size()) > 0.15 && Seconds(samples.size()) < 1) << language << digit;
      different.insert(samples);
    }
  EXPECT_EQ(different.size(), 50u);
}

TEST_F(Voices, NameEveryItemOfTheVocabularyAndEveryMessageAndNothingElse) {
  std::set<std::string> wanted, found;
  const auto add = [&](const char* database, const char* table, const char* field, const char* prefix) {
    const auto opened = OpenShared(database);
    const auto rows = opened->OpenTable(table);
    for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext())
      wanted.insert(prefix + rows->Get(field).Text() + ".wav");
  };
  add("sample/Observations.mdb", "ObsLinguistic", "ObsCode", "O");
  add("Messages.vdb", "Messages", "ID", "");
  for (int digit = 0; digit < 10; ++digit)
    wanted.insert("D" + std::to_string(digit) + ".wav");
  for (const auto& entry : std::filesystem::directory_iterator(Share("Audio/English")))
    found.insert(entry.path().filename().string());
  EXPECT_EQ(found, wanted);
}

TEST_F(Voices, BeginAtOnceAndAreAsLoudAsEachOther) {
  const std::string kind = BytesOf(Share("Audio/Tones/D1.wav")).substr(8, 32); // the format, of the tones
  for (const std::string language : Languages)
    for (const auto& entry : std::filesystem::directory_iterator(Share("Audio/" + language))) {
      SCOPED_TRACE(entry.path().string());
      EXPECT_EQ(BytesOf(entry.path().string()).substr(8, 32), kind);
      const auto samples = Heard(entry.path().string());
      ASSERT_FALSE(samples.empty());
      const auto begin =
          std::find_if(samples.begin(), samples.end(), [](int s) { return std::abs(s) > 0.01 * FullScale; });
      EXPECT_LT(Seconds(static_cast<std::size_t>(begin - samples.begin())), 0.03);
      double sum = 0, loudest = 0;
      for (const int s : samples) {
        sum += static_cast<double>(s) * s;
        loudest = std::max(loudest, std::abs(s) / FullScale);
      }
      EXPECT_NEAR(std::sqrt(sum / static_cast<double>(samples.size())) / FullScale, Loudness, 0.02);
      EXPECT_LT(loudest, 0.98);
      EXPECT_LT(std::max(std::abs(samples.front()), std::abs(samples.back())), 500) << "clicks";
    }
}

} // namespace trekor::tests
