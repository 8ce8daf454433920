// The records of the comma file. Each writer has a sample line above it; docs/comma-file.md tells the fields.
#pragma once

#include "datafiles/CommaOutput.h"
#include "datafiles/DataFile.h"
#include "state/ProgramState.h"
#include "store/Cursor.h"
#include "values/DistanceUnits.h"
#include "values/GpsFix.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trekor {

// What a comma file takes from the state: who writes it, the units, its name, and the stations of the run that are
// written in its head.
struct CommaSources {
  const UnitSettings& units;
  const People& people;
  const std::string& testSetupName;
  Positions& position;
  FileNaming& file;
};
inline CommaSources CommaSourcesOf(ProgramState& state) {
  return {state.units, state.people, state.TestSetupName, state.position, state.file};
}

// What is kept from one comma file to the next in the same run of the program.
struct CommaTable {
  int CommaObsCount = 0; // observations of the session that was written last
  // By place, from 1; entry 0 is for registrations without an observation.
  std::vector<std::int16_t> ObsCodes = std::vector<std::int16_t>(71);
  std::vector<std::string> ObsNames = std::vector<std::string>(71);
  // The digit of each value of the present stretch, 0 to 9.
  std::vector<char> ObsValues = std::vector<char>(71);
  FileUnit unit;
  void Hold(std::size_t place); // makes room for that place
};

// A station of the walk: kilometres and the fix.
struct CommaPosition {
  double km = 0;
  GpsFix fix;
};

// The digit of a registration in a point record: its number rounded and brought to 0 to 9; 0 for a text that is no
// 16-bit number.
int PointDigit(std::string_view regData);
// The same in a stretch, but what comes to 0 without being empty or "0" (a word, "0.0", 40000) gives 1.
int SegmentDigit(std::string_view regData);

// Writes records with the patterns of one file.
class CommaRecords {
public:
  CommaRecords(CommaOutput& out, CommaTable& table, const CommaSources& sources);

  // False when the session's observations could not be read to their end.
  bool WriteCommaHeader(const SessionRow& session, const Database& database);
  void WriteGpsRecord(const GpsFix& fix); // nothing where there is no position
  // One registration of the row on which the cursor stands; see RegistrationQuery for its fields.
  // False when its observation is unknown to the session and nothing was written.
  bool WritePointRecord(const Cursor& registration, const CommaPosition& here);
  void WriteSegmentRecord(const CommaPosition& from, const CommaPosition& to);
  void WriteLastRecord();

private:
  void WriteVersion(const SessionRow& session);
  void WriteUnits();
  void WriteDate(const SessionRow& session);
  void WriteStations();
  void WriteRoad(const SessionRow& session);
  bool WriteObservations(const SessionRow& session, const Database& database);
  void WriteTemplates();
  void StationField(double km);

  CommaOutput& out;
  CommaTable& table;
  const CommaSources& sources;
  Station scale; // kilometres into file units
  NumberPattern StationFormat, code{"##0"}, digit{"0"}, gpsTime{"000000"}, latitude{"##0.0000000"},
      longitude{"###0.0000000"}, height{"###0.0"}, satellites{"#0"};
};

// Fields of the walks, by place.
constexpr const char* RegistrationQuery =
    "SELECT FromID, ToID, ObsCode, ParCode, RegData FROM Registrations ORDER BY RegID";
enum RegistrationPlace { RegFromID, RegToID, RegObsCode, RegParCode, RegRegData };

} // namespace trekor
