// The data file of a job: naming, creating, opening, its rows, closing. At most one is open.
//
// Durability: while a file is open for collection it is locked exclusively and written through a log with full
// synchronisation, one transaction for each grid row that is flushed. Killing the program at any moment leaves a file
// with every row that had left the buffer, and no half row.
#pragma once

#include "datafiles/DataFile.h"
#include "datafiles/RowKind.h"
#include "platform/Platform.h"
#include "setup/TestSetup.h"
#include "state/ProgramState.h"
#include "values/GpsFix.h"

#include <cstdint>
#include <string>
#include <vector>

namespace trekor {

// True when a data file of this path would replace one of the program's own databases, or lie in their folders.
bool BelongsToProgram(const ProgramState& state, Drives& drives, const std::string& path);

// The fields of a station that the caller gives.
struct NewStation {
  RowKind StationType = RowKind::Step;
  double FileStation = 0; // file units, with the digits that the file keeps (Station::FiledValue)
  LocalTime Time;
  GpsFix fix;
};

// The data file of a run. It takes the whole state, as it uses nearly every record of it.
class DataFiles : public DataFile {
public:
  DataFiles(ProgramState& state, Platform& platform);
  // At the start: updates the template of data files. False: the program ends.
  bool InitDataFiles();

  // Makes DataPath\DataName.mdb from the template, with a session and its observations. An existing file of the name is
  // replaced, but never the open one and never a database of the program. The file that was open is closed when the new
  // one has its session; on failure it stays open and the state names it again. True when the new file is open. Storing
  // pictures lets events run: until it returns nothing may be stored or closed.
  bool CreateDataFile(const TestSetup& setup);
  // Opens the existing file DataPath\DataName.mdb for more collection, with a new session. True when it is open. When
  // false, either the name was refused and the open file is still open, or the opening failed and none is.
  bool ReopenDataFile(const TestSetup& setup);
  // Opens DataFilePath.
  bool OpenDataFile(OpenMode mode = OpenMode::ExclusiveDurable);

  void NewSession();
  void EditSession();
  void AddObservation(const ClassObservation& observation);
  std::int32_t AddStation(const NewStation& station);
  void AddRegistration(std::int32_t fromID, std::int32_t toID, int obsCode, int parCode, const std::string& regData);
  // Around the rows of one flushed grid row: they reach the disk together, with one synchronisation.
  void BeginRow();
  bool EndRow(); // false: no station of the row was stored

private:
  std::string PathOfNames() const;
  bool IsOpen(const std::string& path) const;
  bool InstallTemplate(const std::string& path);
  bool BeginFile(const std::string& path, const TestSetup& setup);
  bool StartSession(const TestSetup& setup);
  void AddPicture(const std::string& field, const std::string& picture);
  void SaveSession();
  void RefillSession();
  void RefillRoad(const FacilityRecord& road);

  ProgramState& state;
  Platform& platform;
  Station RecordStation; // through it a position becomes file units
  bool preparing = false;
  bool pictureFailed = false;     // of this session, and the operator was told
  std::string openPath, openName; // DataPath and DataName of the open file; the link names the next one over them
  // StationID and the session's limits when the row began, and whether its rows are one transaction.
  struct {
    std::int32_t station = 0;
    double lowest = 0, highest = 0; // km
    bool together = false;
  } before;
  // Places of the fields that every row sets, looked up when the file is opened.
  std::vector<int> stationPlaces, registrationPlaces;
};

} // namespace trekor
