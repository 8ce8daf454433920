// What a start needs before a run may begin: a file, the lock key, the buffer's size, step and station.
#pragma once

#include "collection/FileMenu.h"
#include "collection/GridDepthBox.h"
#include "collection/NumLock.h"
#include "collection/RunStage.h"
#include "collection/StepBoxes.h"

namespace trekor {

class StartPreparation {
public:
  StartPreparation(RunStage& stage, FileMenu& fileMenu, NumLock& numLock, GridDepthBox& gridDepth, StepBoxes& stepBoxes)
      : stage(stage), fileMenu(fileMenu), numLock(numLock), gridDepth(gridDepth), stepBoxes(stepBoxes) {}
  // False: no run, silently.
  bool Prepare();
  // Whatever way the start or the run has come to its end.
  void Undo() { numLock.Restore(); }

private:
  bool AskOperator();

  RunStage& stage;
  FileMenu& fileMenu;
  NumLock& numLock;
  GridDepthBox& gridDepth;
  StepBoxes& stepBoxes;
};

} // namespace trekor
