// Reading and writing UTF-8 a character at a time. Private to this room.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trekor::utf8 {

constexpr char32_t Invalid = 0xFFFFFFFF;

// The character at `at`, which moves behind it. A byte that begins no whole, shortest-form character is Invalid and
// counts as a character of its own, so that any bytes at all have a length and can be cut.
inline char32_t Next(std::string_view text, std::size_t& at) {
  const auto byte = [&](std::size_t i) -> unsigned { return static_cast<unsigned char>(text[i]); };
  const unsigned first = byte(at++);
  if (first < 0x80)
    return first;
  const std::size_t more = first >= 0xF5 ? 0 : first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
  if (more == 0 || text.size() - at < more)
    return Invalid;
  char32_t c = first & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80)
      return Invalid;
    c = c << 6 | (byte(at + i) & 0x3F);
  }
  const bool tooLong = (more == 2 && c < 0x800) || (more == 3 && c < 0x10000);
  if (tooLong || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
    return Invalid;
  at += more;
  return c;
}

inline void Append(std::string& out, char32_t c) {
  const auto put = [&](char32_t byte) { out += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | c >> 6);
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12);
    put(0x80 | (c >> 6 & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | c >> 18);
    put(0x80 | (c >> 12 & 0x3F));
    put(0x80 | (c >> 6 & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

} // namespace trekor::utf8
