#include "store/QueryText.h"

#include "store/FieldFit.h"
#include "values/Text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace trekor {

namespace {

struct Word {
  std::string text; // in small letters; any other character is a word by itself
  std::size_t begin = 0;
};

bool IsWordSign(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         (static_cast<unsigned char>(c) & 0x80U) != 0;
}

std::size_t EndOfQuoted(std::string_view sql, std::size_t at) {
  const char close = sql[at] == '[' ? ']' : sql[at];
  const std::size_t end = sql.find(close, at + 1);
  return end == std::string_view::npos ? sql.size() : end + 1;
}

std::size_t EndOfWord(std::string_view sql, std::size_t at) {
  const std::string_view quotes = "'\"`[";
  if (quotes.find(sql[at]) != std::string_view::npos)
    return EndOfQuoted(sql, at);
  std::size_t end = at + 1;
  while (IsWordSign(sql[at]) && end < sql.size() && IsWordSign(sql[end]))
    ++end;
  return end;
}

// The words outside of all brackets.
std::vector<Word> OuterWords(std::string_view sql) {
  std::vector<Word> words;
  int depth = 0;
  for (std::size_t at = 0; at < sql.size();) {
    const std::size_t end = EndOfWord(sql, at);
    depth -= sql[at] == ')' ? 1 : 0;
    if (depth == 0 && sql[at] != ' ' && sql[at] != ')')
      words.push_back({LowerName(sql.substr(at, end - at)), at});
    depth += sql[at] == '(' ? 1 : 0;
    at = end;
  }
  return words;
}

bool Has(const std::vector<Word>& words, std::string_view wanted) {
  return std::any_of(words.begin(), words.end(), [&](const Word& word) { return word.text == wanted; });
}

bool IsPlainSelect(const std::vector<Word>& words) {
  const auto is = [&](std::size_t i, std::string_view text) { return words.size() > i && words[i].text == text; };
  if (!is(0, "select") || !is(1, "*") || !is(2, "from"))
    return false;
  for (const std::string_view other : {"group", "limit", "union", "intersect", "except", ";"})
    if (Has(words, other))
      return false;
  return true;
}

} // namespace

std::string WithRowNumbers(const std::string& sql, const std::vector<std::string>& tables) {
  const std::vector<Word> words = OuterWords(sql);
  if (tables.empty() || !IsPlainSelect(words))
    return {};
  std::string numbers, order;
  for (const std::string& table : tables) {
    numbers += ", " + QuotedName(table) + ".rowid";
    order += (order.empty() ? "" : ", ") + QuotedName(table) + ".rowid";
  }
  std::string text = sql;
  text.insert(words[1].begin + 1, numbers);
  return text + (Has(words, "order") ? ", " : " ORDER BY ") + order;
}

} // namespace trekor
