#include "collection/Idle.h"

namespace trekor {

namespace {
constexpr double BarMilliseconds = 400, SlowMilliseconds = 800;
constexpr double SimulatedMove = 0.001; // km
constexpr int Normal = 0, Minimised = 1;
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
  if (ctx.run().RunState != 0)
    keys.Process_Key();
  if (ctx.run().RunState == 2 && (ctx.form.Grid.Row() != f.CurrentRow || ctx.form.Grid.Col() != f.CurrentCol))
    grids.Grid_CellChanged();
  if (f.ending)
    return;
  auto& clock = ctx.rooms.platform.clock;
  if (clock.Milliseconds() >= f.NextBarTime) {
    stepping.Refresh_StepBar();
    f.NextBarTime = clock.Milliseconds() + BarMilliseconds;
  }
  if (clock.Milliseconds() >= f.NextSlowTime) {
    Slow_Work();
    f.NextSlowTime = clock.Milliseconds() + SlowMilliseconds;
  }
}

void Idle::Slow_Work() {
  if (ctx.run().Simulator && ctx.run().RunState != 2 && !ctx.run().DmiReceived)
    Simulate_DMI();
  if (ctx.fields.ending)
    return;
  if (!ctx.fields.closing) // the caption then tells how far the comma file is
    feedback.SetCaption();
  Watch_Minimise();
}

void Idle::Simulate_DMI() {
  auto& at = ctx.position();
  at.DmiStation.SetDefault(at.DmiStation.Default() + (at.DmiIncreasing ? SimulatedMove : -SimulatedMove));
  SendDmi(ctx.state(), ctx.rooms.socket);
  stepping.Check_DMI();
}

void Idle::Watch_Minimise() {
  const bool minimised = ctx.form.WindowState() == Minimised;
  if (minimised == ctx.fields.KeyFormsHidden)
    return;
  ctx.fields.KeyFormsHidden = minimised;
  if (minimised)
    return pictures.Hide_KeyForms();
  ctx.form.SetWindowState(Minimised); // for a moment, or the floating windows would come up behind the form
  pictures.Show_KeyForms();
  ctx.form.SetWindowState(Normal);
}

} // namespace trekor
