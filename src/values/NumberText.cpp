#include "values/NumberText.h"

#include "values/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace trekor {
namespace {

constexpr double LargestDouble = std::numeric_limits<double>::max();

// Powers of ten in static storage: as a local array they would be built at each call.
constexpr std::array<double, 16> Tens = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Whether a number that fits no double is too large (or else too small): the power of ten of its first digit that is
// not 0.
bool IsTooLarge(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("eE"), number.size());
  const std::size_t first = number.find_first_of("123456789");
  const std::size_t point = std::min(number.find('.'), e);
  long long power = 0;
  if (e < number.size()) {
    const char* from = number.data() + e + 1;
    from += *from == '+' ? 1 : 0;
    if (std::from_chars(from, number.data() + number.size(), power).ec == std::errc::result_out_of_range)
      return number[e + 1] != '-';
  }
  return power + static_cast<long long>(point) - static_cast<long long>(first) > 0;
}

struct Reading {
  double number = 0;
  std::size_t length = 0; // characters that belong to it; 0 when there is none
};

// The plain numbers of the link and the files, "-12.345": at most 15 digits and no exponent. Their digits are a whole
// number that a double holds exactly, and so is the power of ten, so that one division rounds correctly. False for all
// others.
bool ReadPlain(std::string_view text, double& number) {
  if (text.size() > Tens.size() + 1)
    return false;
  const bool negative = !text.empty() && text[0] == '-';
  const char *at = text.data() + (negative ? 1 : 0), *const end = text.data() + text.size();
  const char* const from = at;
  std::int64_t digits = 0;
  for (; at < end && IsDigit(*at); ++at)
    digits = digits * 10 + (*at - '0');
  const auto whole = static_cast<std::size_t>(at - from);
  std::size_t behindMark = 0;
  if (at < end && *at == '.')
    for (++at; at < end && IsDigit(*at); ++at, ++behindMark)
      digits = digits * 10 + (*at - '0');
  const std::size_t count = whole + behindMark;
  if (at < end || count == 0 || count >= Tens.size())
    return false;
  const double size = static_cast<double>(digits) / Tens[behindMark];
  number = negative ? -size : size;
  return true;
}

// A leading number in text without blanks.
Reading ReadNumber(std::string_view text) {
  const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  const char* const from = text.data() + sign;
  const char* const end = text.data() + text.size();
  if (from == end || (*from != '.' && !IsDigit(*from))) // the library would read "inf" and "nan", too
    return {};
  Reading r;
  const auto [ptr, ec] = std::from_chars(from, end, r.number);
  if (ec == std::errc::invalid_argument)
    return {};
  if (ec == std::errc::result_out_of_range)
    r.number = IsTooLarge({from, static_cast<std::size_t>(ptr - from)}) ? LargestDouble : 0;
  r.length = static_cast<std::size_t>(ptr - text.data());
  if (text[0] == '-')
    r.number = -r.number;
  return r;
}

// Decimal text from digits d.ddd and a power of ten, as few as carry the number.
std::string LayOutPlain(bool negative, std::string_view digits, int power, int firstWithExponent) {
  std::string out = negative ? "-" : "";
  if (power < -5 || power >= firstWithExponent) {
    out += digits[0];
    if (digits.size() > 1)
      out.append(1, '.').append(digits.substr(1));
    out += power < 0 ? "E-" : "E+";
    const std::string size = std::to_string(std::abs(power));
    return out.append(size.size() < 2 ? 1 : 0, '0').append(size);
  }
  if (power < 0)
    return out.append("0.").append(static_cast<std::size_t>(-power - 1), '0').append(digits);
  const auto whole = static_cast<std::size_t>(power) + 1;
  out.append(digits.substr(0, whole)).append(whole - std::min(whole, digits.size()), '0');
  if (digits.size() > whole)
    out.append(1, '.').append(digits.substr(whole));
  return out;
}

