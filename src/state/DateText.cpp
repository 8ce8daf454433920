#include "state/DateText.h"

#include <array>
#include <charconv>

namespace trekor {
namespace {

void Put(std::string& text, std::size_t from, std::size_t width, int number) {
  for (std::size_t i = from + width; i-- > from; number /= 10)
    text[i] = static_cast<char>('0' + number % 10);
}

} // namespace

std::string DateText(const LocalTime& t) {
  if (t.year <= 0 || t.year > 9999)
    return "";
  std::string text = "0000-00-00 00:00:00";
  Put(text, 0, 4, t.year);
  Put(text, 5, 2, t.month);
  Put(text, 8, 2, t.day);
  Put(text, 11, 2, t.hour);
  Put(text, 14, 2, t.minute);
  Put(text, 17, 2, t.second);
  return text;
}

LocalTime ReadDate(std::string_view text) {
  std::array<int, 6> parts{};
  std::size_t count = 0;
  while (!text.empty() && count < parts.size()) {
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, parts.at(count));
    if (error != std::errc())
      break;
    ++count;
    text = text.substr(behind < end ? static_cast<std::size_t>(behind - text.data()) + 1 : text.size());
  }
  const auto [year, month, day, hour, minute, second] = parts;
  const auto between = [](int n, int least, int most) { return n >= least && n <= most; };
  const bool isDate = count >= 3 && between(month, 1, 12) && between(day, 1, 31) && between(hour, 0, 23) &&
                      between(minute, 0, 59) && between(second, 0, 59);
  return isDate ? LocalTime{year, month, day, hour, minute, second} : LocalTime{};
}

} // namespace trekor
