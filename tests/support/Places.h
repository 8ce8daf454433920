// Where this checkout and its build lie.
#pragma once

#include <string>

namespace trekor::tests {

// With the slash that begins `below`: SourcePlace("/templates").
std::string SourcePlace(const std::string& below);
std::string BuildPlace(const std::string& below);

} // namespace trekor::tests
