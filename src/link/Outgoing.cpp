#include "link/Outgoing.h"

#include "values/DistanceUnits.h"
#include "values/NumberText.h"

namespace trekor {
namespace {

constexpr int Degrees = 0; // of GeographicFormat

// Where a minus sign would stand a positive number has a blank, so two blanks follow the word before it.
std::string Signed(std::string text) {
  return text.starts_with('-') ? text : text.insert(0, 1, ' ');
}

std::string UnitWords(bool us, int stationUnit) {
  const std::string word = UnitWord(stationUnit);
  return (us ? " US" : " SI") + (word.empty() ? "" : " " + word);
}

} // namespace

// Numbers up to the sentinel, and an IEEE not-a-number, are no value.
std::string WireNumber(double number) {
  return number > NaN ? Signed(NumberToText(number)) : "NaN";
}

std::string WireSingle(float number) {
  return number > NaNSingle ? Signed(SingleToText(number)) : "NaN";
}

std::string WireInteger(long long number) {
  return Signed(std::to_string(number));
}

// SET UNITS SI KM DEG
// FILE UNITS SI KM
void SendUnits(const ProgramState& state, SocketProp& socket) {
  const bool degrees = state.options.GeographicFormat == Degrees; // the other formats have words that are never sent
  socket.SendData("SET UNITS" + UnitWords(state.units.UnitsUS, state.units.StationUnit) + (degrees ? " DEG" : ""));
  socket.WaitSeconds(0.3);
  socket.SendData("FILE UNITS" + UnitWords(state.units.FileUnitsUS, state.units.FileStationUnit));
}

// SET DMI  0 1  12.35
void Set_DMI(const ProgramState& state, SocketProp& socket) {
  const Positions& position = state.position;
  socket.SendData("SET DMI " + WireInteger(position.DmiSetValue) + (position.DmiIncreasing ? " 1" : " -1") + " " +
                  WireNumber(position.DmiStation.Default()));
}

// DMI  12.35
void SendDmi(const ProgramState& state, SocketProp& socket) {
  socket.SendData("DMI " + WireNumber(state.position.DmiStation.Default()));
}

} // namespace trekor
