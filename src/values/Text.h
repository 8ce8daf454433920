// Text helpers. Text is UTF-8; widths and cuts count characters. A blank is the character 32 only.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trekor {

std::string Trim(std::string_view text);
inline std::string_view TrimView(std::string_view text) {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  return text;
}
// Upper and lower case of Latin, Greek and Cyrillic letters; everything else stays.
std::string Upper(std::string_view text);
std::string Lower(std::string_view text);
bool SameText(std::string_view a, std::string_view b); // without regard to case
// Names of fields, controls, switches and verbs: the letters A to Z alone have two cases, as in the database engine.
inline char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
std::string LowerName(std::string_view name);
inline bool SameName(std::string_view a, std::string_view b) { // inline: asked several times for each line of the link
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (LowerLetter(a[i]) != LowerLetter(b[i]))
      return false;
  return true;
}
int CharCount(std::string_view text);
// The code of the first character; 0 for the empty text and for a byte that begins none.
char32_t FirstCharacter(std::string_view text);
// The first n characters.
std::string CutText(std::string_view text, int n);
std::string_view CutView(std::string_view text, int n);
// Exactly n characters: cut, or padded with blanks on the right.
std::string FixedWidth(std::string_view text, int n);
// The parts between the separators; one empty part for the empty text.
std::vector<std::string> SplitText(std::string_view text, char separator);

} // namespace trekor
