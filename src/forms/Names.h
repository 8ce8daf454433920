// Names and characters as the models need them: control names and picture keys are ASCII and compare without case,
// texts are UTF-8 and are cut between characters.
#pragma once

#include <string>
#include <string_view>

namespace trekor {

bool SameKey(std::string_view a, std::string_view b);
int CountCharacters(std::string_view text);
// The first n characters.
std::string FirstCharacters(std::string text, int n);

} // namespace trekor
