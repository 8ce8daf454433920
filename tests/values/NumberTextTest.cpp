// Numbers read from people and the link, written by patterns and in wire form.
#include "values/NumberText.h"

#include "support/Case.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

namespace trekor {
namespace {

using tests::Case;

constexpr double Largest = std::numeric_limits<double>::max();
constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(NumberTextTest, TheSentinelsHaveTheirBitPatterns) {
  EXPECT_EQ(std::bit_cast<std::uint64_t>(NaN), 0xC7EFFFFF966AD924U);
  EXPECT_EQ(std::bit_cast<std::uint32_t>(NaNSingle), 0xFF7FFFFDU);
  EXPECT_EQ(static_cast<float>(NaN), NaNSingle);
}

TEST(NumberTextTest, ValReadsTheLongestLeadingNumber) {
  for (const Case c :
       {"12.5 -> 12.5", "  -3.25km -> -3.25", "+7 -> 7",     ".5 -> 0.5",           "5. -> 5",
        "-.5e1x -> -5", "1 2 . 5 -> 12.5",    "1E3 -> 1000", "1e-2 -> 0.01",        "1E -> 1",
        "1E+ -> 1",     "2E5.5 -> 200000",    "- 4 -> -4",   "1 E 2 -> 100",        "1,234.5 -> 1",
        "12+34 -> 12",  "1.2.3 -> 1.2",       "1E-400 -> 0", "0E999999999999 -> 0", "1E-99999999999999999999 -> 0"})
    EXPECT_EQ(NumberToText(Val(c.given)), c.wanted) << c.line;
  for (const char* text : {"1E400", "1E99999999999999999999"})
    EXPECT_EQ(Val(text), Largest) << text;
  EXPECT_EQ(Val("-1E400"), -Largest);
  for (const char* text :
       {"", " ", "abc", "-", "+", ".", "-.", "E5", "--5", "+-5", "inf", "-inf", "nan", "NaN", "0x1F", "$5"})
    EXPECT_EQ(Val(text), 0) << text;
}

TEST(NumberTextTest, ValReadsEveryNumberAsTheLibraryDoes) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 20000; ++i) {
    std::string text = std::to_string(random() % 10'000'000'000'000'000 >> random() % 50);
    text.insert(random() % (text.size() + 1), ".");
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    ASSERT_EQ(Val(text), number) << text;
    ASSERT_EQ(Val("-" + text), -number) << text;
  }
}

TEST(NumberTextTest, ValTakesNumbersOfAnyLength) {
  EXPECT_EQ(Val("1" + std::string(400, '0')), Largest);
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Val("0." + std::string(399, '0') + "1E400"), 1);
  EXPECT_EQ(Val("1" + std::string(400, '0') + "E-400"), 1);
  EXPECT_EQ(Val(std::string(100000, '9') + std::string(10, ' ') + "x"), Largest);
  EXPECT_EQ(Val(std::string("7\0 8", 4)), 7);
}

TEST(NumberTextTest, AnEntryAcceptsCommaOrPoint) {
  EXPECT_EQ(TextToDouble("12,5"), 12.5);
  EXPECT_EQ(TextToDouble("1,234.5"), 1);
  EXPECT_EQ(TextToDouble("1,2,3"), 1.2);
  EXPECT_EQ(TextToDouble("abc"), 0);
  EXPECT_EQ(TextToDouble("   "), NaN);
  EXPECT_EQ(TextToSingle(""), NaNSingle);
  EXPECT_EQ(TextToSingle("3.14159265"), 3.14159265F);
  EXPECT_EQ(TextToSingle("-1E99"), -std::numeric_limits<float>::max());
}

// "number by pattern", with the number as the compiler would read it.
TEST(NumberTextTest, PatternsWriteDigits) {
  for (const Case c : {"0 by #####0 -> 0", "0 by ##0.00 -> 0.00", "0 by ###.## -> .", "0 by ## -> ",
                       "12 by #####0 -> 12", "-12.5 by ##0.00 -> -12.50", "5 by 0.## -> 5.", "5.1 by 0.## -> 5.1",
                       "1234.5 by ##000.0 -> 1234.5", "0.5 by ##000.0 -> 000.5", "1234567 by ##0.0 -> 1234567.0",
                       "2 by -00 -> -02", "-0.004 by ##0.00 -> 0.00", "-0.005 by ##0.00 -> -0.01",

                       "999.9996 by ###0.000 -> 1000.000", "0.99996 by 0.0000 -> 1.0000", "-99.95 by 0.0 -> -100.0",
                       "1e-300 by 0.00 -> 0.00",

                       "12.5 by  -> 12.5"}) {
    const std::size_t by = c.given.find(" by ");
    EXPECT_EQ(FormatNumber(std::stod(c.given.substr(0, by)), c.given.substr(by + 4)), c.wanted) << c.line;
  }
  EXPECT_EQ(FormatNumber(1e20, "0.0"), "100000000000000000000.0");
  EXPECT_EQ(FormatNumber(123456789012345.6, "0.0"), "123456789012345.6");
  EXPECT_EQ(FormatNumber(Infinity, "##0.0") + FormatNumber(std::nan(""), "##0.0"), "");
  EXPECT_EQ(FormatNumber(Largest, "0").size(), 309U);
  EXPECT_EQ(FormatNumber(1.5, "0.00", ','), "1,50");
}

