#include "collection/StartPreparation.h"

namespace trekor {

bool StartPreparation::Prepare() {
  menus.optionsMenu.GiveWay();
  if (!AskOperator())
    return false;
  stepBoxes.SetFirstBoundary();
  numLock.FreezeNumLock();
  return true;
}

bool StartPreparation::TurnedSince() {
  const bool turned = stepBoxes.DirectionTurned();
  if (turned)
    stepBoxes.SetFirstBoundary();
  return turned;
}

bool StartPreparation::AskOperator() {
  if (!stage.FileOpen())
    menus.fileMenu.mnuNew_Click(); // without a file the run starts all the same and stores nothing
  if (stage.Ending())
    return false;
  const bool stored = stage.FileOpen();
  numLock.SaveAtStart();
  gridDepth.TakeTyped();
  // The link may have closed the file under a prompt: no run begins then. One that it has opened takes the run.
  return stepBoxes.ReadStart() && !stage.Ending() && (!stored || stage.FileOpen());
}

} // namespace trekor
