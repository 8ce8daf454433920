// Windows-1252, the code page of the link and of the comma file. What it lacks becomes "?"; the five bytes that it
// leaves undefined stand for the control characters of the same number. Bytes of invalid UTF-8 become "?" too.
#pragma once

#include <string>
#include <string_view>

namespace trekor {

std::string ToWindows1252(std::string_view utf8);
void AppendWindows1252(std::string& out, std::string_view utf8);
std::string FromWindows1252(std::string_view bytes);

} // namespace trekor
