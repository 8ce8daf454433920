#include "values/CodePage.h"

#include "values/Utf8.h"

#include <algorithm>
#include <array>

namespace trekor {
namespace {

// The codes from 0x80 on in which it differs from Latin-1. 0x81, 0x8D, 0x8F, 0x90 and 0x9D are undefined and stand for
// themselves.
constexpr std::array<char16_t, 32> High = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsPlain(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

char ByteOf(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
    return static_cast<char>(static_cast<unsigned char>(c));
  const auto* const place = std::find(High.begin(), High.end(), c);
  return place == High.end() ? '?' : static_cast<char>(static_cast<unsigned char>(0x80 + (place - High.begin())));
}

} // namespace

void AppendWindows1252(std::string& out, std::string_view utf8) {
  if (IsPlain(utf8)) {
    out += utf8;
    return;
  }
  for (std::size_t at = 0; at < utf8.size();)
    out += ByteOf(utf8::Next(utf8, at));
}

std::string ToWindows1252(std::string_view utf8) {
  std::string out;
  AppendWindows1252(out, utf8);
  return out;
}

std::string FromWindows1252(std::string_view bytes) {
  if (IsPlain(bytes))
    return std::string(bytes);
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 4);
  for (const char byte : bytes) {
    const auto b = static_cast<unsigned char>(byte);
    utf8::Append(out, b >= 0x80 && b < 0xA0 ? High[b - 0x80U] : b);
  }
  return out;
}

} // namespace trekor
