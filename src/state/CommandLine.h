// Reads the command line with which the control program starts this one: the name of the per-vehicle database, then
// switches that are found anywhere in the line, as substrings, in any case.
#pragma once

#include "state/ProgramState.h"

#include <string_view>

namespace trekor {

// Fills both records. False when the line is blank: the caller shows a message and ends the program.
bool ReadCommandLine(std::string_view line, CommandLineFlags& flags, RunFlags& run);

} // namespace trekor
