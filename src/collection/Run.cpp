#include "collection/Run.h"

namespace trekor {

// The waits let ticks and link messages in while the state is still idle; the guard keeps their commands out, and an
// exit among them begins the ending, after which this start has nothing more to do.
void Run::Start_Run() {
  if (!stage.TakesCommand() || stage.Preparing())
    return;
  if (stage.Asking() && !stage.FileOpen()) // the operator is naming the file of his own start
    return;
  const RunStage::Command command(stage);
  const WhileSet starting = stage.Start();
  if (!preparation.Prepare())
    return preparation.Undo();
  grids.rows.Add_StepRow();
  if (stage.Ending())
    return;
  if (stage.FileOpen()) {
    if (!news.AnnounceStart())
      return;
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
  if (!stage.FileOpen()) // closed by the link within the waits
    return;
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

// Also reached while running, where it repeats its two lines, as the control program has always been answered.
void Run::Resume_Run() {
  SelectNewestRow();
  look.ShowResumed();
  news.AnnounceResume();
  if (!stage.Ending()) // an exit in these sends has ended the run
    stage.Enter(RunStates::Running);
}

void Run::SelectNewestRow() {
  grids.data.SelectNewestRow();
  grids.values.Load_RowValues();
}

// Tests the guard and leaves it: a cleared one would keep its own Stop_Run out.
void Run::Stop_FromPause() {
  if (!stage.TakesCommand())
    return;
  look.UncoverTabs();
  SelectNewestRow();
  Stop_Run();
}

// What the link says within the sends is heard behind it all: a boundary would lie behind the closing station, and an
// order that answers the stop, as a close does, needs a program at rest.
void Run::Stop_Run() {
  if (!stage.TakesCommand())
    return;
  const SocketProp::Hold later = news.HoldLines();
  const RunStage::Command command(stage);
  if (news.AnnounceStop() && stage.Idle()) // the close box in these sends has done all that follows
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

void Run::StopAtOnce() {
  stage.ForceCommand(); // also from inside a command: it lets go when it comes back from its pump
  Stop_Run();
}

// A start that has not come to its end has stored nothing.
void Run::CancelStart() {
  grids.data.rows.Clear();
  preparation.Undo();
}

} // namespace trekor
