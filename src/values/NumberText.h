// Numbers as text and back: reading what people, files and the link write, and writing by digit patterns. Nothing here
// asks the locale; its decimal mark is passed in.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace trekor {

// "No value" is a real number, not an IEEE not-a-number: bit pattern 0xC7EFFFFF966AD924. Compared by equality.
constexpr double NaN = -3.402823E+38;
constexpr float NaNSingle = -3.402823E+38F; // bit pattern 0xFF7FFFFD
constexpr std::int16_t NaNInteger = -32768;
constexpr std::int32_t NaNLong = -2147483647 - 1;

// The longest leading number of the text, blanks skipped anywhere, "." as mark, exponents with E; 0 when there is none.
// Never fails; a number too large for a double comes out as the largest one.
double Val(std::string_view text);
// The first "," becomes "." unless the text holds a "." already.
std::string NormalizeDecimal(std::string_view text);
// Blank text gives NaN; otherwise Val of the normalised text.
double TextToDouble(std::string_view text);
float TextToSingle(std::string_view text);
// The nearest single; beyond its range the largest one.
float ToSingle(double number);

// A number by a digit pattern ("0" always written, "#" when needed, "." the mark), rounded half away from zero in
// decimal; no "-" on a text whose digits are all zero. `mark` stands for the pattern's ".". What is rounded are the
// digits of the shortest decimal text that reads back as the same number: 2.675 gives "2.68" and 1.005 gives "1.01", as
// a person expects, though the doubles behind them lie a hair below. Any other character of the pattern only widens it;
// the empty pattern gives NumberToText. An infinity has no digits and gives "".
std::string FormatNumber(double number, std::string_view pattern, char mark = '.');
// Blanks of the pattern's width for NaN; otherwise FormatNumber, right-aligned to that width, longer texts whole.
std::string FixedFormat(double number, std::string_view pattern, char mark = '.');
// FixedFormat with ".", whatever the locale's mark.
std::string FileFormat(double number, std::string_view pattern);

// A parsed pattern, for code that writes the same one a million times. Its calls append to a buffer.
class NumberPattern {
public:
  explicit NumberPattern(std::string_view pattern);
  // As FileFormat (padded) and as FormatNumber with "." (bare), behind what `out` holds.
  void AppendFixed(std::string& out, double number) const;
  void AppendBare(std::string& out, double number) const;
  // As FormatNumber with any mark.
  void Append(std::string& out, double number, char mark) const;
  // Characters of the pattern, which is the width of the padded text.
  int Width() const { return width; }

private:
  void Exactly(std::string& out, double number, char mark) const;
  void LayOut(std::string& out, bool negative, std::string_view digits, char mark) const;
  int minWhole = 0, decimals = 0, minDecimals = 0, width = 0;
  bool hasMark = false, plain = false;
  std::string before, behind; // what stands around the digits
};

// Decimal text with at most 15 (7) significant digits, "." as mark, no leading blank, "0.5" with its zero, and an
// exponent only beyond the working range: below 1E-5 or from 1E+15 (1E+7) on.
std::string NumberToText(double number);
std::string SingleToText(float number);

// Rounded to nearest, ties to even; nothing when the result does not fit, an infinity and an IEEE not-a-number
// included.
std::optional<std::int16_t> ToInteger16(double number);
std::optional<std::int32_t> ToInteger32(double number);
// True when the trimmed text as a whole is a number ("12", "-3.5", "1E3"), comma or point as mark.
bool IsNumeric(std::string_view text);

} // namespace trekor
