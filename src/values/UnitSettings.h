// Which units the operator sees and which the files hold. Read at every call by the value objects, never cached.
#pragma once

#include "values/DistanceUnits.h"

namespace trekor {

struct UnitSettings {
  int StationUnit = units::Km, FileStationUnit = units::Km;
  bool UnitsUS = false, FileUnitsUS = false;
  // The exact opposites; one stored flag each, so that the pair cannot disagree.
  bool UnitsSI() const { return !UnitsUS; }
  bool FileUnitsSI() const { return !FileUnitsUS; }
  char DecimalChar = '.'; // the locale's decimal mark
};

} // namespace trekor
