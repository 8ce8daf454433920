#include "store/LikePattern.h"

#include "values/Text.h"

#include <cstddef>

namespace trekor {

namespace {

// `set` is what stands between the brackets. Ranges are of single bytes: sets are for digits and plain letters.
bool InSet(std::string_view set, char c) {
  const bool exclude = set.starts_with('!');
  if (exclude)
    set.remove_prefix(1);
  const char wanted = LowerLetter(c);
  bool found = false;
  while (!set.empty() && !found) {
    const bool range = set.size() >= 3 && set[1] == '-';
    const char low = LowerLetter(set[0]), high = LowerLetter(range ? set[2] : set[0]);
    found = low <= wanted && wanted <= high;
    set.remove_prefix(range ? 3 : 1);
  }
  return found != exclude;
}

// Matches one element of a pattern, not a "*", with the beginning of the text. The last two are the bytes that each
// used up.
bool OneMatches(std::string_view pattern, std::string_view text, std::size_t& patternTaken, std::size_t& textTaken) {
  patternTaken = textTaken = 1;
  if (pattern.empty() || text.empty())
    return false;
  if (pattern[0] == '?') {
    textTaken = CutView(text, 1).size();
    return true;
  }
  if (pattern[0] == '#')
    return text[0] >= '0' && text[0] <= '9';
  const std::size_t close = pattern[0] == '[' ? pattern.find(']', 1) : std::string_view::npos;
  if (close != std::string_view::npos) {
    patternTaken = close + 1;
    return InSet(pattern.substr(1, close - 1), text[0]);
  }
  return LowerLetter(pattern[0]) == LowerLetter(text[0]);
}

} // namespace

// The last "*" alone is tried again with one byte more, so the work grows at most with pattern times text.
bool LikeMatches(std::string_view pattern, std::string_view text) {
  std::string_view retryPattern, retryText;
  bool canRetry = false;
  while (!text.empty() || !pattern.empty()) {
    std::size_t patternTaken = 0, textTaken = 0;
    if (pattern.starts_with('*')) {
      pattern.remove_prefix(1);
      retryPattern = pattern;
      retryText = text;
      canRetry = true;
    } else if (OneMatches(pattern, text, patternTaken, textTaken)) {
      pattern.remove_prefix(patternTaken);
      text.remove_prefix(textTaken);
    } else if (canRetry && !retryText.empty()) {
      retryText.remove_prefix(1);
      pattern = retryPattern;
      text = retryText;
    } else {
      return false;
    }
  }
  return true;
}

} // namespace trekor
