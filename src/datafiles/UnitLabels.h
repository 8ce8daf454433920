// The two labels that tell in which units a data file is or will be. They blink when these are others than expected.
#pragma once

#include "forms/Controls.h"

namespace trekor {

constexpr int BlinkMilliseconds = 333;

class UnitLabels {
public:
  UnitLabels(Label& units, Label& stations) : units(units), stations(stations) {}
  struct Filed {
    bool us = false;
    int stationUnit = 0;
    bool otherUnits = false, otherStations = false; // than expected
  };
  void Show(const Filed& filed);
  void Clear();
  void Blink(); // the other colour, every BlinkMilliseconds

private:
  void Paint();
  Label &units, &stations;
  Filed shown;
  bool bright = false;
};

} // namespace trekor
