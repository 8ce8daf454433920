#include "collection/Run.h"

namespace trekor {

// The waits let ticks and link messages run while the run is still idle. The guard keeps their commands out; an exit
// among them sets `ending`, and this start then stops.
void Run::Start_Run() {
  if (!stage.TakesCommand() || stage.Preparing())
    return;
  if (stage.Asking() && !stage.FileOpen()) // the operator is naming the file of his own start
    return;
  const RunStage::Command command(stage);
  const WhileSet starting = stage.Start();
  if (!preparation.Prepare())
    return preparation.Undo();
  const WhileSet announced = stage.Announce();
  grids.rows.Add_StepRow();
  if (stage.Ending())
    return;
  if (stage.FileOpen()) {
    if (!news.AnnounceStart())
      return;
    if (preparation.TurnedSince())
      grids.rows.RenewFirstRow();
    BeginInFile();
  }
  look.ShowRunning();
  ring.Clear();
  grids.data.AwaitValue = false; // the run before may have ended between the two keys of a pair
  stage.DropHeldDmi();
  stage.Enter(RunStates::Running);
}

// Step and direction are fixed from here until the file is closed.
void Run::BeginInFile() {
  look.LockStep();
  grids.rows.StoreStart();
}

void Run::Pause_Run() {
  if (!stage.TakesCommand())
    return;
  const RunStage::Command command(stage);
  look.ShowPaused();
  stage.Enter(RunStates::Paused);
  news.AnnouncePause();
}

// F2 comes here while running too, and the two lines are sent again. Kept: control programs in the field rely on it.
void Run::Resume_Run() {
  SelectNewestRow();
  look.ShowResumed();
  news.AnnounceResume();
  if (!stage.Ending()) // an exit during the sends has ended the run
    stage.Enter(RunStates::Running);
}

void Run::SelectNewestRow() {
  grids.data.SelectNewestRow();
  grids.values.Load_RowValues();
}

// Tests the guard without clearing it, which would keep its own Stop_Run out.
void Run::Stop_FromPause() {
  if (!stage.TakesCommand())
    return;
  look.UncoverTabs();
  SelectNewestRow();
  Stop_Run();
}

// Lines of the link that come during the sends wait until the run has stopped: a boundary would be stored behind the
// closing station, and an answer to the stop, such as a close, needs the program in idle.
void Run::Stop_Run() {
  if (!stage.TakesCommand())
    return;
  const SocketProp::Hold later = news.HoldLines();
  const RunStage::Command command(stage);
  if (news.AnnounceStop() && stage.Idle()) // the close box during the sends has done the rest
    return;
  look.ShowStopping();
  if (stage.FileOpen())
    grids.rows.StoreAll();
  look.ShowEndOfRun();
  grids.data.rows.Clear();
  look.ShowStopped();
  grids.values.ResetValues();
  preparation.Undo();
  stage.DropHeldDmi();
  stage.Enter(RunStates::Idle);
}

void Run::EndAtOnce() {
  grids.rows.FinishRow();
  if (stage.Starting() && stage.Idle())
    return CancelStart();
  if (stage.Idle())
    return;
  stage.ForceCommand(); // also inside a command, which ends when its pump returns
  Stop_Run();
}

// A start that is not finished has stored nothing.
void Run::CancelStart() {
  grids.data.rows.Clear();
  preparation.Undo();
}

} // namespace trekor
