// Comma files of closed data files, as the operator asks for them.
#pragma once

#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"

#include <string>

namespace trekor {

class DataFileExport {
public:
  DataFileExport(ProgramState& state, DataFiles& dataFiles, CommaFile& comma, const TestSetup& setup)
      : state(state), dataFiles(dataFiles), comma(comma), setup(setup) {}
  // Exports one file of a folder; `fileName` may end in ".MDB". Only while no data file is open. The data file is not
  // changed; one that can't be opened is passed over, and a comma file may be short when the disk is full. The names of
  // the next data file stay, as an order of the link to open it would otherwise replace the one exported last; the name
  // of the comma file is that of the last one written.
  void ExportDataFile(const std::string& folder, const std::string& fileName, bool join, bool write);

private:
  ProgramState& state;
  DataFiles& dataFiles;
  CommaFile& comma;
  const TestSetup& setup;
};

} // namespace trekor
