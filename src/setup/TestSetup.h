// The running test setup: its observations, one for each grid column, and the table from key codes to them.
#pragma once

#include "setup/ClassObservation.h"
#include "setup/SetupDatabase.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace trekor {

// True for the keys that may carry an observation: F5 to F10, Space, digits, letters, and of the keypad the digits and
// the five signs.
bool Valid_KeyCode(int code);

class TestSetup {
public:
  TestSetup(ProgramState& state, SetupDatabase& database, const ImageList& pictures);

  // Loads the setup TestSetupID; fields that fail are skipped, and with nothing to load ObsCount is 0. False when it
  // can't be read: the setup loaded before stays.
  bool Load_TestSetup();
  int ObsCount() const { return obsCount; } // 0 while Load_TestSetup runs
  // 1 to ObsCount.
  ClassObservation& Observations(int i) { return *observations.at(static_cast<std::size_t>(i)); }
  const ClassObservation& Observations(int i) const { return *observations.at(static_cast<std::size_t>(i)); }
  bool Has(int i) const { return i >= 1 && i <= obsCount; }
  // Adds an observation that is in no database, for tests and measurements.
  ClassObservation& AddObservation();

  static constexpr int LastKeyCode = 200;
  // The observation of a key code 0 to 200; -1 when the key carries none, and for every other code.
  int KeyToObs(int code) const;
  void SetKeyToObs(int code, int obs);
  void Clear_SetupKey(int i) { Store_SetupKey(-1, i); }
  void Store_SetupKey(int code, int i);

private:
  void ReleaseSetup();
  void AddRow(const Recordset& row);

  ProgramState& state;
  SetupDatabase& database;
  const ImageList& pictures;
  int obsCount = 0;
  std::vector<std::unique_ptr<ClassObservation>> observations; // entry 0 stays empty
  std::array<std::int16_t, 202> keyToObs;                      // by key code + 1; entry 0 is unused
};

} // namespace trekor
