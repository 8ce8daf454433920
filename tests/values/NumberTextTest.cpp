// Numbers read from people and the link, written by patterns and in wire form.
#include "values/NumberText.h"

#include "support/Case.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace trekor::tests {

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
    const double number = std::stod(text);
    ASSERT_EQ(Val(text), number) << text;
    ASSERT_EQ(Val("-" + text), -number) << text;
  }
}

TEST(NumberTextTest, ValTakesNumbersOfAnyLength) {
  const std::string zeros(400, '0');
  for (const auto& [text, number] : {std::pair("1" + zeros, Largest),
                                     {"0." + zeros + "1", 0},
                                     {"0." + zeros.substr(1) + "1E400", 1},
                                     {"1" + zeros + "E-400", 1},
                                     {std::string(100000, '9') + "          x", Largest},
                                     {{"7\0 8", 4}, 7}})
    EXPECT_EQ(Val(text), number) << text.substr(0, 20);
}

TEST(NumberTextTest, AnEntryAcceptsCommaOrPoint) {
  for (const auto& [text, number] : {std::pair("12,5", 12.5), {"1,234.5", 1}, {"1,2,3", 1.2}, {"abc", 0}, {"   ", NaN}})
    EXPECT_EQ(TextToDouble(text), number) << text;
  for (const auto& [text, number] :
       {std::pair("", NaNSingle), {"3.14159265", 3.14159265F}, {"-1E99", -std::numeric_limits<float>::max()}})
    EXPECT_EQ(TextToSingle(text), number) << text;
}

// "number by pattern", with the number as the compiler would read it.
TEST(NumberTextTest, PatternsWriteDigits) {
  for (const Case c : {"0 by #####0 -> 0",
                       "0 by ##0.00 -> 0.00",
                       "0 by ###.## -> .",
                       "0 by ## -> ",
                       "12 by #####0 -> 12",
                       "-12.5 by ##0.00 -> -12.50",
                       "5 by 0.## -> 5.",
                       "5.1 by 0.## -> 5.1",
                       "1234.5 by ##000.0 -> 1234.5",
                       "0.5 by ##000.0 -> 000.5",
                       "1234567 by ##0.0 -> 1234567.0",
                       "2 by -00 -> -02",
                       "-0.004 by ##0.00 -> 0.00",
                       "-0.005 by ##0.00 -> -0.01",
                       "999.9996 by ###0.000 -> 1000.000",
                       "0.99996 by 0.0000 -> 1.0000",
                       "-99.95 by 0.0 -> -100.0",
                       "1e-300 by 0.00 -> 0.00",
                       "12.5 by  -> 12.5",
                       "1e20 by 0.0 -> 100000000000000000000.0",
                       "123456789012345.6 by 0.0 -> 123456789012345.6",
                       "2.675 by 0.00 -> 2.68",
                       "1.005 by 0.00 -> 1.01",
                       "0.125 by 0.00 -> 0.13",
                       "-1.005 by 0.00 -> -1.01",
                       "8.345 by 0.00 -> 8.35",
                       "1.0049999999999997 by 0.00 -> 1.00",
                       "inf by ##0.0 -> ",
                       "nan by ##0.0 -> "}) {
    const std::size_t by = c.given.find(" by ");
    EXPECT_EQ(FormatNumber(std::stod(c.given.substr(0, by)), c.given.substr(by + 4)), c.wanted) << c.line;
  }
  EXPECT_EQ(FormatNumber(Largest, "0").size(), 309U);
  EXPECT_EQ(FormatNumber(1.5, "0.00", ','), "1,50");
}

TEST(NumberTextTest, AHalfGoesAwayFromZeroWhateverTheBinaryDigits) {
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
      std::string out;
      pattern.AppendBare(out, std::stod(base + more));
      ASSERT_EQ(out, decimal(thousandths + up)) << base << more;
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
  for (const auto& [number, text] :
       {std::pair(0.1 + 0.2, "0.3"), {1.0 / 3, "0.333333333333333"}, {Infinity, "1.79769313486232E+308"}})
    EXPECT_EQ(NumberToText(number), text);
  for (const auto& [number, text] :
       {std::pair(3.14159265F, "3.141593"), {0.1F, "0.1"}, {9999999.F, "9999999"}, {1e7F, "1E+07"}, {-1e7F, "-1E+07"}})
    EXPECT_EQ(SingleToText(number), text);
}

TEST(NumberTextTest, WholeNumbersRoundToEvenAndMustFit) {
  for (const auto& [number, whole] : {std::pair(2.5, 2), {3.5, 4}, {3.9, 4}, {-32768.4, -32768}})
    EXPECT_EQ(ToInteger16(number), whole);
  EXPECT_FALSE(ToInteger16(32767.5) || ToInteger16(NaN));
  EXPECT_EQ(ToInteger32(2147483647.4), 2147483647);
  EXPECT_FALSE(ToInteger32(1e300) || ToInteger32(std::nan("")));
}

TEST(NumberTextTest, OnlyAWholeTextIsANumber) {
  for (const char* text : {"12", " -3.5 ", "1E3", "12,5", ".5", "5.", "+1"})
    EXPECT_TRUE(IsNumeric(text)) << text;
  for (const char* text : {"", "  ", "12a", "1,234.5", "E5", "-", "1 2", "nan", "inf", "1E"})
    EXPECT_FALSE(IsNumeric(text)) << text;
}

} // namespace trekor::tests
