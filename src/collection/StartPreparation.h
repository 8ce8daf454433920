// What a start needs before the run begins: a file, NumLock, the size of the buffer, step and station.
#pragma once

#include "collection/FileMenu.h"
#include "collection/GridDepthBox.h"
#include "collection/NumLock.h"
#include "collection/OptionsMenu.h"
#include "collection/RunStage.h"
#include "collection/StepBoxes.h"

namespace trekor {

// The menus whose forms a start opens or closes.
struct StartMenus {
  FileMenu& fileMenu;
  OptionsMenu& optionsMenu;
};

class StartPreparation {
public:
  StartPreparation(RunStage& stage, const StartMenus& menus, NumLock& numLock, GridDepthBox& gridDepth,
                   StepBoxes& stepBoxes)
      : stage(stage), menus(menus), numLock(numLock), gridDepth(gridDepth), stepBoxes(stepBoxes) {}
  // False: no run, silently.
  bool Prepare();
  // "SET DMI" in the seconds of the announcement may have turned the direction: the first boundary then lies on the
  // other side. True when it was set anew.
  bool TurnedSince();
  // At the end of the run or of the start, however it ends.
  void Undo() { numLock.Restore(); }

private:
  bool AskOperator();

  RunStage& stage;
  StartMenus menus;
  NumLock& numLock;
  GridDepthBox& gridDepth;
  StepBoxes& stepBoxes;
};

} // namespace trekor
