// The vocabulary of road distance units, codes 0 to 8 (KM, M, ML, MLFT, FEET, YARDS, INCH, STNFEET, STNM).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace trekor {

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
// For codes 0 to 5 sets both. For any other code the digit becomes "0" and the name keeps what was in it.
void FileUnitWord(int fileStationUnit, FileUnit& unit);
// The digit pattern of a station in the comma file; "" for codes other than 0 to 5.
std::string FileStationPattern(int fileStationUnit);

} // namespace trekor