// Number as "d.dddE+pp" cut into its digits, trailing zeros off, and the power.
struct Scientific {
  std::array<char, 24> text{};
  std::size_t count = 0;
  int power = 0;
  std::string_view Digits() const { return {text.data(), count}; }
};

Scientific TakeApart(const char* from, const char* end) {
  Scientific s;
  const char* const e = std::find(from, end, 'e');
  std::copy_if(from, e, s.text.begin(), IsDigit);
  s.count = static_cast<std::size_t>(std::count_if(from, e, IsDigit));
  while (s.count > 1 && s.text[s.count - 1] == '0')
    --s.count;
  std::from_chars(e[1] == '+' ? e + 2 : e + 1, end, s.power);
  return s;
}

template <class Float> std::string PlainText(Float number, int digits) {
  if (!(number < std::numeric_limits<Float>::max()))
    number = std::numeric_limits<Float>::max();
  if (number == 0)
    return "0"; // minus zero, too
  std::array<char, 32> buffer{};
  const Float size = std::min(std::abs(number), std::numeric_limits<Float>::max());
  char* const end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), size, std::chars_format::scientific, digits - 1).ptr;
  const Scientific s = TakeApart(buffer.data(), end);
  return LayOutPlain(number < 0, s.Digits(), s.power, digits);
}

template <class Whole> std::optional<Whole> ToWhole(double number) {
  const double rounded = std::trunc(number) == number ? number : std::nearbyint(number);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max()))
    return std::nullopt;
  return static_cast<Whole>(rounded);
}

} // namespace

double Val(std::string_view text) {
  if (double plain = 0; ReadPlain(text, plain))
    return plain;
  if (text.find(' ') == std::string_view::npos)
    return ReadNumber(text).number;
  std::string number;
  for (const char c : text) {
    if (c != ' ' && !IsDigit(c) && std::string_view("+-.eE").find(c) == std::string_view::npos)
      break;
    if (c != ' ')
      number += c;
  }
  return ReadNumber(number).number;
}

std::string NormalizeDecimal(std::string_view text) {
  std::string out(text);
  const std::size_t comma = out.find('.') == std::string::npos ? out.find(',') : std::string::npos;
  if (comma != std::string::npos)
    out[comma] = '.';
  return out;
}

double TextToDouble(std::string_view text) {
  return TrimView(text).empty() ? NaN : Val(NormalizeDecimal(text));
}

float ToSingle(double number) {
  constexpr double largest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(number, -largest, largest));
}

float TextToSingle(std::string_view text) {
  return TrimView(text).empty() ? NaNSingle : ToSingle(Val(NormalizeDecimal(text)));
}

NumberPattern::NumberPattern(std::string_view pattern) : width(CharCount(pattern)), plain(pattern.empty()) {
  const std::size_t first = std::min(pattern.find_first_of("0#."), pattern.size());
  before = pattern.substr(0, first);
  pattern.remove_prefix(first);
  const std::size_t end = pattern.find_last_of("0#.") + 1; // 0 when there are none
  behind = pattern.substr(end);
  pattern = pattern.substr(0, end);
  const std::size_t mark = std::min(pattern.find('.'), pattern.size());
  hasMark = mark < pattern.size();
  for (const char c : pattern.substr(0, mark))
    minWhole += c == '0' || (c == '#' && minWhole > 0) ? 1 : 0;
  for (const char c : pattern.substr(mark)) {
    decimals += c == '0' || c == '#' ? 1 : 0;
    minDecimals = c == '0' ? decimals : minDecimals;
  }
}

void NumberPattern::LayOut(std::string& out, bool negative, std::string_view digits, char mark) const {
  const std::size_t places = static_cast<std::size_t>(decimals), least = static_cast<std::size_t>(minWhole);
  const std::size_t whole = digits.size() > places ? digits.size() - places : 0;
  if (negative && !digits.empty())
    out += '-';
  out += before;
  if (whole < least)
    out.append(least - whole, '0');
  out.append(digits.substr(0, whole));
  if (hasMark) {
    out += mark;
    out.append(places - (digits.size() - whole), '0').append(digits.substr(whole));
    for (int more = decimals; more > minDecimals && out.back() == '0'; --more)
      out.pop_back();
  }
  out += behind;
}

