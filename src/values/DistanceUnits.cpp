#include "values/DistanceUnits.h"

#include <array>

namespace trekor {
namespace {

struct Unit {
  const char *word, *shortName, *fileName, *fileCode, *filePattern;
};

// Stored in files and spoken on the link: fixed. In the order of the codes.
constexpr std::array<Unit, 9> Units = {{
    {"KM", "km", "kilometers", "3", "###0.000"},
    {"M", "meters", "meters", "2", "#######0"},
    {"ML", "miles", "miles", "7", "###0.000"},
    {"MLFT", "mi.ft", "mile.feet", "9", "##0.0000"},
    {"FEET", "feet", "feet", "5", "#######0"},
    {"YARDS", "yards", "yards", "6", "#######0"},
    {"INCH", "inches", "", "0", ""}, // files know no inches and no station units
    {"STNFEET", "StnFeet", "", "0", ""},
    {"STNM", "StnMtr", "", "0", ""},
}};

const Unit* Find(int code) {
  return code >= 0 && code < static_cast<int>(Units.size()) ? &Units[static_cast<std::size_t>(code)] : nullptr;
}

} // namespace

std::string UnitName(int code) {
  const Unit* const unit = Find(code);
  return unit ? unit->shortName : "";
}

std::string UnitWord(int code) {
  const Unit* const unit = Find(code);
  return unit ? unit->word : "";
}

std::optional<int> UnitCode(std::string_view word) {
  for (std::size_t i = 0; i < Units.size(); ++i)
    if (word == Units[i].word)
      return static_cast<int>(i);
  return std::nullopt;
}

void FileUnitWord(int fileStationUnit, FileUnit& unit) {
  const Unit* const known = Find(fileStationUnit);
  if (known && *known->fileName)
    unit.FileUnitName = known->fileName; // a unit that files don't know leaves the name of the one before
  unit.FileUnitCode = known ? known->fileCode : "0";
}

std::string FileStationPattern(int fileStationUnit) {
  const Unit* const unit = Find(fileStationUnit);
  return unit ? unit->filePattern : "";
}

} // namespace trekor
