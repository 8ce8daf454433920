// The link and the keyboard may bring any bytes: the readers of numbers, stations and texts keep to their contracts for
// all of them. Seeded, so that a failure can be repeated.
#include "values/CodePage.h"
#include "values/NumberText.h"
#include "values/Station.h"
#include "values/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace trekor::tests {

class AnyBytesTest : public testing::Test {
protected:
  // Mostly what numbers are made of, so that the readers get past the first character.
  std::string NumberLike(std::size_t longest) {
    static constexpr char letters[] = "0123456789012345678900119955+-.,eE  +-x\t\0\xE6";
    return Made(longest, [this] { return letters[random() % (sizeof letters - 1)]; });
  }
  std::string Bytes(std::size_t longest) {
    static constexpr char leads[] = "\xC3\xE2\xF0\x82\xAC\xA5 aZ";
    return Made(longest, [this] {
      return random() % 2 == 0 ? static_cast<char>(random() % 256) : leads[random() % (sizeof leads - 1)];
    });
  }
  std::mt19937 random{7};

private:
  template <class Next> std::string Made(std::size_t longest, Next next) {
    std::string text(random() % (longest + 1), ' ');
    std::generate(text.begin(), text.end(), next);
    return text;
  }
};

// Whatever was entered, what is then shown reads back as the same text, in all units and with both decimal marks.
TEST_F(AnyBytesTest, AStationShowsWhatReadsBackTheSame) {
  UnitSettings settings;
  Station station(settings);
  for (int i = 0; i < 20000; ++i) {
    const std::string text = NumberLike(12);
    settings.StationUnit = static_cast<int>(random() % 9);
    settings.FileStationUnit = static_cast<int>(random() % 9);
    settings.DecimalChar = random() % 2 == 0 ? '.' : ',';
    station.SetText(text);
    ASSERT_TRUE(station.Test()) << testing::PrintToString(text);
    const std::string shown = station.Text(), filed = station.FileText();
    station.SetText(shown);
    ASSERT_EQ(station.Text(), shown) << testing::PrintToString(text) << " in unit " << settings.StationUnit;
    station.SetFileText(filed);
    ASSERT_EQ(station.FileText(), filed) << testing::PrintToString(text) << " in file unit "
                                         << settings.FileStationUnit;
  }
}

TEST_F(AnyBytesTest, EveryByteBelongsToExactlyOneCharacter) {
  for (int i = 0; i < 20000; ++i) {
    const std::string text = Bytes(12);
    const int n = static_cast<int>(random() % 14), all = CharCount(text);
    ASSERT_EQ(CharCount(CutText(text, n)), std::min(n, all)) << testing::PrintToString(text);
    ASSERT_EQ(CharCount(FixedWidth(text, n)), n) << testing::PrintToString(text);
    ASSERT_EQ(ToWindows1252(text).size(), static_cast<std::size_t>(all)) << testing::PrintToString(text);
    ASSERT_TRUE(SameText(Upper(text), Lower(text))) << testing::PrintToString(text);
  }
}

} // namespace trekor::tests
