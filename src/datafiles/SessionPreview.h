// A look into a closed data file: what its newest session is about.
#pragma once

#include <string>

namespace trekor {

// Copies of their own: the units in which the operator sees stations are not those of a file that he looks at.
struct SessionPreview {
  std::string Date, FacilityName, SectionName, Start, End, TestSetup, Units;
  int StationUnit = 0; // of the file's last station
};

// Leaves no trace in the file or beside it. False, and the preview is as it was, for a file that is no data file, in
// use, damaged, without a session or without a station.
bool PreviewDataFile(const std::string& nativePath, SessionPreview& preview);

} // namespace trekor
