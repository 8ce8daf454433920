// What is added to the text of a query before it runs. Private to this room.
#pragma once

#include <string>
#include <vector>

namespace trekor {

// "SELECT * FROM ..." with the row numbers of its tables added behind the fields, so that its rows can be written, and
// with the order of insertion as the last order. Empty for any other query: it can only be read.
std::string WithRowNumbers(const std::string& sql, const std::vector<std::string>& tables);

} // namespace trekor
