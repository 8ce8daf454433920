// One line of a table of cases: input and expected output, with " -> " in between.
#pragma once

#include <string>

namespace trekor::tests {

struct Case {
  Case(const char* text) : line(text) {
    const std::size_t at = line.find(" -> ");
    given = line.substr(0, at);
    wanted = at == std::string::npos ? "no arrow" : line.substr(at + 4);
  }
  std::string line, given, wanted;
};

} // namespace trekor::tests
