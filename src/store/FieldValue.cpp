#include "store/FieldValue.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

namespace trekor {

namespace {

std::string_view SkipBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// The number that a text begins with; `rest` is what follows it. "inf" and "nan" are words here and no numbers.
bool LeadingNumber(std::string_view text, double& number, std::string_view& rest) {
  text = SkipBlanks(text);
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+'))
    text.remove_prefix(1);
  const bool digit = !text.empty() && (text[0] == '.' || (text[0] >= '0' && text[0] <= '9'));
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (!digit || read.ec == std::errc::invalid_argument)
    return false;
  if (read.ec == std::errc::result_out_of_range)
    return false;
  number = minus ? -number : number;
  rest = text.substr(static_cast<std::size_t>(read.ptr - text.data()));
  return true;
}

double NumberOfText(std::string_view text) {
  double number = 0;
  std::string_view rest;
  return LeadingNumber(text, number, rest) ? number : 0;
}

// To nearest, ties to even, which is the default rounding of the machine; beyond 64 bits the nearest limit.
std::int64_t Rounded(double number) {
  constexpr double limit = 9223372036854775808.0;
  if (std::isnan(number))
    return 0;
  if (number >= limit)
    return std::numeric_limits<std::int64_t>::max();
  if (number < -limit)
    return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(std::nearbyint(number));
}

std::string IntegerText(std::int64_t number) {
  char text[24];
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  return {text, end};
}

// Without a format to_chars would rather write 1e+05 than 100000; in the range of daily use the plain digits are
// wanted.
std::string RealText(double number) {
  if (number == 0)
    return "0";
  char text[64];
  const double size = std::abs(number);
  const auto format = size >= 1e-5 && size < 1e15 ? std::chars_format::fixed : std::chars_format::general;
  const auto end = std::to_chars(text, text + sizeof text, number, format).ptr;
  return {text, end};
}

} // namespace

std::int64_t FieldValue::Integer() const {
  if (const auto* number = std::get_if<std::int64_t>(&held))
    return *number;
  return Rounded(Number());
}

double FieldValue::Number() const {
  if (const auto* whole = std::get_if<std::int64_t>(&held))
    return static_cast<double>(*whole);
  if (const auto* real = std::get_if<double>(&held))
    return *real;
  if (const auto* text = std::get_if<std::string>(&held))
    return NumberOfText(*text);
  return 0;
}

std::string FieldValue::Text() const {
  if (const auto* text = std::get_if<std::string>(&held))
    return *text;
  if (const auto* whole = std::get_if<std::int64_t>(&held))
    return IntegerText(*whole);
  if (const auto* real = std::get_if<double>(&held))
    return RealText(*real);
  return {};
}

std::string_view FieldValue::TextView() const {
  const auto* text = std::get_if<std::string>(&held);
  return text ? std::string_view(*text) : std::string_view();
}

const Bytes& FieldValue::Blob() const {
  static const Bytes none;
  const auto* bytes = std::get_if<Bytes>(&held);
  return bytes ? *bytes : none;
}

void FieldValue::Append(const unsigned char* bytes, std::size_t count) {
  if (!IsBytes())
    held = Bytes();
  auto& all = *std::get_if<Bytes>(&held);
  all.insert(all.end(), bytes, bytes + count);
}

bool NumberIn(const FieldValue& value, double& number) {
  if (const auto* text = std::get_if<std::string>(&value.held)) {
    std::string_view rest;
    return LeadingNumber(*text, number, rest) && SkipBlanks(rest).empty();
  }
  number = value.Number();
  return value.IsInteger() || value.IsReal();
}

} // namespace trekor
