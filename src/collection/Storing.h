// Stores a row that leaves the buffer: a step row becomes a station and a span from the step before, an event row a
// station and a point.
#pragma once

#include "collection/GridRow.h"
#include "datafiles/DataFiles.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"

namespace trekor {

class Storing {
public:
  Storing(DataFiles& dataFiles, const TestSetup& setup, const ProgramState& state, Clock& clock)
      : dataFiles(dataFiles), setup(setup), state(state), clock(clock) {}
  // A new file with no station in it. False: it could not be made, and a file that is open goes on.
  bool CreateFile();
  // A new session of an existing file, with no station in it. False: no file is open.
  bool ReopenFile();
  void CloseFile() { dataFiles.CloseDataFile(); }

  // The present time and position.
  void TakeFix(GridRow& row) const;
  // One transaction. What fails is missing in the file and is not reported.
  void Flush_Row(const GridRow& row);
  // Stores the station at which the first span of a run begins.
  void StoreStartStation();
  // The session tells the limits of its stations.
  void EndRun() { dataFiles.EditSession(); }

private:
  void StorePoint(const GridRow& row, std::int32_t station);
  void StoreSpan(const GridRow& row, std::int32_t station);
  void StoreRegistration(std::int32_t from, std::int32_t to, int obs, const std::string& data);

  DataFiles& dataFiles;
  const TestSetup& setup;
  const ProgramState& state;
  Clock& clock;
  std::int32_t LastStationID = 0; // the last step station that was stored in this file; 0 none
};

} // namespace trekor
