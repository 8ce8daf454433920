// Stored names of the fields that a row sets, in the order in which the rows write them. Fixed: files in the field have
// them.
#pragma once

#include "store/Recordset.h"

#include <array>
#include <vector>

namespace trekor {

constexpr std::array<const char*, 14> StationFields = {
    "SessionID", "Station",   "StationUnit", "StationDirection", "StationType", "Lane",   "LaneNumber",
    "Time",      "GPSStatus", "GPSTime",     "Latitude",         "Longitude",   "Height", "GPSSVs"};
constexpr std::array<const char*, 5> RegistrationFields = {"FromID", "ToID", "ObsCode", "ParCode", "RegData"};

// -1 where a table lacks the field; setting that place does nothing.
template <std::size_t N> std::vector<int> FieldPlaces(const Recordset& rows, const std::array<const char*, N>& names) {
  std::vector<int> places;
  for (const char* name : names)
    places.push_back(rows.FieldPlace(name));
  return places;
}

} // namespace trekor
