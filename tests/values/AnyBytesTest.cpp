// What comes from the link and the keyboard may be anything: the readers of numbers, stations and texts keep their
// promises for bytes that nobody would type. Seeded, so that a failure comes back.
#include "values/NumberText.h"
#include "values/Station.h"
#include "values/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <random>

namespace trekor {
namespace {

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

std::size_t DigitsFrom(const std::string& text, std::size_t at) {
  const std::size_t end = text.find_first_not_of("0123456789", at);
  return std::min(end, text.size()) - at;
}

// The same reading in another way: blanks out, the longest number by hand, the C library for its value.
double PlainReading(std::string text) {
  std::erase(text, ' ');
  std::size_t end = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const std::size_t whole = DigitsFrom(text, end);
  end += whole;
  std::size_t behind = 0;
  if (end < text.size() && text[end] == '.') {
    behind = DigitsFrom(text, end + 1);
    end += behind + 1;
  }
  if (whole + behind == 0)
    return 0;
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    const bool sign = end + 1 < text.size() && (text[end + 1] == '+' || text[end + 1] == '-');
    const std::size_t power = DigitsFrom(text, std::min(end + (sign ? 2 : 1), text.size()));
    end += power > 0 ? power + (sign ? 2 : 1) : 0;
  }
  constexpr double largest = std::numeric_limits<double>::max();
  return std::clamp(std::strtod(text.substr(0, end).c_str(), nullptr), -largest, largest);
}

TEST_F(AnyBytesTest, ValReadsWhatAPersonWouldRead) {
  for (int i = 0; i < 30000; ++i) {
    const std::string text = NumberLike(14);
    const double expected = PlainReading(text), number = Val(text);
    if (std::abs(expected) < std::numeric_limits<double>::min()) // the tiniest may come out as 0
      ASSERT_LE(std::abs(number), std::numeric_limits<double>::min()) << testing::PrintToString(text);
    else
      ASSERT_EQ(number, expected) << testing::PrintToString(text);
    ASSERT_EQ(TextToDouble(text) == NaN, Trim(text).empty()) << testing::PrintToString(text);
  }
}

TEST_F(AnyBytesTest, StationDigitsTakesOneInnerMarkAndNothingElse) {
  for (int i = 0; i < 20000; ++i) {
    const std::string text = NumberLike(10), digits = StationDigits(text), trimmed = Trim(text);
    if (digits == text)
      continue;
    ASSERT_EQ(digits.size() + 1, trimmed.size()) << testing::PrintToString(text);
    const auto at =
        static_cast<std::size_t>(std::mismatch(digits.begin(), digits.end(), trimmed.begin()).first - digits.begin());
    ASSERT_TRUE(at > 0 && (trimmed[at] == '+' || trimmed[at] == '-')) << testing::PrintToString(text);
    ASSERT_EQ(digits, std::string(trimmed).erase(at, 1));
  }
}

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

} // namespace
} // namespace trekor
