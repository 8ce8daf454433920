// Dates as the databases store them: local time, "2024-05-06 07:08:09".
#pragma once

#include "platform/Clock.h"

#include <string>
#include <string_view>

namespace trekor {

// "" for no date.
std::string DateText(const LocalTime& time);
// The parts in their order, whatever stands between them. No date for a text that is none; a text without a time of day
// is midnight.
LocalTime ReadDate(std::string_view text);

} // namespace trekor
