#include "values/Text.h"

#include "values/Utf8.h"

#include <algorithm>

namespace trekor {
namespace {

// A run of capitals, `step` apart, whose small letters stand `toSmall` behind them.
struct CaseRun {
  char32_t first, last;
  int toSmall;
  char32_t step = 1;

  bool Has(char32_t capital) const { return capital >= first && capital <= last && (capital - first) % step == 0; }
  char32_t Distance() const { return static_cast<char32_t>(toSmall); } // a negative one wraps, and so does the sum
};

// Runs of pairs: each capital stands right before its small letter.
constexpr CaseRun Pairs(char32_t firstCapital, char32_t lastSmall) {
  return {firstCapital, lastSmall - 1, 1, 2};
}

// Latin, Greek, Cyrillic. The most frequent come first.
constexpr CaseRun CaseRuns[] = {
    {'A', 'Z', 0x20},     {0xC0, 0xD6, 0x20},   {0xD8, 0xDE, 0x20},    {0x391, 0x3A1, 0x20},
    {0x3A3, 0x3AB, 0x20}, {0x410, 0x42F, 0x20}, {0x400, 0x40F, 0x50},  {0x178, 0x178, 0xFF - 0x178},
    {0x386, 0x386, 0x26}, {0x388, 0x38A, 0x25}, {0x38C, 0x38C, 0x40},  {0x38E, 0x38F, 0x3F},
    {0x4C0, 0x4C0, 0xF},  Pairs(0x100, 0x12F),  Pairs(0x132, 0x137),   Pairs(0x139, 0x148),
    Pairs(0x14A, 0x177),  Pairs(0x179, 0x17E),  Pairs(0x460, 0x481),   Pairs(0x48A, 0x4BF),
    Pairs(0x4C1, 0x4CE),  Pairs(0x4D0, 0x52F),  Pairs(0x1E00, 0x1E95), Pairs(0x1EA0, 0x1EFF),
};

constexpr char32_t CapitalSigma = 0x3A3, SmallSigmaAtEnd = 0x3C2; // the sigma at a word's end has the same capital

char32_t UpperOf(char32_t c) {
  if (c < 'a')
    return c;
  if (c == SmallSigmaAtEnd)
    return CapitalSigma;
  for (const CaseRun& run : CaseRuns)
    if (run.Has(c - run.Distance()))
      return c - run.Distance();
  return c;
}

char32_t LowerOf(char32_t c) {
  if (c < 'A')
    return c;
  for (const CaseRun& run : CaseRuns)
    if (run.Has(c))
      return c + run.Distance();
  return c;
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
