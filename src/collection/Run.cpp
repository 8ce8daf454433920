#include "collection/Run.h"

#include "values/NumberText.h"

#include <utility>

namespace trekor {

namespace {
constexpr double LinkPause = 1; // seconds between PREPARE and START, and behind START
} // namespace

// The waits let ticks and link messages in while RunState is still Idle; the guard keeps their commands out, and an
// exit among them sets `ending`, after which this start has nothing more to do.
void Run::Start_Run() {
  if (!ctx.fields.BusyGuard || ctx.fields.preparing)
    return;
  if (ctx.fields.asking && !ctx.Flags().DataFileOpen) // the operator is naming the file of his own start
    return;
  const RunCommand command(ctx.fields);
  const WhileSet starting(ctx.fields.starting);
  if (!PrepareStart())
    return RestoreNumLock();
  stepping.SetFirstBoundary();
  asking.FreezeNumLock();
  grids.Add_StepRow();
  if (ctx.fields.ending)
    return;
  if (ctx.Flags().DataFileOpen) {
    if (!AnnounceStart())
      return;
    BeginInFile();
  }
  ShowRunning();
  ring.Clear();
  ctx.fields.AwaitValue = false; // the run before may have ended between the two keys of a pair
  ctx.fields.heldDmi = 0;
  ctx.Flags().RunState = RunStates::Running;
}

// File, step and station of the start. False: no run, silently.
bool Run::PrepareStart() {
  auto& at = ctx.Position();
  if (!ctx.Flags().DataFileOpen)
    fileMenu.mnuNew_Click(); // left without a file, the run goes on: it stores nothing
  if (ctx.fields.ending)
    return false;
  const bool stored = ctx.Flags().DataFileOpen;
  if (asking.NumLockFrozen())
    ctx.fields.NumLockAtStart = ctx.rooms.platform.keyboard.NumLock();
  if (ctx.form.txtGridDepth.Edited()) // typed, and the box not left yet
    boxes.ValidateGridDepth();
  at.DmiAtStart = at.DmiStation.Default();
  // Asked also when the link has commanded the start. A box that was just set to 0 is not seen here, only below.
  if (at.StepSize.Default() == 0)
    asking.EnterHugeNumber(7);
  if (ctx.fields.ending || !ReadStep())
    return false;
  SettleStation();
  // The link may have closed the file under a prompt: a run that nobody stores is not begun for that.
  return !ctx.fields.ending && ctx.Flags().DataFileOpen == stored;
}

bool Run::ReadStep() {
  auto& at = ctx.Position();
  at.StepSize.SetText(ctx.form.Texts7.Text());
  at.StepKm = stepping.StationTextToKm(ctx.form.Texts7.Text());
  return at.StepKm > 0;
}

void Run::SettleStation() {
  auto& key = ctx.Position().KeyStation;
  const double station = TextToDouble(ctx.form.Texts6.Text()), step = TextToDouble(ctx.form.Texts7.Text());
  if (step != 0) {
    key.SetValue(station);
    ctx.form.Texts6.SetText(key.Text());
  }
  if (!ctx.Flags().FromLink)
    asking.EnterHugeNumber(6);
  key.SetText(ctx.form.Texts6.Text());
  ctx.form.Texts6.SetText(key.Text());
}

// "CTRL PREPARE  12.3", "STATUS PREPARE  12.3", a second, "CTRL START  12.3", "STATUS START  12.3  0 1", a second.
// A start from the link is silent, unless a message that came in a pump before has ended that. False when an exit came
// in the waits.
bool Run::AnnounceStart() {
  auto& at = ctx.Position();
  if (ctx.Flags().FromLink)
    return true;
  ctx.Send("CTRL PREPARE " + WireNumber(at.KeyStation.Default()));
  ctx.Send("STATUS PREPARE " + WireNumber(at.KeyStation.Default()));
  ctx.PumpAndWait(LinkPause);
  if (ctx.fields.ending)
    return false;
  ctx.Send("CTRL START " + WireNumber(at.KeyStation.Default()));
  ctx.Send("STATUS START " + WireNumber(at.KeyStation.Default()) + " " +
           WireNumber(at.KeyStation.Default() - at.DmiAtStart) + (at.DmiIncreasing ? " 1" : " -1"));
  ctx.PumpAndWait(LinkPause);
  ctx.Pump();
  return !ctx.fields.ending;
}

// Step and direction are fixed from here until the file is closed.
void Run::BeginInFile() {
  if (!ctx.Flags().DataFileOpen) // closed by the link within the waits
    return;
  ctx.form.UpDnPicture.SetEnabled(false);
  ctx.form.Texts7.SetEnabled(false);
  ctx.fields.CurrentRow = ctx.form.Grid.FixedRows();
  ctx.fields.CurrentCol = 0;
  storing.StoreStartStation();
}

void Run::ShowRunning() {
  Grid& grid = ctx.form.Grid;
  grid.SetSelectionMarks(false);
  ctx.rooms.platform.shell.SetFocus(grid);
  ctx.rooms.platform.shell.BringToFront(grid);
  layout.CoverTabs();
  SetButtons(false, true, true);
  SetMenusEnabled(false);
  layout.Resize();
}

void Run::Pause_Run() {
  if (!ctx.fields.BusyGuard)
    return;
  const RunCommand command(ctx.fields);
  Grid& grid = ctx.form.Grid;
  grid.SetRow(ctx.fields.CurrentRow);
  grid.SetCol(0); // where the logic is too, so that the next tick sees no change of cell
  grid.SetColSel(ctx.rooms.setup.ObsCount());
  grid.SetSelectionMarks(true);
  ctx.rooms.platform.shell.SetFocus(grid);
  SetButtons(true, false, true);
  ctx.Flags().RunState = RunStates::Paused;
  if (!ctx.Flags().FromLink)
    ctx.Send("CTRL PAUSE");
}

// Also reached while running, where it repeats its two lines: meant so.
void Run::Resume_Run() {
  ctx.fields.CurrentRow = ctx.form.Grid.FixedRows();
  ctx.fields.CurrentCol = 0;
  grids.Load_RowValues();
  ctx.form.Grid.SetCol(0);
  ctx.form.Grid.SetSelectionMarks(false);
  SetButtons(false, true, true);
  if (!ctx.Flags().FromLink) {
    ctx.Send("CTRL START");
    ctx.Send("STATUS START");
  }
  if (!ctx.fields.ending) // an exit in these sends has ended the run
    ctx.Flags().RunState = RunStates::Running;
}

// Tests the guard and leaves it: a cleared one would keep its own Stop_Run out.
void Run::Stop_FromPause() {
  if (!ctx.fields.BusyGuard)
    return;
  layout.UncoverTabs();
  layout.Resize();
  ctx.fields.CurrentRow = ctx.form.Grid.FixedRows();
  ctx.fields.CurrentCol = 0;
  grids.Load_RowValues();
  Stop_Run();
}

// What the link says within the sends is heard behind it all: a boundary would lie behind the closing station, and an
// order that answers the stop, as a close does, needs a program at rest.
void Run::Stop_Run() {
  if (!ctx.fields.BusyGuard)
    return;
  const SocketProp::Hold later(ctx.rooms.socket);
  const RunCommand command(ctx.fields);
  if (!ctx.Flags().FromLink) {
    ctx.Send("CTRL STOP " + WireNumber(ctx.Position().KeyStation.Default()));
    ctx.Send("STATUS STOP " + WireNumber(ctx.Position().KeyStation.Default()));
    if (ctx.Flags().RunState == RunStates::Idle) // the close box in these sends has done all that follows
      return;
  }
  layout.UncoverTabs();
  layout.Resize();
  ctx.form.Grid.SetSelectionMarks(false);
  SetButtons(true, false, false);
  if (ctx.Flags().DataFileOpen)
    StoreRows();
  ctx.form.Texts8.SetText(ctx.Position().DmiStation.Text());
  ctx.buffer.Clear();
  SetMenusEnabled(true);
  grids.ResetValues();
  RestoreNumLock();
  ctx.fields.heldDmi = 0;
  ctx.Flags().RunState = RunStates::Idle;
}

// The running step ends here and now. Bottom row first, so that the oldest is stored first.
void Run::StoreRows() {
  const RowBuffer& rows = ctx.buffer;
  if (GridRow* running = ctx.buffer.At(rows.Top())) {
    running->station = ctx.Position().KeyStation.FiledValue();
    running->time = ctx.rooms.platform.clock.Now();
    running->fix = ctx.State().gps.fix;
  }
  for (int layout = rows.Bottom(); layout >= rows.Top(); --layout)
    storing.Flush_Row(*rows.At(layout));
  ctx.rooms.dataFiles.EditSession();
}

void Run::StopAndClose() {
  ctx.fields.ending = true;
  ctx.form.IdleTimer.SetRunning(false);
  grids.FinishRow();
  if (ctx.Flags().RunState != RunStates::Idle) {
    ctx.fields.BusyGuard = true; // also from inside a command: it lets go when it comes back from its pump
    Stop_Run();
  } else if (ctx.fields.starting) {
    CancelStart();
  }
  if (ctx.Flags().DataFileOpen)
    fileMenu.mnuClose_Click();
}

// A start that has not come to its end has stored nothing.
void Run::CancelStart() {
  ctx.buffer.Clear();
  RestoreNumLock();
}

// Whatever way the start or the run has come to its end. A start that had not looked at the key yet has not moved it.
void Run::RestoreNumLock() {
  const auto before = std::exchange(ctx.fields.NumLockAtStart, std::nullopt);
  if (before && asking.NumLockFrozen())
    asking.Set_NumLock(*before);
}

void Run::SetButtons(bool play, bool pause, bool stop) {
  ToolBar& bar = ctx.form.tbControlBar;
  bar.SetButtonEnabled("play", play);
  bar.SetButtonEnabled("pause", pause);
  bar.SetButtonEnabled("stop", stop);
}

void Run::SetMenusEnabled(bool on) {
  ctx.form.mnuFile.SetEnabled(on);
  ctx.form.mnuSetup.SetEnabled(on);
}

} // namespace trekor
