// What each incoming line means: verbs and keywords in, program state and run operations out.
#pragma once

#include "collection/Measurements.h"

#include <string_view>

namespace trekor {

class Dispatcher {
public:
  Dispatcher(ProgramState& state, Platform& platform, SocketProp& socket, Sections& sections, Measurements& measurements);
  // One whole line, trimmed, UTF-8. Runs to its end; may be entered again from a pump inside. What it needs of the line is
  // taken before anything can pump.
  void Dispatch(std::string_view line);

private:
  ProgramState& state;
  Platform& platform;
  SocketProp& socket;
  Sections& sections;
  Measurements& measurements;
};

} // namespace trekor
