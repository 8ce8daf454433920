// Stored names of the fields that a row sets, in the order in which the rows write them. Fixed by files in the field.
#pragma once

#include "store/Recordset.h"

#include <array>
#include <vector>

namespace trekor {

constexpr std::array<const char*, 14> StationFields = {
    "SessionID", "Station",   "StationUnit", "StationDirection", "StationType", "Lane",   "LaneNumber",
    "Time",      "GPSStatus", "GPSTime",     "Latitude",         "Longitude",   "Height", "GPSSVs"};
constexpr std::array<const char*, 5> RegistrationFields = {"FromID", "ToID", "ObsCode", "ParCode", "RegData"};

// Places in the recordset; -1 where the table lacks the field, and Set does nothing there.
template <std::size_t N> std::vector<int> FieldPlaces(const Recordset& rows, const std::array<const char*, N>& names) {
  std::vector<int> places;
  for (const char* name : names)
    places.push_back(rows.FieldPlace(name));
  return places;
}

} // namespace trekor
