// What the subjects of the run share: the rooms they work with, the form, its own fields and the rows that have not
// been stored yet. Built once by Measurements and handed down by reference; it outlives them all.
#pragma once

#include "collection/MeasurementsForm.h"
#include "collection/Rooms.h"
#include "collection/RowBuffer.h"

#include <cstdint>
#include <optional>

namespace trekor {

struct RunFields {
  // True when the form can take a run command. A tick heals it, but only when no command is on the stack: a start waits
  // two seconds with ticks and link messages running inside, and its own echo must not begin a second start there.
  bool BusyGuard = true;
  int commandsOnStack = 0;
  bool starting = false;   // Start_Run is on the stack, RunState still Idle
  bool asking = false;     // the new-file form is up, or has gone for a file of the link and its showing ends soon
  bool preparing = false;  // Prepare_File is on the stack, the file not yet open
  bool leaveLater = false; // an exit came in meanwhile: the next tick carries it out
  bool closing = false;    // mnuClose_Click is on the stack
  bool loading = false;    // the form load is on the stack: keys find nothing to act on yet
  bool ending = false;     // the way out has begun: whatever returns from a pump now must let go
  bool rowOnStack = false; // a grid row is being made or stored; keys and boundaries wait for it
  int heldDmi = 0;         // "DMI" messages that came meanwhile
  bool IdleStarted = false;
  // The program moves the grid's cell itself.
  bool GridBusy = false;
  int CurrentRow = 0, CurrentCol = 0;
  int GridDepth = 10;
  bool AwaitValue = false; // the next key is the value of CurrentObs
  int CurrentObs = 0;
  std::optional<bool> NumLockAtStart; // nothing while no start has saved it
  std::int32_t LastStationID = 0;     // the last step station that was stored in this file; 0 none
  double NextBarTime = 0, NextSlowTime = 0;
  bool KeyFormsHidden = false;
  bool gridCovers = false; // the grid covers the tabs, as it does in a run
  int FocusIndex = -1;     // the box of Texts that has the focus
};

struct RunContext {
  MeasurementsForm& form;
  RunRooms rooms;
  RunFields fields{};
  RowBuffer buffer{form.Grid};

  ProgramState& State() const { return rooms.state; }
  RunFlags& Flags() const { return rooms.state.run; }
  Positions& Position() const { return rooms.state.position; }
  void Pump() const { rooms.platform.pump.ProcessEvents(); }
  void Send(const std::string& line) const { rooms.socket.SendData(line); }
  void PumpAndWait(double seconds) const { rooms.socket.WaitSeconds(seconds); }
};

// A run command while it works: the guard is cleared and set again on every way out of the outermost one.
class RunCommand {
public:
  explicit RunCommand(RunFields& fields) : f(fields) {
    ++f.commandsOnStack;
    f.BusyGuard = false;
  }
  ~RunCommand() { f.BusyGuard = --f.commandsOnStack == 0; }
  RunCommand(const RunCommand&) = delete;
  RunCommand& operator=(const RunCommand&) = delete;

private:
  RunFields& f;
};

// A flag that is up while something works.
class WhileSet {
public:
  explicit WhileSet(bool& held) : flag(held), before(held) { flag = true; }
  ~WhileSet() { flag = before; }
  WhileSet(const WhileSet&) = delete;
  WhileSet& operator=(const WhileSet&) = delete;

private:
  bool& flag;
  bool before;
};

} // namespace trekor
