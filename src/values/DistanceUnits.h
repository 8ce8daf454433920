// Road distance units: their codes, and their words for people, on the link and in the comma file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace trekor {

// The codes, as options and data files hold them. A variable may hold others, which are no unit.
namespace units {
enum Code : int { Km, Metre, Mile, MileFeet, Feet, Yards, Inch, StnFeet, StnMetre };
}

constexpr double MilesPerKm = 0.621371192237334;

// Short name for people; "" outside the table.
std::string UnitName(int code);
// Word on the link, "KM" ...; "" outside the table. UnitCode is the way back, for words in capitals; nothing for
// another word.
std::string UnitWord(int code);
std::optional<int> UnitCode(std::string_view word);

// The unit as the comma file writes it: long name ("kilometers") and one digit.
struct FileUnit {
  std::string FileUnitName, FileUnitCode;
};
// For the units Km to Yards sets both. For any other code the digit becomes "0" and the name keeps what was in it.
void FileUnitWord(int fileStationUnit, FileUnit& unit);
// The digit pattern of a station in the comma file; "" for other codes than Km to Yards.
std::string FileStationPattern(int fileStationUnit);

} // namespace trekor
