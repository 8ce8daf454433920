#include "program/Dispatcher.h"

#include "values/DistanceUnits.h"
#include "values/KeyCodes.h"
#include "values/NumberText.h"
#include "values/Text.h"

#include <array>
#include <cmath>
#include <limits>

namespace trekor {
namespace {

// FromLink while an order of the link is carried out, so that its effects are not sent back. A plain flag: an order
// that was dispatched within this one and ends first clears it for the rest of this one.
class LinkOrder {
public:
  explicit LinkOrder(ProgramState& programState) : state(programState) { state.run.FromLink = true; }
  ~LinkOrder() { state.run.FromLink = false; }
  LinkOrder(const LinkOrder&) = delete;
  LinkOrder& operator=(const LinkOrder&) = delete;

private:
  ProgramState& state;
};

// The text up to the first blank; the message keeps the rest, trimmed.
std::string_view NextWord(std::string_view& message) {
  std::size_t blank = 0; // a few characters away: a loop beats the library's search
  while (blank < message.size() && message[blank] != ' ')
    ++blank;
  const std::string_view word = message.substr(0, blank);
  message = TrimView(message.substr(blank));
  return word;
}

// A 16-bit field keeps its old value when the number does not fit.
void TakeInteger(int& field, std::string_view word) {
  field = ToInteger16(Val(word)).value_or(static_cast<std::int16_t>(field));
}

void TakeSingle(float& field, std::string_view word) {
  const double number = Val(word);
  if (std::abs(number) <= std::numeric_limits<float>::max())
    field = static_cast<float>(number);
}

// GPS 143015.2 55.6761 12.5683 14.2 1 9 0 0.8 0 0
// 1 time, 2 latitude, 3 longitude, 4 height, 5 status, 6 satellites, 7 skipped, 8 to 10 stored and not used. A missing
// word leaves the old value from 4 on and gives 0 before.
void TakeGps(GpsMessage& gps, std::string_view message) {
  const auto [words, count] = SocketProp::SplitViews(message);
  GpsFix& fix = gps.fix;
  fix.GpsTime = Val(words[1]);
  fix.GpsLatitude = Val(words[2]);
  fix.GpsLongitude = Val(words[3]);
  if (count > 3)
    TakeSingle(fix.GpsHeight, words[4]);
  if (count > 4)
    TakeInteger(fix.GpsStatus, words[5]);
  if (count > 5)
    TakeInteger(fix.GpsSVs, words[6]);
  if (count > 7)
    TakeSingle(gps.GpsField8, words[8]);
  if (count > 8)
    TakeInteger(gps.GpsField9, words[9]);
  if (count > 9)
    TakeInteger(gps.GpsField10, words[10]);
  gps.GpsSeen = gps.GpsFresh = true;
}

// SET OPERATOR Veldmarker: the maintenance user's word, spelled exactly so.
void TakeOperator(ProgramState& state, std::string_view name) {
  state.people.OperatorName = name;
  if (name != "Veldmarker")
    return;
  state.people.OperatorName = "Veldmark";
  state.run.UserLevel = levels::Developer;
}

constexpr std::size_t LongestPath = 260; // longer ones are garbage, and each level of one would be a nested call

// Makes the folder and the levels above it that are missing. True when it is there afterwards.
bool MakeFolders(Drives& drives, const std::string& path) {
  if (path.size() > LongestPath)
    return false;
  if (drives.FolderExists(path))
    return true;
  const std::size_t parent = path.find_last_of('\\');
  if (parent != std::string::npos && parent > 2 && !MakeFolders(drives, path.substr(0, parent)))
    return false;
  return drives.MakeFolder(path);
}

// FILE PATH D:\Data\Roads: when the vehicle's drive can't take it, the same folder on drive C.
void TakeDataPath(std::string& dataPath, std::string_view value, Drives& drives) {
  dataPath = value;
  const std::string wanted = dataPath;
  if (wanted.empty() || MakeFolders(drives, wanted) || SameName(wanted.substr(0, 1), "C"))
    return;
  const std::string onC = "C" + wanted.substr(1);
  if (MakeFolders(drives, onC))
    dataPath = onC;
}

struct TextField {
  std::string_view keyword;
  std::string FacilityRecord::*field;
};

constexpr std::array<TextField, 8> FacilityTexts = {{{"NAME", &FacilityRecord::FacilityName},
                                                     {"CODE", &FacilityRecord::FacilityCode},
                                                     {"STATE", &FacilityRecord::FacilityState},
                                                     {"DISTRICT", &FacilityRecord::FacilityDistrict},
                                                     {"CITY", &FacilityRecord::FacilityCity},
                                                     {"CLASS", &FacilityRecord::FacilityClass},
                                                     {"MEDIAN", &FacilityRecord::FacilityMedian},
                                                     {"EDGE", &FacilityRecord::FacilityEdge}}};

constexpr std::array<TextField, 13> SectionTexts = {{{"NAME", &FacilityRecord::SectionName},
                                                     {"CODE", &FacilityRecord::SectionCode},
                                                     {"COMMENT", &FacilityRecord::SectionComment},
                                                     {"HEADING", &FacilityRecord::SectionHeading},
                                                     {"LANENUMBER", &FacilityRecord::LaneNumber},
                                                     {"LANE", &FacilityRecord::Lane},
                                                     {"TYPE", &FacilityRecord::SectionType},
                                                     {"SURFACE", &FacilityRecord::SectionSurface},
                                                     {"SPEED", &FacilityRecord::SectionSpeed},
                                                     {"LENGTH", &FacilityRecord::SectionLength},
                                                     {"WIDTH", &FacilityRecord::SectionWidth},
                                                     {"START", &FacilityRecord::SectionStart},
                                                     {"END", &FacilityRecord::SectionEnd}}};

template <std::size_t N>
void TakeText(FacilityRecord& record, const std::array<TextField, N>& fields, std::string_view keyword,
              std::string_view value) {
  for (const TextField& f : fields)
    if (SameName(keyword, f.keyword))
      record.*f.field = value;
}

} // namespace

Dispatcher::Dispatcher(ProgramState& state, Drives& drives, SocketProp& socket, Sections& sections,
                       const RunOrders& run)
    : state(state), drives(drives), socket(socket), sections(sections), run(run) {}

void Dispatcher::Dispatch(std::string_view line) {
  const std::string_view verb = NextWord(line);
  if (SameName(verb, "DMI")) // first: it comes a thousand times a second
    Dmi(line);
  else if (SameName(verb, "GPS"))
    TakeGps(state.gps, line);
  else if (SameName(verb, "CTRL"))
    Ctrl(line);
  else if (SameName(verb, "SET"))
    Set(line);
  else if (SameName(verb, "FILE"))
    File(line);
  else if (SameName(verb, "FACILITY"))
    Facility(line);
  else if (SameName(verb, "SECTION"))
    Section(line);
  // EVENT is accepted and ignored, everything else is not for this program: no answer to either.
}

// DMI 12.35
void Dispatcher::Dmi(std::string_view message) {
  state.position.DmiStation.SetDefault(Val(message));
  state.run.DmiReceived = true;
  ++state.position.Heard;
  run.stepping.Check_DMI();
}

// CTRL PREPARE 12.35
void Dispatcher::Ctrl(std::string_view message) {
  const std::string word = Upper(NextWord(message)); // a copy for the answer, as the line is dead after a pump
  {
    const LinkOrder order(state);
    CtrlWord(word, message);
  }
  socket.SendData("ACK Trekor CTRL " + word);
}

void Dispatcher::CtrlWord(const std::string& word, std::string_view rest) {
  if (word == "PREPARE") {
    if (!rest.empty())
      run.stepBoxes.PrepareStation(Val(rest));
  } else if (word == "START" || word == "RESUME") { // the same key: RESUME in idle starts a run
    run.formKeys.Form_KeyDown(keys::F2, 0);
  } else if (word == "SUSPEND") {
    run.formKeys.Form_KeyDown(keys::F3, 0);
  } else if (word == "STOP") {
    run.formKeys.Form_KeyDown(keys::F4, 0);
  } else if (word == "INIT") {
    SendUnits(state, socket);
    Set_DMI(state, socket);
  } else if (word == "EXIT") {
    run.wayOut.mnuExit_Click();
  } // ARM and ABORT ask for nothing: there is no way to abort a run
}

// SET OPERATOR Jane Doe
void Dispatcher::Set(std::string_view message) {
  const std::string_view keyword = NextWord(message);
  if (SameName(keyword, "DMI")) {
    SetDmi(message);
  } else if (SameName(keyword, "VEHICLE")) {
    state.people.VehicleName = message;
  } else if (SameName(keyword, "DRIVER")) {
    state.people.DriverName = message;
  } else if (SameName(keyword, "OPERATOR")) {
    TakeOperator(state, message);
  } else if (SameName(keyword, "NETWORKDB")) {
    state.facility.NetworkDb = state.facility.SectionsPath = message;
    sections.ReopenSections();
  } // UNITS has no effect: this program announces its units
}

// SET DMI 1000 I 12.35
// 1 a number that is only sent back, 2 "I" or "1" when stations increase, 3 the position in kilometres
void Dispatcher::SetDmi(std::string_view message) {
  if (state.run.RunState != RunStates::Idle)
    return;
  const auto words = SocketProp::SplitViews(message).Words;
  Positions& position = state.position;
  TakeInteger(position.DmiSetValue, words[1]);
  position.DmiIncreasing = words[2] == "I" || words[2] == "1"; // a value: its case counts
  position.DmiStation.SetDefault(Val(words[3]));
  const LinkOrder order(state);
  run.stepBoxes.Set_UpDnIcon();
}

// FILE PATH D:\Data\Roads
void Dispatcher::File(std::string_view message) {
  const std::string_view keyword = NextWord(message);
  const LinkOrder order(state);
  FileNaming& file = state.file;
  if (SameName(keyword, "GUID")) {
    file.DataGuid = message;
  } else if (SameName(keyword, "PATH")) {
    TakeDataPath(file.DataPath, message, drives);
  } else if (SameName(keyword, "BACKUPPATH")) {
    file.BackupPath = message;
    if (!message.empty())
      MakeFolders(drives, std::string(message));
  } else if (SameName(keyword, "NAME")) {
    file.DataName = message;
  } else if (SameName(keyword, "UNITS")) {
    FileUnits(message);
  } else if (SameName(keyword, "OPEN")) {
    run.fileMenu.Prepare_File();
  } else if (SameName(keyword, "CLOSE")) {
    run.fileMenu.mnuClose_Click();
  } // SESSION has no effect
}

// FILE UNITS SI KM: the first word is not looked at
void Dispatcher::FileUnits(std::string_view message) {
  const std::string word = Upper(SocketProp::SplitViews(message).Words[2]);
  state.units.FileStationUnit = UnitCode(word).value_or(state.units.FileStationUnit);
  run.options.FollowFileUnit();
}

// FACILITY NAME Ring Road 3
void Dispatcher::Facility(std::string_view message) {
  const std::string_view keyword = NextWord(message);
  const LinkOrder order(state);
  TakeText(state.facility, FacilityTexts, keyword, message);
  if (SameName(keyword, "LANES"))
    TakeInteger(state.facility.FacilityLanes, message);
}

// SECTION HEADING North
void Dispatcher::Section(std::string_view message) {
  const std::string_view keyword = NextWord(message);
  const LinkOrder order(state);
  FacilityRecord& record = state.facility;
  TakeText(record, SectionTexts, keyword, message);
  if (SameName(keyword, "HEADING"))
    record.FacilityDirection = record.StartingDirection = HeadingCode(message);
  else if (SameName(keyword, "TRAFFIC"))
    record.SectionTraffic = Val(message);
}

} // namespace trekor