TEST(NumberTextTest, AHalfGoesAwayFromZeroWhateverTheBinaryDigits) {
  for (const auto& [number, text] : {std::pair{2.675, "2.68"},
                                     {1.005, "1.01"},
                                     {0.125, "0.13"},
                                     {-1.005, "-1.01"},
                                     {8.345, "8.35"},
                                     {1.0049999999999997, "1.00"}})
    EXPECT_EQ(FormatNumber(number, "0.00"), text);
  // Numbers one digit longer than the pattern, about the half: 5 goes up, 4 and 49 stay, 51 goes up.
  std::mt19937 random(1);
  std::uniform_int_distribution<long> any(0, 99'999'999);
  for (int i = 0; i < 20000; ++i) {
    const long thousandths = any(random);
    const auto decimal = [](long n) {
      const std::string tail = std::to_string(n % 1000);
      return std::to_string(n / 1000) + "." + std::string(3 - tail.size(), '0') + tail;
    };
    const std::string base = decimal(thousandths);
    const NumberPattern pattern("###0.000");
    for (const auto& [more, up] : {std::pair{"5", 1}, {"4", 0}, {"49", 0}, {"51", 1}, {"499999", 0}}) {
      double number = 0;
      const std::string text = base + more;
      std::from_chars(text.data(), text.data() + text.size(), number);
      std::string out;
      pattern.AppendBare(out, number);
      ASSERT_EQ(out, decimal(thousandths + up)) << text;
    }
  }
}

TEST(NumberTextTest, FixedTextIsAlignedToThePattern) {
  EXPECT_EQ(FixedFormat(1.5, "###0.000"), "   1.500");
  EXPECT_EQ(FixedFormat(NaN, "###0.000"), "        ");
  EXPECT_EQ(FixedFormat(123456.5, "0.0"), "123456.5");
  EXPECT_EQ(FixedFormat(1.5, "##0.0", ','), "  1,5");
  EXPECT_EQ(FileFormat(1.5, "##0.0"), "  1.5");
  EXPECT_EQ(FixedFormat(-Infinity, "##0"), "   ");
  std::string out = "12,";
  NumberPattern("##0.0").AppendFixed(out, -2.25);
  NumberPattern("##0.0").AppendFixed(out, NaN);
  EXPECT_EQ(out, "12, -2.3     ");
}

TEST(NumberTextTest, DecimalTextHasNoExponentInTheWorkingRange) {
  for (const Case c : {"0 -> 0", "-0.0 -> 0", "0.5 -> 0.5", "-0.5 -> -0.5", "12.35 -> 12.35",
                       "999999999999999 -> 999999999999999", "999999999999999.9 -> 1E+15", "1.5e15 -> 1.5E+15",
                       "0.00001 -> 0.00001", "0.0000123456789012345678 -> 0.0000123456789012346", "0.000009 -> 9E-06",
                       "1e300 -> 1E+300", "-3.402823E+38 -> -3.402823E+38"})
    EXPECT_EQ(NumberToText(std::stod(c.given)), c.wanted) << c.line;
  EXPECT_EQ(NumberToText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberToText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumberToText(Infinity), "1.79769313486232E+308");
  EXPECT_EQ(SingleToText(3.14159265F), "3.141593");
  EXPECT_EQ(SingleToText(0.1F), "0.1");
  EXPECT_EQ(SingleToText(9999999.F), "9999999");
  EXPECT_EQ(SingleToText(1e7F), "1E+07");
  EXPECT_EQ(SingleToText(-1e7F), "-1E+07");
}

TEST(NumberTextTest, WholeNumbersRoundToEvenAndMustFit) {
  EXPECT_EQ(ToInteger16(2.5), 2);
  EXPECT_EQ(ToInteger16(3.5), 4);
  EXPECT_EQ(ToInteger16(3.9), 4);
  EXPECT_EQ(ToInteger16(-32768.4), -32768);
  EXPECT_EQ(ToInteger16(32767.5), std::nullopt);
  EXPECT_EQ(ToInteger16(NaN), std::nullopt);
  EXPECT_EQ(ToInteger32(2147483647.4), 2147483647);
  EXPECT_EQ(ToInteger32(1e300), std::nullopt);
  EXPECT_EQ(ToInteger32(std::nan("")), std::nullopt);
}

TEST(NumberTextTest, OnlyAWholeTextIsANumber) {
  for (const char* text : {"12", " -3.5 ", "1E3", "12,5", ".5", "5.", "+1"})
    EXPECT_TRUE(IsNumeric(text)) << text;
  for (const char* text : {"", "  ", "12a", "1,234.5", "E5", "-", "1 2", "nan", "inf", "1E"})
    EXPECT_FALSE(IsNumeric(text)) << text;
}

} // namespace
} // namespace trekor
