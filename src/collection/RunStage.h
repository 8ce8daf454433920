// The state of the run, and which operations are on the stack. They all pump, so a key, a click or a line of the link
// can come in the middle of each: every operation asks here before it begins, and after a pump whether the program is
// being closed.
#pragma once

#include "platform/Pump.h"
#include "state/ProgramState.h"

namespace trekor {

// Sets a flag for the life of the object; then the flag is what it was, as operations nest.
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

  // Lets pending events run. What was true before need not be true afterwards.
  void LetEventsIn() const { pump.ProcessEvents(); }

  // A run command at work. The form takes no other one until the outermost has ended: a start waits two seconds with
  // ticks and link messages running inside, and its own echo must not begin a second start. Closing the program stops
  // the run all the same (ForceCommand), and the command below ends when its pump returns.
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
  // No run and no start: the boxes and the direction are the operator's.
  bool AtRest() const { return Idle() && !starting; }

  // Station and file of a start are settled, and it is being announced: the run begins with them within two seconds.
  WhileSet Announce() { return WhileSet(announced); }
  bool Announced() const { return announced; }

  // A form on data files is shown, or was hidden for a file of the link and its call has not returned yet.
  WhileSet Ask() { return WhileSet(asking); }
  bool Asking() const { return asking; }

  // A file is being made, opened again or exported. The rows of a run wait: one stored now would find no file.
  WhileSet Prepare() { return WhileSet(preparing); }
  bool Preparing() const { return preparing; }

  // mnuClose_Click is on the stack.
  WhileSet Close() { return WhileSet(closing); }
  bool Closing() const { return closing; }

  // The form load is on the stack: keys find nothing to act on yet.
  WhileSet Load() { return WhileSet(loading); }
  bool Loading() const { return loading; }

  // A grid row is being made; keys and boundaries wait for it, and for a file that is being made.
  WhileSet MakeRow() { return WhileSet(rowOnStack); }
  bool RowsWait() const { return rowOnStack || preparing; }
  // Positions that came meanwhile are tested for boundaries later, one by one. TakeHeldDmi is true when one is due.
  void HoldDmi() { ++heldDmi; }
  bool TakeHeldDmi();
  void DropHeldDmi() { heldDmi = 0; }

  // The program is being closed: what returns from a pump must end.
  void BeginEnding() { ending = true; }
  bool Ending() const { return ending; }
  // Whether an exit may be carried out now. One that comes while a file is being made is carried out by the tick after
  // it.
  bool MayLeave();
  bool LeaveIsDue() const { return leaveLater && !preparing; }
  bool LeaveIsWanted() const { return leaveLater; } // what is being prepared in several steps should end

private:
  RunFlags& flags;
  Pump& pump;
  bool BusyGuard = true; // the form can take a run command
  int commandsOnStack = 0;
  bool starting = false, announced = false, asking = false, preparing = false, closing = false, loading = false,
       ending = false;
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
