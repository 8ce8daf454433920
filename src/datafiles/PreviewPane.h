// The fields of a form that show the newest session of a data file. A label blinks when a comma file of it would be
// written in other units than the data have.
#pragma once

#include "datafiles/FileBoxes.h"
#include "datafiles/SessionPreview.h"
#include "datafiles/UnitLabels.h"
#include "platform/Drives.h"
#include "state/ProgramState.h"

#include <string>

namespace trekor {

class PreviewPane {
public:
  // `date` is null on a form without one.
  PreviewPane(const ProgramState& state, Drives& drives, SessionBoxes& boxes, Label* date);
  // Shows the file of this path. False: it is no data file, or can't be read to its end, and the fields are empty.
  bool PreviewDataFile(const std::string& path);
  void ClearPreview();

private:
  void Show(const SessionPreview& session);
  void ShowSessionUnits(const SessionPreview& session);

  const ProgramState& state;
  Drives& drives;
  SessionBoxes& boxes;
  Label* date;
  UnitLabels unitLabels;
};

} // namespace trekor
