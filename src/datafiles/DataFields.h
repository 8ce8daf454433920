// Stored names of the fields that a row sets, in the order in which the rows write them. Fixed by files in the field.
#pragma once

#include "datafiles/DataFile.h"

#include <array>
#include <string>
#include <vector>

namespace trekor {

constexpr std::array<const char*, 14> StationFields = {
    "SessionID", "Station",   "StationUnit", "StationDirection", "StationType", "Lane",   "LaneNumber",
    "Time",      "GPSStatus", "GPSTime",     "Latitude",         "Longitude",   "Height", "GPSSVs"};
constexpr std::array<const char*, 5> RegistrationFields = {"FromID", "ToID", "ObsCode", "ParCode", "RegData"};

// A field of Sessions and its member of the row: all but SessionID and Date.
template <class Value> struct SessionField {
  const char* name;
  Value SessionRow::*member;
};
constexpr SessionField<std::string> SessionTexts[] = {
    {"GUID", &SessionRow::GUID},
    {"Program", &SessionRow::Program},
    {"Operator", &SessionRow::Operator},
    {"Electronics", &SessionRow::Electronics},
    {"TestSetup", &SessionRow::TestSetup},
    {"Units", &SessionRow::Units},
    {"FacilityName", &SessionRow::FacilityName},
    {"FacilityCode", &SessionRow::FacilityCode},
    {"FacilityType", &SessionRow::FacilityType},
    {"SectionName", &SessionRow::SectionName},
    {"SectionCode", &SessionRow::SectionCode},
    {"District", &SessionRow::District},
    {"Class", &SessionRow::Class},
    {"Start", &SessionRow::Start},
    {"End", &SessionRow::End},
    {"Lane", &SessionRow::Lane},
    {"LaneNumber", &SessionRow::LaneNumber},
};
constexpr SessionField<int> SessionNumbers[] = {
    {"FacilityDirection", &SessionRow::FacilityDirection},
    {"FacilityLanes", &SessionRow::FacilityLanes},
    {"SectionDirection", &SessionRow::SectionDirection},
    {"StationDirection", &SessionRow::StationDirection},
};
constexpr SessionField<double> SessionStations[] = {
    {"StationMin", &SessionRow::StationMin},
    {"StationMax", &SessionRow::StationMax},
    {"SegmentSize", &SessionRow::SegmentSize},
};

// Places in the recordset; -1 where the table lacks the field, and Set does nothing there.
template <std::size_t N> std::vector<int> FieldPlaces(const Recordset& rows, const std::array<const char*, N>& names) {
  std::vector<int> places;
  for (const char* name : names)
    places.push_back(rows.FieldPlace(name));
  return places;
}

} // namespace trekor
