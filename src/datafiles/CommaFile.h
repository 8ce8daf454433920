// The comma-delimited output ".TKR": numbered records made from an open data file, in fixed columns that programs of
// offices read. Every blank counts. See docs/comma-file.md.
#pragma once

#include "datafiles/CommaRecords.h"
#include "datafiles/DataFile.h"
#include "platform/Drives.h"

#include <functional>

namespace trekor {

// The result of writing a file.
enum class CommaOutcome {
  Nothing, // not wanted, no such session, or no stations: no file
  Written,
  Unreadable, // the data file could not be read to its end; what was written is short
  Unwritable  // the file could not be made or is short
};

class CommaFile {
public:
  CommaFile(const CommaSources& sources, Paths& paths, DataFile& dataFile);
  // Called with whole percents while a file is written, once for each.
  std::function<void(int percent)> AsciiFileProgress;
  // Writes DataPath\AsciiName.TKR, over an existing one; the caller has set AsciiName. Session 0: all
  // stations of the file under the head of the last session. `loadedObservations` is ObsCount of the running setup:
  // only so many values are cleared between segments. Nothing is written when `write` is false, or without such a
  // session or stations. True when the file was written whole.
  bool WriteCommaFile(std::int32_t sessionID, bool write, int loadedObservations);
  CommaOutcome Outcome() const { return outcome; } // of the last call
  // True when the last call has written every registration of the data file, of all sessions: each in a record of its
  // own place and in a column of its own.
  bool HoldsAll() const { return outcome == CommaOutcome::Written && holdsAll; }
  int WriteError() const { return writeError; } // of an Unwritable: the error number of the system

private:
  struct Walk;
  bool ChooseSession(std::int32_t sessionID);
  bool PassStations(Walk& walk, std::int32_t sessionID);
  void WriteRecords(Walk& walk, CommaRecords& records);
  void ReadStation(Walk& walk);
  bool WriteRegistrations(Walk& walk, CommaRecords& records);
  void ReadSegment(Walk& walk);
  void Progress(Walk& walk);

  CommaSources sources;
  Paths& paths;
  DataFile& data;
  // Kept between files: the head of the second counts the observations of the first. Readers rely on it.
  CommaTable table;
  Station RecordStation; // converts stored positions to kilometres, within the limits of a station
  CommaOutcome outcome = CommaOutcome::Nothing;
  bool holdsAll = false;
  int writeError = 0;
};

} // namespace trekor
