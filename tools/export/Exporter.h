// The export of closed data files, one after the other, as one run of the program would do it: what a writing leaves to
// the next (the observation count in the head) carries over from file to file.
#pragma once

#include "Arguments.h"
#include "QuietPlatform.h"
#include "core/ProgramState.h"
#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "datafiles/ExportSessions.h"

#include <filesystem>
#include <string>

namespace trekor {

class Exporter {
public:
  explicit Exporter(const Arguments& wishes);
  // Writes the comma files of one data file. What is to be told comes in lines: `written` names the files made, `told`
  // what the user should know. False when the file could not be exported whole.
  bool Export(const std::string& file, std::string& written, std::string& told);

private:
  bool Open(const std::filesystem::path& file, std::string& why);
  // A name that would go over a data file (a link with such a target); "" when there is none.
  std::string OverDataFile(const std::filesystem::path& file) const;
  std::string UnitWarning();
  int ObservationCount(std::int32_t sessionID);

  const Arguments& wishes;
  QuietPlatform machine;
  ProgramState state;
  DataFiles files;
  CommaFile comma;
};

} // namespace trekor
