// How the form looks in each state of the run: the grid over or under the tabs, its selection, buttons and menus.
#pragma once

#include "collection/FormStatus.h"
#include "collection/Layout.h"
#include "collection/RunGrid.h"
#include "platform/Shell.h"

namespace trekor {

class RunLook {
public:
  RunLook(RunGrid& runGrid, Shell& shell, Layout& layout, FormStatus& status)
      : grid(runGrid), shell(shell), layout(layout), status(status) {}

  void LockStep() { status.LockStep(); } // a file has its first run
  void ShowRunning();
  void ShowPaused();
  void ShowResumed();
  // A stop has three steps: the form, then its rows are stored, then the rest.
  void UncoverTabs();
  void ShowStopping();
  void ShowEndOfRun() { status.ShowEndOfRun(); }
  void ShowStopped() { status.SetMenusEnabled(true); }

private:
  RunGrid& grid;
  Shell& shell;
  Layout& layout;
  FormStatus& status;
};

} // namespace trekor
