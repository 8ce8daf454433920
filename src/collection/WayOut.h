// The ways out of the program: the menu, the link, the close box. Each stops a run and closes the file first.
#pragma once

#include "collection/FileMenu.h"
#include "collection/Run.h"
#include "collection/RunStage.h"
#include "collection/Stepping.h"
#include "forms/Controls.h"

#include <functional>

namespace trekor {

class WayOut {
public:
  WayOut(RunStage& stage, Timer& timer, Stepping& stepping, Run& run, FileMenu& fileMenu)
      : stage(stage), timer(timer), stepping(stepping), run(run), fileMenu(fileMenu) {}

  void mnuExit_Click();
  // An exit that had to wait for a file in the making. Once a tick.
  void LeaveWhenDue();
  // Stop a run and close a file. May be called from the middle of a run operation (an EXIT that came in at a pump):
  // what stands in the grid is stored whole, and the operation below ends at its pump.
  void StopAndClose();
  // The unload of the main form is the program's business (program/Program); this asks for it.
  std::function<void()> unloadMainForm;

private:
  RunStage& stage;
  Timer& timer;
  Stepping& stepping;
  Run& run;
  FileMenu& fileMenu;
};

} // namespace trekor