// Rounds the digits of the shortest text. `digits` become those of the number times 10 to the decimals, a whole number.
void NumberPattern::Exactly(std::string& out, double number, char mark) const {
  std::array<char, 32> buffer{};
  char* const end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(number), std::chars_format::scientific).ptr;
  const Scientific s = TakeApart(buffer.data(), end);
  const int keep = s.power + 1 + decimals;
  std::string digits;
  if (number != 0 && keep >= 0) {
    const auto kept = static_cast<std::size_t>(keep);
    digits = s.Digits().substr(0, kept);
    digits.append(kept - digits.size(), '0');
    if (kept < s.count && s.text[kept] >= '5') {
      std::size_t i = kept;
      while (i > 0 && digits[i - 1] == '9')
        digits[--i] = '0';
      if (i > 0)
        ++digits[i - 1];
      else
        digits.insert(0, 1, '1');
    }
  }
  LayOut(out, number < 0, digits, mark);
}

void NumberPattern::Append(std::string& out, double number, char mark) const {
  if (!std::isfinite(number))
    return;
  if (plain) {
    std::string text = NumberToText(number);
    std::replace(text.begin(), text.end(), '.', mark);
    out += text;
    return;
  }
  // Nearly every number is settled by one multiplication: only when the digit behind the last one is so near to a half
  // that the error of the product (less than 2^-52 of it) could decide, the digits must be asked.
  const double scaled = decimals < 10 ? std::abs(number) * Tens[static_cast<std::size_t>(decimals)] : LargestDouble;
  const double whole = std::floor(scaled), rest = scaled - whole;
  if (!(scaled < 1e14) || std::abs(rest - 0.5) < scaled * 4.5e-16 + 1e-15) {
    Exactly(out, number, mark);
    return;
  }
  std::array<char, 24> buffer{};
  const auto rounded = static_cast<std::uint64_t>(whole) + (rest > 0.5 ? 1U : 0U);
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded).ptr;
  const std::size_t size = rounded == 0 ? 0 : static_cast<std::size_t>(end - buffer.data());
  LayOut(out, number < 0, {buffer.data(), size}, mark);
}

void NumberPattern::AppendBare(std::string& out, double number) const {
  Append(out, number, '.');
}

void NumberPattern::AppendFixed(std::string& out, double number) const {
  const std::size_t from = out.size(), least = static_cast<std::size_t>(width);
  if (number != NaN)
    Append(out, number, '.');
  const std::size_t written = out.size() - from;
  if (written < least)
    out.insert(from, least - written, ' ');
}

std::string FormatNumber(double number, std::string_view pattern, char mark) {
  std::string out;
  NumberPattern(pattern).Append(out, number, mark);
  return out;
}

std::string FixedFormat(double number, std::string_view pattern, char mark) {
  const NumberPattern parsed(pattern);
  std::string out;
  if (number != NaN)
    parsed.Append(out, number, mark);
  const auto least = static_cast<std::size_t>(parsed.Width());
  return out.insert(0, least - std::min(least, out.size()), ' ');
}

std::string FileFormat(double number, std::string_view pattern) {
  return FixedFormat(number, pattern, '.');
}

std::string NumberToText(double number) {
  return PlainText(number, 15);
}

std::string SingleToText(float number) {
  return PlainText(number, 7);
}

std::optional<std::int16_t> ToInteger16(double number) {
  return ToWhole<std::int16_t>(number);
}

std::optional<std::int32_t> ToInteger32(double number) {
  return ToWhole<std::int32_t>(number);
}

bool IsNumeric(std::string_view text) {
  const std::string number = NormalizeDecimal(TrimView(text));
  return !number.empty() && ReadNumber(number).length == number.size();
}

} // namespace trekor
