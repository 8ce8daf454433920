// Makes comma files from an open data file: one of all sessions, or one for each.
#pragma once

#include "datafiles/CommaFile.h"

#include <functional>
#include <string>
#include <vector>

namespace trekor {

// "-02" for session 2: follows DataName in the name of a comma file of one session.
std::string SessionSuffix(std::int32_t sessionID);

struct ExportWish {
  bool join = true;     // one file of all stations; otherwise one for each session
  bool CheckTKR = true; // writing wanted; without it the sessions are walked and nothing is written
  // ObsCount of the setup that counts as loaded while a session (0: all of them) is written.
  std::function<int(std::int32_t sessionID)> loadedObservations;
};

struct ExportResult {
  std::vector<std::string> written; // names without folder and extension
  bool unreadable = false;          // the data file could not be read to its end
  bool unwritable = false;          // a comma file is short or could not be made
  int writeError = 0;               // of that: the error number of the system
};

// The data file is open and DataName is its name without extension. A file without sessions gives nothing.
// Failures of a file are in the result and the others are written all the same.
ExportResult ExportSessions(FileNaming& file, DataFile& data, CommaFile& comma, const ExportWish& wish);

} // namespace trekor
