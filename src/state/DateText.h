// Dates as the databases store them: local time, "2024-05-06 07:08:09".
#pragma once

#include "platform/Clock.h"

#include <string>
#include <string_view>

namespace trekor {

// "" for no date.
std::string DateText(const LocalTime& time);
// Reads the numbers in order, whatever stands between them. No date (year 0) for any other text; a text without a time
// of day is midnight.
LocalTime ReadDate(std::string_view text);

} // namespace trekor
