// Where the run and the life of the program stand: which operations are on the stack right now. They all pump, so that
// a key, a click or a line of the link can come in the middle of each. Whoever acts on one asks here first, and
// whatever returns from a pump asks whether the way out has begun meanwhile.
#pragma once

#include "platform/Pump.h"
#include "state/ProgramState.h"

namespace trekor {

// A flag that is up while something works. Afterwards it is what it was: operations lie inside one another.
class [[nodiscard]] WhileSet {
public:
  explicit WhileSet(bool& flag) : flag(flag), before(flag) { flag = true; }
  ~WhileSet() { flag = before; }
  WhileSet(const WhileSet&) = delete;
  WhileSet& operator=(const WhileSet&) = delete;

private:
  bool& flag;
  bool before;
};

class RunStage {
public:
  RunStage(RunFlags& flags, Pump& pump) : flags(flags), pump(pump) {}

  // The state of the run. It changes here and nowhere else.
  bool Idle() const { return flags.RunState == RunStates::Idle; }
  bool Running() const { return flags.RunState == RunStates::Running; }
  bool Paused() const { return flags.RunState == RunStates::Paused; }
  bool InRun() const { return !Idle(); }
  void Enter(RunStates next) { flags.RunState = next; }
  bool FileOpen() const { return flags.DataFileOpen; }

  // Lets everything in that waits. What was true before need not be true afterwards.
  void LetEventsIn() const { pump.ProcessEvents(); }

  // A run command while it works. The form takes no other until the outermost one has ended, except on the way out,
  // which must stop the run also from inside a command: that one lets go when it comes back from its pump. A start
  // waits two seconds with ticks and link messages running inside, and its own echo must not begin a second start
  // there.
  class [[nodiscard]] Command {
  public:
    explicit Command(RunStage& stage) : stage(stage) {
      ++stage.commandsOnStack;
      stage.BusyGuard = false;
    }
    ~Command() { stage.BusyGuard = --stage.commandsOnStack == 0; }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

  private:
    RunStage& stage;
  };
  bool TakesCommand() const { return BusyGuard; }
  void ForceCommand() { BusyGuard = true; }

  // Start_Run is on the stack, the run still idle.
  WhileSet Start() { return WhileSet(starting); }
  bool Starting() const { return starting; }
  // Nobody has begun a run: the boxes and the direction are the operator's.
  bool AtRest() const { return Idle() && !starting; }

  // The new-file form is up, or has gone for a file of the link and its showing ends soon.
  WhileSet Ask() { return WhileSet(asking); }
  bool Asking() const { return asking; }

  // Prepare_File is on the stack, the file not yet open. The rows of a run wait: one that left the grid now would find
  // no file.
  WhileSet Prepare() { return WhileSet(preparing); }
  bool Preparing() const { return preparing; }

  // mnuClose_Click is on the stack.
  WhileSet Close() { return WhileSet(closing); }
  bool Closing() const { return closing; }

  // The form load is on the stack: keys find nothing to act on yet.
  WhileSet Load() { return WhileSet(loading); }
  bool Loading() const { return loading; }

  // A grid row is being made; keys and boundaries wait for it, and so they do for a file that is being made.
  WhileSet MakeRow() { return WhileSet(rowOnStack); }
  bool RowsWait() const { return rowOnStack || preparing; }
  // The boundary tests of the positions that came meanwhile are made up for one by one. True: one was held and is due.
  void HoldDmi() { ++heldDmi; }
  bool TakeHeldDmi();
  void DropHeldDmi() { heldDmi = 0; }

  // The way out has begun: whatever returns from a pump now must let go.
  void BeginEnding() { ending = true; }
  bool Ending() const { return ending; }
  // Whether an exit may be carried out now. One that comes while a file is being made is due in the tick behind it.
  bool MayLeave();
  bool LeaveIsDue() const { return leaveLater && !preparing; }

private:
  RunFlags& flags;
  Pump& pump;
  bool BusyGuard = true; // the form can take a run command
  int commandsOnStack = 0;
  bool starting = false, asking = false, preparing = false, closing = false, loading = false, ending = false;
  bool leaveLater = false;
  bool rowOnStack = false;
  int heldDmi = 0;
};

inline bool RunStage::TakeHeldDmi() {
  if (heldDmi == 0 || RowsWait())
    return false;
  --heldDmi;
  return true;
}

inline bool RunStage::MayLeave() {
  leaveLater = preparing;
  return !preparing;
}

} // namespace trekor
