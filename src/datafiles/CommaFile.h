// The comma-delimited output ".TKR": numbered records derived from an open data file, in a layout of fixed columns that
// offices have read for years. Every blank counts. See docs/comma-file.md.
#pragma once

#include "datafiles/DataFiles.h"

#include <array>
#include <functional>
#include <string>
#include <variant>

namespace trekor {

class CommaFile {
public:
  CommaFile(ProgramState& state, Platform& platform, DataFiles& files);
  // Told whole percents while a file is written, each once.
  std::function<void(int percent)> AsciiFileProgress;
  // `loadedObservations` is ObsCount of the running setup: only so many values are cleared between segments.
  // The caller has set state.file.AsciiName. Session 0: all stations of the file under the last session's head.
  // Writes DataPath\AsciiName.TKR, over an existing one. Nothing when `write` is false, no such session, or no stations.
  // True when the file was written whole.
  bool WriteCommaFile(std::int32_t sessionID, bool write, int loadedObservations);

private:
  struct Walk;
  ProgramState& state;
  Platform& platform;
  DataFiles& files;
  // These outlive a writing and are reused by the next: the header of a second file counts the first one's observations.
  int CommaObsCount = 0;
  std::array<std::int16_t, 71> ObsCodes{};
  std::array<std::string, 71> ObsNames;
  std::array<std::variant<std::int32_t, std::string>, 71> ObsValues;
  std::string FileUnitName, FileUnitCode;
};

} // namespace trekor
