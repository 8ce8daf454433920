#include "collection/StartPreparation.h"

namespace trekor {

bool StartPreparation::Prepare() {
  if (!AskOperator())
    return false;
  stepBoxes.SetFirstBoundary();
  numLock.FreezeNumLock();
  return true;
}

bool StartPreparation::AskOperator() {
  if (!stage.FileOpen())
    fileMenu.mnuNew_Click(); // left without a file, the run goes on: it stores nothing
  if (stage.Ending())
    return false;
  const bool stored = stage.FileOpen();
  numLock.SaveAtStart();
  gridDepth.TakeTyped();
  // The link may have closed the file under a prompt: a run that nobody stores is not begun for that.
  return stepBoxes.ReadStart() && !stage.Ending() && stage.FileOpen() == stored;
}

} // namespace trekor
