// What each incoming line means: verbs and keywords in, program state and run operations out.
#pragma once

#include "collection/Measurements.h"

#include <string_view>

namespace trekor {

class Dispatcher {
public:
  Dispatcher(ProgramState& state, Platform& platform, SocketProp& socket, Sections& sections,
             Measurements& measurements);
  // One whole line, trimmed, UTF-8. Runs to its end; may be entered again from a pump inside. What it needs of the line
  // is taken before anything can pump.
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
  Platform& platform;
  SocketProp& socket;
  Sections& sections;
  Measurements& measurements;
};

} // namespace trekor
