// The shared state of the program: plain fields in small records, each written by the room that decides it. One thread,
// no locks. A class that needs one record takes that one. Paths have drive letters and backslashes.
//
// While an operation pumps, a line of the link can be carried out: FromLink is therefore read afresh at each test.
#pragma once

#include "platform/Clock.h"
#include "values/GpsFix.h"
#include "values/Station.h"
#include "values/UnitSettings.h"
#include "values/UnitValues.h"

#include <cstdint>
#include <string>

namespace trekor {

// Filled once at the start.
struct FolderPaths {
  std::string AppPath, ParentPath, RootFolder, VdbFolder, MdbFolder, SharedMdbFolder;
  std::string GraphicsPath, VideoPath; // these and the Audio ones end with "\"
  std::string AudioLanguagePath, AudioTonesPath, AudioSystemPath, AudioEnglishPath;
  bool HardwareCreated = false; // the program's own database was missing at the start
  std::string ComputerName, AppVersion, programName;
  float WinVersion = 0; // compared with 2006 only
};

struct CommandLineFlags {
  std::string HardwareName; // first word: the per-vehicle database
  std::string CmdDrive;     // one letter kept out of the backup drives
  float CmdBValue = 0;
  bool CmdKlv7 = false, CmdR = false, CmdX = false, FormEditOff = false;
  std::string Language = "English", CapColumn = "CapEnglish", TipColumn = "TipEnglish", HelpColumn = "HelpEnglish";
};

enum class RunStates { Idle, Running, Paused };

// Who sits at the program, by the switches of the command line. From Administrator on forms can be edited.
namespace levels {
constexpr int Operator = -1, User = 0, Administrator = 1, Developer = 9;
}

struct RunFlags {
  RunStates RunState = RunStates::Idle; // written by the run alone
  bool FromLink = false;                // an incoming message is being carried out
  bool DmiReceived = false;             // set by the first "DMI", ends the simulation
  bool Simulator = false;
  int UserLevel = levels::User;
  bool DataFileOpen = false;
};

// Kilometres inside.
struct Positions {
  explicit Positions(const UnitSettings& units);
  Station PreviousStation, KeyStation, NextStation, StepSize, StationMaximum, StationMinimum;
  Velocity SpeedValue; // one of the values that a start makes; kept though nothing reads it
  Station DmiStation;
  bool DmiIncreasing = false;
  int DmiSetValue = 0;   // the first word of SET DMI, sent back as it came
  unsigned Heard = 0;    // positions of the link or simulated, counted to see whether they still come
  double DmiAtStart = 0; // DmiStation when the run was started
  double NextStepKm = 0, StepKm = 0;
};

// The last "GPS" message. The fields beside the fix are stored and read by nothing.
struct GpsMessage {
  GpsFix fix;
  float GpsField8 = 0;
  int GpsField9 = 0, GpsField10 = 0;
  bool GpsSeen = false, GpsFresh = false;
};

struct People {
  std::string OperatorName, DriverName, VehicleName;
};

// The current road and the stretch of it, from the link or the new-file form.
struct FacilityRecord {
  std::string FacilityName, FacilityCode, FacilityState, FacilityDistrict, FacilityCity, FacilityClass, FacilityMedian,
      FacilityEdge;
  int FacilityLanes = 0;
  std::string SectionName, SectionCode, SectionComment, SectionHeading, LaneNumber, Lane, SectionType, SectionSurface,
      SectionSpeed, SectionLength, SectionWidth, SectionStart, SectionEnd;
  double SectionTraffic = 0;
  int FacilityDirection = 0, StartingDirection = 0; // heading codes: 1 N, 2 S, 3 E, 4 W, 0 none
  std::string SessionDistrict, SessionClass;        // nothing sets these two: offices rely on their being empty
  std::string NetworkDb, SectionsPath;
};

// Where the data file is and what it is called.
struct FileNaming {
  std::string DataPath;   // folder; the link gives it as it likes, with a backslash at its end or without
  std::string BackupPath; // empty: no backup
  std::string DataName;   // without extension
  std::string DataFilePath, DataGuid;
  std::string AsciiName; // name of the last comma file, without folder and extension; never cleared
  std::int32_t SessionID = 0, StationID = 0;
  LocalTime LastCloseTime;
};

// The options in force, with the texts as stored. Check marks are 0 or 1 in the table and flags here.
struct OptionState {
  LocalTime OptionsDate;
  std::string OptionsUser, OptionUnits, OptionFileUnits;
  int DrivingSide = 0, GeographicFormat = 0;
  bool KeepMdb = false, WriteAscii = false;
  bool ErrorText = false, ErrorVoice = false, WarningText = false, WarningVoice = false;
  bool AssistanceText = false, AssistanceVoice = false, DataColVoice = false;
  std::int32_t TrayColor = 0;
  bool OptionsChanged = false; // in the options form, since it was opened last
};

struct DbVersion {
  int Major = 0, Minor = 0;
};

// The versions of the templates as the updates found them, for the about window.
struct DbVersions {
  DbVersion Program, Software, Messages, Observations, DataFile, Sections, HardWare;
};

struct ProgramState {
  ProgramState() : position(units) {}
  ProgramState(const ProgramState&) = delete;
  ProgramState& operator=(const ProgramState&) = delete;

  UnitSettings units;
  FolderPaths folders;
  CommandLineFlags command;
  RunFlags run;
  Positions position;
  GpsMessage gps;
  People people;
  FacilityRecord facility;
  FileNaming file;
  OptionState options;
  DbVersions versions;
  std::int32_t TestSetupID = 0;
  std::string TestSetupName;
};

inline Positions::Positions(const UnitSettings& units)
    : PreviousStation(units), KeyStation(units), NextStation(units), StepSize(units), StationMaximum(units),
      StationMinimum(units), SpeedValue(units), DmiStation(units) {}

} // namespace trekor
