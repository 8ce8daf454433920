// How the form looks in each state of the run: the grid over or under the tabs, its selection, buttons and menus. The
// screen stays on from the start to the stop.
#pragma once

#include "collection/FormStatus.h"
#include "collection/Layout.h"
#include "collection/RunGrid.h"
#include "platform/Screen.h"
#include "platform/Shell.h"

namespace trekor {

class RunLook {
public:
  RunLook(RunGrid& runGrid, Shell& shell, Screen& screen, Layout& layout, FormStatus& status)
      : grid(runGrid), shell(shell), screen(screen), layout(layout), status(status) {}

  void LockStep() { status.LockStep(); } // a file has its first run
  void ShowRunning();
  void ShowPaused();
  void ShowResumed();
  // A stop has three steps: the form, then its rows are stored, then the rest.
  void UncoverTabs();
  void ShowStopping();
  void ShowEndOfRun() { status.ShowEndOfRun(); }
  void ShowStopped();

private:
  RunGrid& grid;
  Shell& shell;
  Screen& screen;
  Layout& layout;
  FormStatus& status;
};

} // namespace trekor
