#include "collection/Simulation.h"

namespace trekor {

namespace {
constexpr double SimulatedMove = 0.001; // km
} // namespace

void Simulation::Move() {
  if (!state.run.Simulator || stage.Paused() || state.run.DmiReceived)
    return;
  Positions& at = state.position;
  at.DmiStation.SetDefault(at.DmiStation.Default() + (at.DmiIncreasing ? SimulatedMove : -SimulatedMove));
  ++at.Heard;
  news.SendDmi();
  stepping.Check_DMI();
}

} // namespace trekor
