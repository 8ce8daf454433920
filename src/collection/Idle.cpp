#include "collection/Idle.h"

namespace trekor {

namespace {
constexpr double BarMilliseconds = 400, SlowMilliseconds = 800;
constexpr double SimulatedMove = 0.001; // km
} // namespace

// The timer rests meanwhile, so that slow ticks cannot pile up; a prompt that a key opens keeps it at rest.
void Idle::Idle_Tick() {
  ctx.form.IdleTimer.SetRunning(false);
  Tick();
  if (!ctx.fields.ending)
    ctx.form.IdleTimer.SetRunning(true);
}

void Idle::Tick() {
  auto& f = ctx.fields;
  if (f.commandsOnStack == 0)
    f.BusyGuard = true;
  f.IdleStarted = true;
  ctx.Pump(); // socket messages and keys get in here
  if (f.ending)
    return;
  if (ctx.Flags().RunState != RunStates::Idle)
    registrations.Process_Key();
  if (ctx.Flags().RunState == RunStates::Paused &&
      (ctx.form.Grid.Row() != f.CurrentRow || ctx.form.Grid.Col() != f.CurrentCol))
    grids.Grid_CellChanged();
  if (f.ending)
    return;
  auto& clock = ctx.rooms.platform.clock;
  if (clock.Milliseconds() >= f.NextBarTime) {
    stepping.RefreshStepBar();
    f.NextBarTime = clock.Milliseconds() + BarMilliseconds;
  }
  if (clock.Milliseconds() >= f.NextSlowTime) {
    SlowWork();
    f.NextSlowTime = clock.Milliseconds() + SlowMilliseconds;
  }
}

void Idle::SlowWork() {
  if (ctx.Flags().Simulator && ctx.Flags().RunState != RunStates::Paused && !ctx.Flags().DmiReceived)
    SimulateDMI();
  if (ctx.fields.ending)
    return;
  if (!ctx.fields.closing) // the caption then tells how far the comma file is
    feedback.SetCaption();
  WatchMinimise();
}

void Idle::SimulateDMI() {
  auto& at = ctx.Position();
  at.DmiStation.SetDefault(at.DmiStation.Default() + (at.DmiIncreasing ? SimulatedMove : -SimulatedMove));
  SendDmi(ctx.State(), ctx.rooms.socket);
  stepping.Check_DMI();
}

void Idle::WatchMinimise() {
  const bool minimised = ctx.form.WindowState() == WindowStates::Minimised;
  if (minimised == ctx.fields.KeyFormsHidden)
    return;
  ctx.fields.KeyFormsHidden = minimised;
  if (minimised)
    return keyPictures.Hide_KeyForms();
  ctx.form.SetWindowState(
      WindowStates::Minimised); // for a moment, or the floating windows would come up behind the form
  keyPictures.Show_KeyForms();
  ctx.form.SetWindowState(WindowStates::Normal);
}

} // namespace trekor
