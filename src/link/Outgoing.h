// What this program says on the link: numbers in wire form and the messages that more than one room sends.
#pragma once

#include "link/SocketProp.h"

#include <string>

namespace trekor {

// "NaN" for NaN; otherwise the decimal text with a leading blank when it is not negative.
std::string WireNumber(double number);
std::string WireSingle(float number); // kept beside it; no message sends a single yet
// A whole number as text with a leading blank when it is not negative, as the queries and SET DMI want it.
std::string WireInteger(long long number);

// "SET UNITS SI KM DEG", 0.3 s, "FILE UNITS SI KM".
void SendUnits(const ProgramState& state, SocketProp& socket);
// "SET DMI  0 1  12.35": the set value, the direction, the position.
void Set_DMI(const ProgramState& state, SocketProp& socket);
// "DMI  12.35", from the simulation.
void SendDmi(const ProgramState& state, SocketProp& socket);

} // namespace trekor
