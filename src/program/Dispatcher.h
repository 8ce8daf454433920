// What each line of the control program means: changes the program state or calls an operation of the run.
#pragma once

#include "collection/RunSubjects.h"

#include <string_view>

namespace trekor {

// What the link may order of the run.
struct RunOrders {
  explicit RunOrders(RunSubjects& run)
      : formKeys(run.formKeys), stepping(run.stepping), stepBoxes(run.stepBoxes), fileMenu(run.fileMenu),
        wayOut(run.wayOut), options(run.rooms.optionsDialog) {}
  FormKeys& formKeys;
  Stepping& stepping;
  StepBoxes& stepBoxes;
  FileMenu& fileMenu;
  WayOut& wayOut;
  Options& options;
};

class Dispatcher {
public:
  Dispatcher(ProgramState& state, Drives& drives, SocketProp& socket, Sections& sections, const RunOrders& run);
  // One whole line, trimmed, UTF-8. An operation may pump, and another line may then be dispatched inside this one;
  // `line` is dead after a pump. Unknown lines are ignored.
  void Dispatch(std::string_view line);

private:
  void Dmi(std::string_view message);
  void Ctrl(std::string_view message);
  void CtrlWord(const std::string& word, std::string_view rest);
  void Set(std::string_view message);
  void SetDmi(std::string_view message);
  void File(std::string_view message);
  void FileUnits(std::string_view message);
  void Facility(std::string_view message);
  void Section(std::string_view message);

  ProgramState& state;
  Drives& drives;
  SocketProp& socket;
  Sections& sections;
  RunOrders run;
};

} // namespace trekor
