// A long run: a million steps through the whole logic, keys among them; memory and the time of a step must not grow.
// The file is left out by default, as a million synchronised rows measure the disk; with a file fewer steps are driven.
//
//   trekor_run_bench [STEPS]
#include "program/Program.h"
#include "support/FakePlatform.h"
#include "support/ReleasedTree.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace trekor;
using Seconds = std::chrono::duration<double>;

long ResidentKb() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind("VmRSS:", 0) == 0)
      return std::atol(line.c_str() + 6);
  return 0;
}

// A play only puts the paths into a queue; the look for the file is made on the player's own thread.
class Deaf : public SoundPlayer {
public:
  void Open_SoundDevice() override {}
  void Close_SoundDevice() override {}
  int Devices() override { return 0; }
  void Play(const std::vector<std::string>& paths) override { asked = paths; }

private:
  std::vector<std::string> asked;
};

class LongRun {
public:
  explicit LongRun(bool withFile) {
    tests::InstallRelease(fakes.drives, TREKOR_SHARE);
    started = program.Main();
    if (withFile)
      Say("FILE PATH C:\\Roads\r\nFILE NAME LONG\r\nFILE OPEN\r\n");
    Say("SET DMI 0 I 0\r\nCTRL PREPARE 0\r\nCTRL START\r\n");
  }
  bool Running() { return started && program.ForTests().state.run.RunState == RunStates::Running; }

  // One boundary a step and a key in every fourth; what the fakes record is thrown away on the way.
  double Drive(int steps) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < steps; ++i) {
      ++tenths;
      Say("DMI " + std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "\r\n");
      if (i % 4 == 0)
        program.ForTests().measurements.Subjects().formKeys.Form_KeyDown('A', 0);
      program.ForTests().form.IdleTimer.Fire();
      fakes.shell.acts.clear();
    }
    return Seconds(std::chrono::steady_clock::now() - begin).count() / steps * 1e6;
  }

private:
  void Say(const std::string& lines) {
    fakes.socket.DeliverNow(lines);
    fakes.pump.ProcessEvents();
  }
  tests::FakePlatform fakes;
  Deaf sound;
  Platform platform{fakes.clock,  fakes.pump,    fakes.socket, sound,       fakes.keyboard,
                    fakes.drives, fakes.process, fakes.shell,  fakes.screen};
  Program program{platform};
  bool started = false;
  long long tenths = 0; // of a kilometre: one step each
};

void Measure(const char* what, bool withFile, int first, int all) {
  LongRun run(withFile);
  if (!run.Running()) {
    std::printf("%s: the run did not start\n", what);
    return;
  }
  const double early = run.Drive(first);
  const long before = ResidentKb();
  const double late = run.Drive(all - first);
  const long after = ResidentKb();
  std::printf(
      "%-14s %8d steps  %7.2f us a step at first, %7.2f later, ratio %.2f   memory %ld KB then %ld KB, ratio %.3f\n",
      what, all, early, late, late / early, before, after, static_cast<double>(after) / static_cast<double>(before));
}

} // namespace

int main(int argc, char** argv) {
  const int steps = argc > 1 ? std::atoi(argv[1]) : 1000000;
  Measure("without a file", false, steps / 10, steps);
  Measure("with a file", true, steps / 500, steps / 50);
  return 0;
}
