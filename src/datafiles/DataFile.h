// A data file as its readers see it: what the export takes, and what the run's DataFiles builds on.
#pragma once

#include "platform/Clock.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <cstdint>
#include <memory>
#include <string>

namespace trekor {

// One row of Sessions, as read or as written.
struct SessionRow {
  std::int32_t SessionID = 0;
  std::string GUID, Program, Operator, Electronics, TestSetup, Units;
  LocalTime Date;
  std::string FacilityName, FacilityCode;
  int FacilityDirection = 0;
  std::string FacilityType;
  int FacilityLanes = 0;
  std::string SectionName, SectionCode;
  int SectionDirection = 0;   // saving keeps what reading left: 0 in a fresh run
  std::string SectionHeading; // the word of SectionDirection
  std::string District, Class, Start, End, Lane, LaneNumber;
  double StationMin = 0, StationMax = 0, SegmentSize = 0; // file units
  int StationDirection = 0;
};

// The recordsets go before their database.
struct DataFileHandles {
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> rsSessions, rsObservations, rsStations, rsRegistrations;
};

class DataFile : public DataFileHandles {
public:
  DataFile() = default;
  ~DataFile();
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;
  // Opens a file with its four tables, and closes the one that was open. False when it can't be opened or has not all
  // of them; none is open then. Readers of closed files open read-only and change nothing.
  bool Open(const std::string& nativePath, OpenMode mode);
  void CloseDataFile();
  void ReadSession(); // the current row of Sessions into `session`

  SessionRow session;
};

} // namespace trekor
