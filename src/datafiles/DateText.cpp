#include "datafiles/DateText.h"

#include <charconv>

namespace trekor {
namespace {

void Put(std::string& text, std::size_t from, std::size_t width, int number) {
  for (std::size_t i = from + width; i-- > from; number /= 10)
    text[i] = static_cast<char>('0' + number % 10);
}

int Part(std::string_view text, std::size_t from, std::size_t width) {
  int number = 0;
  if (from + width <= text.size())
    std::from_chars(text.data() + from, text.data() + from + width, number);
  return number;
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
  const LocalTime t{Part(text, 0, 4),  Part(text, 5, 2),  Part(text, 8, 2),
                    Part(text, 11, 2), Part(text, 14, 2), Part(text, 17, 2)};
  return t.month > 0 && t.day > 0 ? t : LocalTime{};
}

} // namespace trekor
