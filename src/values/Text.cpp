#include "values/Text.h"

#include "values/Utf8.h"

#include <algorithm>

namespace trekor {
namespace {

bool Between(char32_t c, char32_t first, char32_t last) {
  return c >= first && c <= last;
}

// Runs of letters in which capital and small stand side by side, the capital on the even number.
bool InEvenPairs(char32_t c) {
  return (Between(c, 0x100, 0x137) && !Between(c, 0x130, 0x131)) || Between(c, 0x14A, 0x177) ||
         Between(c, 0x460, 0x481) || Between(c, 0x48A, 0x4BF) || Between(c, 0x4D0, 0x52F) ||
         Between(c, 0x1E00, 0x1E95) || Between(c, 0x1EA0, 0x1EFF);
}

// The same with the capital on the odd number.
bool InOddPairs(char32_t c) {
  return Between(c, 0x139, 0x148) || Between(c, 0x179, 0x17E) || Between(c, 0x4C1, 0x4CE);
}

char32_t UpperOf(char32_t c) {
  if (Between(c, 'a', 'z') || (Between(c, 0xE0, 0xFE) && c != 0xF7) || Between(c, 0x430, 0x44F))
    return c - 0x20;
  if (InEvenPairs(c))
    return c & ~char32_t{1};
  if (InOddPairs(c))
    return c % 2 == 0 ? c - 1 : c;
  if (Between(c, 0x3B1, 0x3CB))
    return c == 0x3C2 ? 0x3A3 : c - 0x20; // the sigma at a word's end has the same capital
  if (Between(c, 0x450, 0x45F))
    return c - 0x50;
  switch (c) {
  case 0xFF:
    return 0x178;
  case 0x3AC:
    return 0x386;
  case 0x3AD:
  case 0x3AE:
  case 0x3AF:
    return c - 0x25;
  case 0x3CC:
    return 0x38C;
  case 0x3CD:
  case 0x3CE:
    return c - 0x3F;
  case 0x4CF:
    return 0x4C0;
  default:
    return c;
  }
}

char32_t LowerOf(char32_t c) {
  if (Between(c, 'A', 'Z') || (Between(c, 0xC0, 0xDE) && c != 0xD7) || Between(c, 0x410, 0x42F))
    return c + 0x20;
  if (InEvenPairs(c))
    return c | 1;
  if (InOddPairs(c))
    return c % 2 == 1 ? c + 1 : c;
  if (Between(c, 0x391, 0x3AB) && c != 0x3A2)
    return c + 0x20;
  if (Between(c, 0x400, 0x40F))
    return c + 0x50;
  switch (c) {
  case 0x178:
    return 0xFF;
  case 0x386:
    return 0x3AC;
  case 0x388:
  case 0x389:
  case 0x38A:
    return c + 0x25;
  case 0x38C:
    return 0x3CC;
  case 0x38E:
  case 0x38F:
    return c + 0x3F;
  case 0x4C0:
    return 0x4CF;
  default:
    return c;
  }
}

template <class Turn> std::string Turned(std::string_view text, Turn turn) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t from = at;
    const char32_t c = utf8::Next(text, at);
    if (c == utf8::Invalid)
      out += text[from];
    else
      utf8::Append(out, turn(c));
  }
  return out;
}

// Where the first n characters end; `n` keeps what was not there.
std::size_t EndOf(std::string_view text, int& n) {
  std::size_t at = 0;
  for (; n > 0 && at < text.size(); --n)
    utf8::Next(text, at);
  return at;
}

} // namespace

std::string Trim(std::string_view text) {
  return std::string(TrimView(text));
}

std::string Upper(std::string_view text) {
  return Turned(text, UpperOf);
}

std::string Lower(std::string_view text) {
  return Turned(text, LowerOf);
}

// Compares capitals, as both small sigmas have the same one.
bool SameText(std::string_view a, std::string_view b) {
  std::size_t i = 0, k = 0;
  while (i < a.size() && k < b.size()) {
    const std::size_t i0 = i, k0 = k;
    const char32_t c = utf8::Next(a, i), d = utf8::Next(b, k);
    const bool same =
        c == utf8::Invalid || d == utf8::Invalid ? c == d && a[i0] == b[k0] : c == d || UpperOf(c) == UpperOf(d);
    if (!same)
      return false;
  }
  return i == a.size() && k == b.size();
}

std::string LowerName(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerLetter);
  return lower;
}

int CharCount(std::string_view text) {
  int n = 0;
  for (std::size_t at = 0; at < text.size(); ++n)
    utf8::Next(text, at);
  return n;
}

char32_t FirstCharacter(std::string_view text) {
  std::size_t at = 0;
  const char32_t c = text.empty() ? 0 : utf8::Next(text, at);
  return c == utf8::Invalid ? 0 : c;
}

std::string CutText(std::string_view text, int n) {
  return std::string(CutView(text, n));
}

std::string_view CutView(std::string_view text, int n) {
  return text.substr(0, EndOf(text, n));
}

std::string FixedWidth(std::string_view text, int n) {
  std::string out(text.substr(0, EndOf(text, n)));
  out.append(static_cast<std::size_t>(std::max(n, 0)), ' ');
  return out;
}

std::vector<std::string> SplitText(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (std::size_t at = 0;;) {
    const std::size_t end = text.find(separator, at);
    parts.emplace_back(text.substr(at, end - at));
    if (end == std::string_view::npos)
      return parts;
    at = end + 1;
  }
}

} // namespace trekor
