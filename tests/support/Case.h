// One line of a table of cases: what is given and what comes of it, with " -> " in between.
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
