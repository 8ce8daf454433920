// The export of closed data files, one after the other in one run: what one comma file leaves to the next (the
// observation count in the head) is carried over from file to file.
//
// A data file is never changed, and nothing but its comma files is put beside it: one that needs its log is copied into
// the work folder first. Comma files are written there too, and moved to their places when all of one data file are
// whole and on the disk.
#pragma once

#include "Arguments.h"
#include "datafiles/CommaFile.h"
#include "datafiles/DataFile.h"
#include "datafiles/ExportSessions.h"
#include "state/ProgramState.h"

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace trekor {

class Exporter {
public:
  explicit Exporter(const Arguments& wishes);
  // Called with whole percents while a comma file is written.
  std::function<void(int percent)>& Progress() { return comma.AsciiFileProgress; }
  // `written` names the files made, a line each; `told` is what the user should know.
  Exit Export(const std::string& file, std::string& written, std::string& told);

private:
  struct Failure {
    Exit code = Exit::Done;
    std::string words;
    explicit operator bool() const { return code != Exit::Done; }
  };
  Failure Convert(const std::string& name, std::string& written, std::string& told);
  Failure CheckName(const std::filesystem::path& file) const;
  Failure Open(const std::filesystem::path& file, const std::filesystem::path& workFolder);
  Failure OpenReadable(const std::string& nativePath);
  Failure Write(const std::filesystem::path& workFolder, std::vector<std::string>& made);
  Failure PutInPlace(const std::filesystem::path& workFolder, const std::vector<std::string>& made,
                     std::string& written) const;
  Failure CheckPlace(const std::filesystem::path& place) const;
  static Failure Unwritable(int error, const std::string& where);
  std::string UnitWarning();
  int ObservationCount(std::int32_t sessionID);

  // The naming has no folder, so what is asked for is a backslash and a name: that name in the work folder.
  struct WorkPlace : Paths {
    std::string NativePath(const std::string& path) override;
    std::filesystem::path folder;
  };

  const Arguments& wishes;
  UnitSettings units;
  People people;
  Positions position{units};
  FileNaming naming;
  WorkPlace workPlace;
  DataFile data;
  CommaFile comma;
  std::filesystem::path outFolder; // of the present file
  std::set<std::filesystem::path> cleared;
};

} // namespace trekor
