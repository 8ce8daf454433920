// The comma-delimited output ".TKR": numbered records derived from an open data file, in a layout of fixed columns that
// offices have read for years. Every blank counts. See docs/comma-file.md.
#pragma once

#include "datafiles/CommaRecords.h"
#include "datafiles/DataFiles.h"

#include <functional>

namespace trekor {

// What a writing came to.
enum class CommaOutcome {
  Nothing, // not wanted, no such session, or no stations: no file
  Written,
  Unreadable, // the data file could not be read to its end; what was written is short
  Unwritable  // the file could not be made or is short
};

class CommaFile {
public:
  CommaFile(ProgramState& state, Platform& platform, DataFiles& files);
  // Told whole percents while a file is written, each once.
  std::function<void(int percent)> AsciiFileProgress;
  // `loadedObservations` is ObsCount of the running setup: only so many values are cleared between segments.
  // The caller has set state.file.AsciiName. Session 0: all stations of the file under the last session's head.
  // Writes DataPath\AsciiName.TKR, over an existing one. Nothing when `write` is false, no such session, or no
  // stations. True when the file was written whole.
  bool WriteCommaFile(std::int32_t sessionID, bool write, int loadedObservations);
  CommaOutcome Outcome() const { return outcome; } // of the last call
  // True when that call has used up every registration of the data file, of whichever session: each stands in a record
  // of its own place and in a column of its own. False when the walk has left one behind or out.
  bool HoldsAll() const { return outcome == CommaOutcome::Written && holdsAll; }
  int WriteError() const { return writeError; } // the system's number of what made it unwritable

private:
  struct Walk;
  bool ChooseSession(std::int32_t sessionID);
  bool PassStations(Walk& walk, std::int32_t sessionID);
  void WriteRecords(Walk& walk, CommaRecords& records);
  void ReadStation(Walk& walk);
  bool WriteRegistrations(Walk& walk, CommaRecords& records);
  void ReadSegment(Walk& walk);
  void Progress(Walk& walk);

  ProgramState& state;
  Platform& platform;
  DataFiles& files;
  // Outlives a writing: the header of a second file counts the first one's observations.
  CommaTable table;
  Station RecordStation; // through it stored positions become kilometres within the limits of a station
  CommaOutcome outcome = CommaOutcome::Nothing;
  bool holdsAll = false;
  int writeError = 0;
};

} // namespace trekor
