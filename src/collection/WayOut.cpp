#include "collection/WayOut.h"

namespace trekor {

void WayOut::mnuExit_Click() {
  if (stage.MayLeave() && unloadMainForm)
    unloadMainForm();
}

void WayOut::LeaveWhenDue() {
  if (stage.LeaveIsDue())
    mnuExit_Click();
}

void WayOut::StopAndClose() {
  stage.BeginEnding();
  timer.SetRunning(false);
  rows.FinishRow();
  if (stage.InRun())
    run.StopAtOnce();
  else if (stage.Starting())
    run.CancelStart();
  if (stage.FileOpen())
    fileMenu.mnuClose_Click();
}

} // namespace trekor
