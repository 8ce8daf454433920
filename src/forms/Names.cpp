#include "forms/Names.h"

#include <algorithm>

namespace trekor {

namespace {

char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The bytes 80 to BF only continue a character.
bool BeginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
}

} // namespace

bool SameKey(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return LowerLetter(x) == LowerLetter(y); });
}

int CountCharacters(std::string_view text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

std::string FirstCharacters(std::string text, int n) {
  std::size_t end = 0;
  for (int seen = 0; end < text.size(); ++end)
    if (BeginsCharacter(text[end]) && seen++ == n)
      break;
  text.resize(end);
  return text;
}

} // namespace trekor
