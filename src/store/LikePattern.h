// LIKE as the program's queries write it: "*" stands for any text, "?" for one character, "#" for one digit, "[abc]",
// "[a-z]" and "[!a-z]" for one character of a set. "%" and "_" are ordinary characters. The letters A to Z compare
// without case.
#pragma once

#include <string_view>

namespace trekor {

bool LikeMatches(std::string_view pattern, std::string_view text);

} // namespace trekor
