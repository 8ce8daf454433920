// What each line of the control program does, over rooms whose databases are closed: fields, keys, answers.
#include "link/LinkFixture.h"

#include "collection/Measurements.h"
#include "program/Dispatcher.h"

#include <memory>

namespace trekor::tests {
namespace {

class DispatcherTest : public LinkFixture {
protected:
  DispatcherTest() { Connect(); }
  void Heard(std::string_view line) override { dispatcher.Dispatch(line); }
  void Line(const std::string& line) { Arrive(line + "\r\n"); }

  MeasurementsForm form;
  MessageCatalogue messages{state, fake.platform, texts};
  OptionsDatabase options{state, fake.platform, messages};
  SetupDatabase setupDatabase{state, fake.platform};
  TestSetup setup{state, setupDatabase, form.imlObsPicsUCaseKeys};
  DataFiles files{state, fake.platform};
  CommaFile comma{CommaSourcesOf(state), fake.drives, files};
  Sections sections{state, fake.platform, socket};
  FileDialogs dialogs{state, fake.platform, texts, messages, sections};
  Options optionsDialog{state, fake.platform, texts, options};
  cSendKeys SendKeysObject{fake.platform};
  Measurements measurements{form, RunRooms{state, fake.platform, texts, messages, options, sections, setupDatabase,
                                           setup, files, comma, socket, dialogs, optionsDialog, SendKeysObject}};
  Dispatcher dispatcher{state, fake.platform.drives, socket, sections, RunOrders(measurements.Subjects())};
};

TEST_F(DispatcherTest, EveryCtrlIsAnsweredByItsWordInCapitals) {
  for (const char* line : {"ctrl arm", "CTRL Abort 5 6", "CTRL dance æ", "CTRL", "CTRL PREPARE"})
    Line(line);
  EXPECT_EQ(Sent(), (Lines{"ACK Trekor CTRL ARM", "ACK Trekor CTRL ABORT", "ACK Trekor CTRL DANCE", "ACK Trekor CTRL ",
                           "ACK Trekor CTRL PREPARE"}));
  EXPECT_FALSE(state.run.FromLink);
}

TEST_F(DispatcherTest, WhatItDoesNotKnowHasNoAnswerAndNoEffect) {
  for (const char* line :
       {"", "EVENT CLICK", "HELLO", "SET", "SET UNITS US ML DEG", "SET COLOUR RED", "FILE", "FACILITY", "SECTION",
        "FILE SESSION 3", "ACK Trekor CTRL ARM", "CTRLX START", "\"CTRL\" START"})
    Line(line);
  Arrive(std::string("\0CTRL START\r\nCTRL\0 START\r\n", 26));
  EXPECT_EQ(Sent(), Lines{});
  EXPECT_FALSE(state.units.UnitsUS);
  EXPECT_EQ(state.run.RunState, RunStates::Idle);
}

TEST_F(DispatcherTest, InitTellsUnitsAndPositionBeforeTheAnswer) {
  state.position.DmiStation.SetDefault(-1.5);
  Line("CTRL INIT");
  EXPECT_EQ(Sent(), (Lines{"SET UNITS SI KM DEG", "FILE UNITS SI KM", "SET DMI  0 -1 -1.5", "ACK Trekor CTRL INIT"}));
}

TEST_F(DispatcherTest, PrepareTakesTheStationInKilometres) {
  state.units.StationUnit = 1;
  Line("CTRL PREPARE  12.35 ");
  EXPECT_EQ(state.position.KeyStation.Default(), 12.35);
  EXPECT_EQ(form.Texts6.Text(), "12350.0");
  Line("CTRL PREPARE"); // nothing behind it: nothing changes
  EXPECT_EQ(state.position.KeyStation.Default(), 12.35);
}

TEST_F(DispatcherTest, DmiSetsThePosition) {
  Line("DMI 12.35");
  EXPECT_EQ(state.position.DmiStation.Default(), 12.35);
  EXPECT_TRUE(state.run.DmiReceived);
  Line("dmi -99999"); // beyond every limit: positions are not limited
  EXPECT_EQ(state.position.DmiStation.Default(), -99999);
  Line("DMI abc");
  EXPECT_EQ(state.position.DmiStation.Default(), 0);
  EXPECT_EQ(Sent(), Lines{});
}

TEST_F(DispatcherTest, AGpsOfAnyLengthReachesItsFields) {
  GpsMessage& gps = state.gps;
  const auto fields = [&gps] { // by word; the seventh has none
    return std::vector<double>{gps.fix.GpsTime,
                               gps.fix.GpsLatitude,
                               gps.fix.GpsLongitude,
                               double{gps.fix.GpsHeight},
                               double(gps.fix.GpsStatus),
                               double(gps.fix.GpsSVs),
                               0,
                               double{gps.GpsField8},
                               double(gps.GpsField9),
                               double(gps.GpsField10)};
  };
  for (std::size_t length = 0; length <= 12; ++length) {
    Line("GPS 1 2 3 4 5 6 7 8 9 10");
    std::vector<double> expected = {0, 0, 0, 4, 5, 6, 0, 8, 9, 10}; // the first three are always taken
    std::string line = "GPS";
    for (std::size_t word = 1; word <= length; ++word) {
      line += " " + std::to_string(100 + word);
      if (word != 7 && word <= 10)
        expected[word - 1] = 100 + static_cast<double>(word);
    }
    gps.GpsSeen = gps.GpsFresh = false;
    Line(line);
    EXPECT_EQ(fields(), expected) << line;
    EXPECT_TRUE(gps.GpsSeen && gps.GpsFresh);
  }
  Line("GPS 143015.25 55.676100000001 -12.5683 14.5 4 9 skipped 0.75 7 8");
  EXPECT_EQ(fields(), (std::vector<double>{143015.25, 55.676100000001, -12.5683, 14.5, 4, 9, 0, 0.75, 7, 8}));
  Line("GPS 1 2 3 1E300 40000 2.5 7 1E39 -40000 -32768"); // what does not fit its field leaves it
  EXPECT_EQ(fields(), (std::vector<double>{1, 2, 3, 14.5, 4, 2, 0, 0.75, 7, -32768}));
}

TEST_F(DispatcherTest, SetDmiIsForIdleOnly) {
  Line("SET DMI 1000 1 0.5");
  EXPECT_EQ(state.position.DmiSetValue, 1000);
  EXPECT_TRUE(state.position.DmiIncreasing);
  EXPECT_EQ(state.position.DmiStation.Default(), 0.5);
  EXPECT_EQ(form.DmiDirLabel.Caption(), "1");
  for (const RunStates inRun : {RunStates::Running, RunStates::Paused}) {
    state.run.RunState = inRun;
    Line("SET DMI 7 D 9.5");
  }
  EXPECT_EQ(state.position.DmiStation.Default(), 0.5);
  state.run.RunState = RunStates::Idle;
  Line("SET DMI 99999 i");
  EXPECT_EQ(state.position.DmiSetValue, 1000);
  EXPECT_FALSE(state.position.DmiIncreasing); // a value keeps its case
  EXPECT_EQ(state.position.DmiStation.Default(), 0);
  EXPECT_EQ(form.DmiDirLabel.Caption(), "0");
  EXPECT_EQ(Sent(), Lines{}); // an order is not sent back as news
}

TEST_F(DispatcherTest, PeopleAndVehicleKeepTheirSpelling) {
  Line("set operator  Jane  Doe ");
  EXPECT_EQ(state.people.OperatorName, "Jane  Doe");
  EXPECT_EQ(state.run.UserLevel, levels::User);
  Line("SET OPERATOR veldmarker");
  EXPECT_EQ(state.run.UserLevel, levels::User);
  Line("SET OPERATOR Veldmarker");
  EXPECT_EQ(state.people.OperatorName, "Veldmark");
  EXPECT_EQ(state.run.UserLevel, levels::Developer);
  Line("SET DRIVER J\xF8rn");
  Line("SET VEHICLE Van 7");
  EXPECT_EQ(state.people.DriverName, "Jørn");
  EXPECT_EQ(state.people.VehicleName, "Van 7");
  Line("SET NETWORKDB D:\\Net\\Roads.mdb");
  EXPECT_EQ(state.facility.NetworkDb, "D:\\Net\\Roads.mdb");
  EXPECT_EQ(state.facility.SectionsPath, "D:\\Net\\Roads.mdb");
}

TEST_F(DispatcherTest, DataFoldersAreMadeAndDriveCIsTheSecondTry) {
  Line("FILE PATH C:\\Data\\2024\\Roads");
  EXPECT_TRUE(fake.drives.FolderExists("C:\\Data\\2024\\Roads"));
  Line("FILE PATH E:\\Jobs\\North");
  EXPECT_EQ(state.file.DataPath, "C:\\Jobs\\North");
  EXPECT_TRUE(fake.drives.FolderExists("C:\\Jobs\\North"));
  Line("FILE BACKUPPATH E:\\Jobs");
  EXPECT_EQ(state.file.BackupPath, "E:\\Jobs"); // a backup has no second try
  Line("FILE BACKUPPATH");
  EXPECT_EQ(state.file.BackupPath, "");
  Line("FILE PATH E:" + std::string(500000, '\\') + "x"); // no end of levels
  EXPECT_EQ(state.file.DataPath[0], 'E') << "neither drive can take it";
  fake.drives.failing = {"C:\\CLOSED"};
  Line("FILE PATH C:\\Closed");
  EXPECT_EQ(state.file.DataPath, "C:\\Closed");
}

TEST_F(DispatcherTest, FileTakesNamesAndTheFilesUnit) {
  Line("FILE GUID 0011AAff");
  Line("FILE NAME Ring Road 3");
  Line("FILE UNITS SI STNFEET");
  EXPECT_EQ(state.file.DataGuid, "0011AAff");
  EXPECT_EQ(state.file.DataName, "Ring Road 3");
  EXPECT_EQ(state.units.FileStationUnit, 7);
  Line("FILE UNITS US furlong");
  Line("FILE UNITS ML");
  EXPECT_EQ(state.units.FileStationUnit, 7);
  Line("FILE UNITS ? mlft");
  EXPECT_EQ(state.units.FileStationUnit, 3);
  EXPECT_FALSE(state.units.FileUnitsUS);
  EXPECT_FALSE(state.run.FromLink);
}

TEST_F(DispatcherTest, RoadAndSectionTakeTheRestOfTheLine) {
  FacilityRecord& road = state.facility;
  const std::pair<const char*, const std::string*> texts[] = {{"FACILITY NAME", &road.FacilityName},
                                                              {"FACILITY CODE", &road.FacilityCode},
                                                              {"SECTION NAME", &road.SectionName},
                                                              {"SECTION CODE", &road.SectionCode},
                                                              {"SECTION HEADING", &road.SectionHeading},
                                                              {"SECTION LANENUMBER", &road.LaneNumber},
                                                              {"SECTION LANE", &road.Lane},
                                                              {"SECTION TYPE", &road.SectionType},
                                                              {"SECTION START", &road.SectionStart},
                                                              {"SECTION END", &road.SectionEnd}};
  for (const auto& [key, field] : texts)
    Line(std::string(key) + "  \"" + key + "\"  x ");
  for (const auto& [key, field] : texts) // all at the end, so that no line has written another's field
    EXPECT_EQ(*field, "\"" + std::string(key) + "\"  x");
  EXPECT_EQ(road.SessionDistrict + road.SessionClass, "");
  Line("FACILITY LANES 3.9");
  EXPECT_EQ(road.FacilityLanes, 4);
  Line("SECTION TRAFFIC 1.25E3 a day");
  EXPECT_EQ(road.SectionTraffic, 1250);
  for (const auto& [heading, code] : {std::pair{"north", 1}, {"S", 2}, {"East", 3}, {"w", 4}, {"Q", 0}, {"", 0}}) {
    Line(std::string("SECTION HEADING ") + heading);
    EXPECT_EQ(road.FacilityDirection, code) << heading;
    EXPECT_EQ(road.StartingDirection, code) << heading;
  }
  EXPECT_EQ(Sent(), Lines{});
}

TEST_F(DispatcherTest, OnlySomeVerbsTouchTheLinksFlag) {
  for (const char* line :
       {"DMI 1", "GPS 1 2 3", "SET VEHICLE A", "SET DRIVER B", "SET OPERATOR C", "SET UNITS SI KM", "EVENT X"}) {
    state.run.FromLink = true; // an order that is being carried out meanwhile
    Line(line);
    EXPECT_TRUE(state.run.FromLink) << line;
  }
  for (const char* line : {"CTRL ARM", "FILE SESSION", "FACILITY NAME A", "SECTION X", "SET DMI 0 I 1"}) {
    state.run.FromLink = true;
    Line(line);
    EXPECT_FALSE(state.run.FromLink) << line;
  }
}

TEST_F(DispatcherTest, AnyBytesLeaveTheProgramStanding) {
  std::string bytes;
  unsigned seed = 12345;
  const Lines words = {"DMI ",          "GPS ", "SET DMI ", "FILE UNITS ", "FACILITY LANES ", "SECTION TRAFFIC ",
                       "CTRL PREPARE ", "\""};
  for (int i = 0; i < 200000; ++i) {
    seed = seed * 1664525 + 1013904223;
    const unsigned roll = seed >> 24;
    bytes += roll < 8 ? words[roll] : roll < 24 ? "\r\n" : std::string(1, static_cast<char>(seed >> 16));
  }
  Arrive(bytes);
  Line("");
  Line("CTRL ARM");
  EXPECT_EQ(Sent().back(), "ACK Trekor CTRL ARM");
}

} // namespace
} // namespace trekor::tests
