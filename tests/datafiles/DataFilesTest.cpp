#include "datafiles/DataFileFixture.h"

#include "support/Child.h"

namespace trekor::tests {

// A session or a row that the disk has no room for; here the database itself refuses it.
void Refuse(Database& database, const std::string& table) {
  ASSERT_TRUE(
      database.Execute("CREATE TRIGGER full BEFORE INSERT ON " + table + " BEGIN SELECT RAISE(ROLLBACK, 'full'); END"));
}

TEST(DataFiles, StartsASessionWithTheObservationsOfTheSetup) {
  Job job;
  ProgramState& state = job.state;
  state.folders.AppVersion = "1.2.3456789";
  state.people.OperatorName = std::string(40, 'o');
  state.command.HardwareName = "7707-104";
  state.TestSetupName = "Summer";
  state.options.OptionFileUnits = "Metric";
  state.file.DataGuid = "ABCD";
  state.facility.FacilityName = "Ring Road";
  state.facility.FacilityClass = "A";
  state.facility.FacilityDistrict = "North";
  state.facility.FacilityDirection = 2;
  state.facility.FacilityLanes = 4;
  state.facility.SectionType = "Motorway";
  state.facility.Lane = std::string(49, 'x') + "\xC3\xA9\xC3\xA9"; // 51 characters, cut inside none of them
  state.position.DmiIncreasing = true;
  job.Offer(17, "Rutting", "RUT", 2).SetFileText("depth in mm");
  job.Offer(21, "Potholes", "PTH", 0, 1);
  ASSERT_TRUE(job.Create("ROAD01"));
  EXPECT_TRUE(state.run.DataFileOpen);
  EXPECT_EQ(state.file.DataFilePath, "D:\\Data\\ROAD01.mdb");
  EXPECT_EQ(state.file.SessionID, 1);
  EXPECT_EQ(job.Ask("SELECT * FROM Sessions"),
            "1|ABCD|1.2.3456|" + std::string(32, 'o') +
                "|7707-104|Summer|Metric|2024-05-06 07:08:09|Ring Road||2|Motorway|4|||0|||||" + std::string(49, 'x') +
                "\xC3\xA9||999999.999|-999999.999|1|0.1");
  EXPECT_EQ(job.Ask("SELECT ObsParID, SessionID, ObsCode, ObsName, ObsAbrv, ParCode, ParName, ParAbrv, DataType,"
                    " TextUtil, Min, Max, RegModeCode FROM Observations"),
            "1|1|17|Rutting|RUT|0| | |1|depth in mm|0|3|2\n2|1|21|Potholes|PTH|0| | |1| |0|1|0");
  EXPECT_EQ(job.Ask("SELECT CAST(substr(ObsIcon, 1, 15) AS TEXT) FROM Observations"),
            "PICTURE IMGNOIC\nPICTURE IMGNOIC");
}

TEST(DataFiles, StoresStationsInFileUnitsAndTheLimitsAtTheEndOfARun) {
  Job job;
  job.state.units.FileStationUnit = 1;
  job.state.facility.LaneNumber = "12345678901234567";
  ASSERT_TRUE(job.Create("ROAD01"));
  job.Fix(55.5, -12.25, 1.5, 4, 11);
  EXPECT_EQ(job.Step("1500.0"), 1);
  EXPECT_EQ(job.Event("  900.5"), 2);
  EXPECT_EQ(job.Step("99999999.9"), 3); // beyond the road network: the nearest limit
  EXPECT_EQ(job.state.file.StationID, 3);
  job.Value(1, 3, 17, "2", 5);
  EXPECT_EQ(job.Ask("SELECT * FROM Stations"),
            "1|1|1500|1|-1|0||1234567890123456|2024-05-06 07:08:10|4|70810|55.5|-12.25|1.5|11\n"
            "2|1|900.5|1|-1|1||1234567890123456|2024-05-06 07:08:11|4|70811|55.5|-12.25|1.5|11\n"
            "3|1|10000000|1|-1|0||1234567890123456|2024-05-06 07:08:12|4|70812|55.5|-12.25|1.5|11");
  EXPECT_EQ(job.Ask("SELECT * FROM Registrations"), "1|1|3|17|5|2");
  job.state.facility.SectionName = "South"; // what is current at the end of the run is what the session keeps
  job.files.EditSession();
  EXPECT_EQ(job.Ask("SELECT SessionID, SectionName, StationMin, StationMax, Date FROM Sessions"),
            "1|South|900.5|10000000|2024-05-06 07:08:12");
}

TEST(DataFiles, KeepsTheDirectionOfTheSectionThatWasReadLast) {
  Job job;
  ASSERT_TRUE(job.Create("ROAD01"));
  ASSERT_TRUE(job.files.database->Execute("UPDATE Sessions SET SectionDirection=3, Operator='Anna'"));
  job.files.rsSessions->MoveLast();
  job.files.ReadSession();
  EXPECT_EQ(job.files.session.SectionHeading, "East");
  EXPECT_EQ(job.files.session.Operator, "Anna");
  EXPECT_EQ(job.state.people.OperatorName, "") << "reading a session leaves the people of the run alone";
  job.files.NewSession();
  EXPECT_EQ(job.Ask("SELECT SessionID, SectionDirection, Operator FROM Sessions WHERE SessionID=2"), "2|3|");
}

TEST(DataFiles, ReplacesAnOldFileButNeverTheOpenOne) {
  Job job;
  ASSERT_TRUE(job.Create("ROAD01"));
  job.Step("1.000");
  EXPECT_FALSE(job.Create("road01")) << "the open file, in other letters";
  EXPECT_TRUE(job.state.run.DataFileOpen);
  EXPECT_EQ(job.Ask("SELECT count(*) FROM Stations"), "1");
  ASSERT_TRUE(job.Create("ROAD02")); // lets the first one go
  EXPECT_TRUE(job.Create("ROAD01"));
  EXPECT_EQ(job.Ask("SELECT count(*) FROM Stations"), "0");
  EXPECT_FALSE(job.Create(""));
  EXPECT_TRUE(job.state.run.DataFileOpen);
}

TEST(DataFiles, StaysClosedWhenTheTemplateOrTheFolderIsMissing) {
  Job job;
  job.state.file.DataPath = "D:\\Nowhere";
  EXPECT_FALSE(job.Create("ROAD01"));
  job.state.file.DataPath = "D:\\Data";
  job.machine.drives.DeleteFile("C:\\Veldmark\\Trekor\\MDB\\DATAfile.mdb");
  EXPECT_FALSE(job.Create("ROAD01"));
  EXPECT_FALSE(job.state.run.DataFileOpen);
  EXPECT_TRUE(job.machine.drives.Files("D:\\Data", "*.*").empty());
}

TEST(DataFiles, OpensNoForeignDamagedMissingOrLockedFile) {
  Job job;
  ASSERT_TRUE(job.Create("GOOD"));
  job.files.CloseDataFile();
  const std::string good = job.machine.drives.Read(job.DataFile("GOOD"));
  job.machine.drives.Write(job.DataFile("SHORT"), good.substr(0, good.size() / 3));
  job.machine.drives.Write(job.DataFile("TEXT"), "Dear reader, this is no data file at all. " + std::string(5000, '.'));
  job.machine.drives.Write(job.DataFile("EMPTY"), "");
  MakeTemplate(job.machine.drives, "Software", job.DataFile("FOREIGN"));
  for (const char* name : {"SHORT", "TEXT", "EMPTY", "FOREIGN", "MISSING"}) {
    job.state.file.DataFilePath = job.DataFile(name);
    EXPECT_FALSE(job.files.OpenDataFile()) << name;
    EXPECT_EQ(job.files.database, nullptr) << name;
  }
  EXPECT_EQ(job.machine.drives.Read(job.DataFile("TEXT")).size(), 5042U);
  EXPECT_FALSE(job.machine.drives.FileExists(job.DataFile("MISSING")));
  job.state.file.DataFilePath = job.DataFile("GOOD");
  auto other = Database::Open(job.machine.drives.NativePath(job.DataFile("GOOD")), OpenMode::Exclusive);
  ASSERT_NE(other, nullptr);
  EXPECT_FALSE(job.files.OpenDataFile()) << "another program has it";
  EXPECT_FALSE(job.Create("GOOD"));
  EXPECT_EQ(job.machine.drives.Read(job.DataFile("GOOD")), good) << "and keeps it";
  other.reset();
  EXPECT_TRUE(job.files.OpenDataFile());
  job.files.CloseDataFile();
  EXPECT_TRUE(job.Create("TEXT")) << "what is no database is in nobody's use";
}

TEST(DataFiles, AddsASessionEachTimeAFileIsOpenedForMoreCollection) {
  Job job;
  MakeTemplate(job.machine.drives, "DataFile", "C:\\Trekor\\DATAfile.vdb");
  job.Offer(17, "Rutting", "RUT", 2);
  ASSERT_TRUE(job.Create("ROAD01"));
  job.Step("1.000");
  for (const char* name : {"ROAD01.mdb", "ROAD01.MDB"}) {
    job.files.CloseDataFile();
    job.state.file.DataName = name;
    ASSERT_TRUE(job.files.ReopenDataFile(job.setup));
    EXPECT_EQ(job.state.file.DataName, "ROAD01");
    EXPECT_EQ(job.state.file.DataFilePath, "D:\\Data\\ROAD01.mdb");
    EXPECT_DOUBLE_EQ(job.state.position.StationMinimum.Default(), 999999.999);
  }
  EXPECT_EQ(job.Ask("SELECT SessionID, ObsName FROM Observations"), "1|Rutting\n2|Rutting\n3|Rutting");
  EXPECT_EQ(job.Ask("SELECT max(SessionID), count(*) FROM Sessions"), "3|3");
  EXPECT_EQ(job.state.file.SessionID, 3);
  EXPECT_EQ(job.Step("2.000"), 2);
  Refuse(*job.files.database, "Sessions");
  job.files.CloseDataFile();
  EXPECT_FALSE(job.files.ReopenDataFile(job.setup)) << "its rows would be those of another session";
  EXPECT_FALSE(job.state.run.DataFileOpen || job.files.database);
}

// A row of the run: a station and its twenty registrations reach the disk together or not at all.
void StoreRow(Job& job, int row) {
  job.files.BeginRow();
  const std::int32_t here = job.Step(FixedFormat(row * 0.1, "###0.000"));
  for (int code = 1; code <= 20; ++code)
    job.Value(here, here, code, "3");
  job.files.EndRow();
}

TEST(DataFiles, HoldsEveryStoredRowAndNoHalfRowWhenTheProgramIsKilled) {
  for (const auto& [rowsBefore, mode] : {std::pair(1, OpenMode::ReadOnly),
                                         {30, OpenMode::Shared},
                                         {30, OpenMode::Exclusive},
                                         {300, OpenMode::ExclusiveDurable}}) {
    Job job;
    Child child([&](Child& me) {
      if (!job.Create("KILLED"))
        return;
      for (int row = 0;; ++row) {
        StoreRow(job, row);
        me.Sign();
      }
    });
    int stored = 0;
    while (stored < rowsBefore && child.Signed())
      ++stored;
    child.Kill();
    while (child.Signed())
      ++stored; // told while the signal was under way
    ASSERT_TRUE(job.machine.drives.FileExists(job.DataFile("KILLED") + "-wal"));
    job.state.file.DataFilePath = job.DataFile("KILLED");
    ASSERT_TRUE(job.files.OpenDataFile(mode));
    EXPECT_EQ(job.Ask("PRAGMA integrity_check"), "ok");
    const int stations = std::stoi(job.Ask("SELECT count(*) FROM Stations"));
    EXPECT_GE(stations, stored);
    EXPECT_EQ(std::stoi(job.Ask("SELECT count(*) FROM Registrations")), 20 * stations);
    EXPECT_EQ(job.Ask("SELECT count(*) FROM Sessions"), "1");
    job.files.CloseDataFile();
    EXPECT_EQ(job.machine.drives.Files("D:\\Data", "*.*"), std::vector<std::string>{"KILLED.mdb"}) << "one plain file";
  }
}

TEST(DataFiles, LeavesNoLogOfAKilledProgramUnderANewFile) {
  Job job;
  Child([&](Child&) {
    job.Create("ROAD01");
    StoreRow(job, 1);
    raise(SIGKILL);
  }).Wait();
  ASSERT_TRUE(job.machine.drives.FileExists(job.DataFile("ROAD01") + "-wal"));
  ASSERT_TRUE(job.Create("ROAD01"));
  EXPECT_EQ(job.Ask("SELECT count(*) FROM Stations"), "0");
  EXPECT_EQ(job.Ask("PRAGMA integrity_check"), "ok");
}

TEST(DataFiles, WhatCannotBeStoredLeavesTheNumbersOfTheOpenFile) {
  Job job;
  ASSERT_TRUE(job.Create("ROAD01"));
  job.Step("10");
  job.Step("20");
  const std::string layout = job.machine.drives.NativePath(job.state.folders.MdbFolder + "\\DATAfile.mdb");
  Refuse(*Database::Open(layout, OpenMode::Exclusive), "Sessions");
  EXPECT_FALSE(job.Create("ROAD02"));
  EXPECT_FALSE(job.machine.drives.FileExists(job.DataFile("ROAD02")));
  job.files.EditSession();
  EXPECT_EQ(job.Ask("SELECT StationMin, StationMax FROM Sessions"), "10|20");
  Refuse(*job.files.database, "Registrations");
  job.files.BeginRow();
  EXPECT_EQ(job.Step("30"), 3);
  job.Value(2, 3, 17, "2");
  EXPECT_FALSE(job.files.EndRow());
  EXPECT_EQ(job.state.file.StationID, 2) << "the last one that is in the file";
  job.files.EditSession();
  EXPECT_EQ(job.Ask("SELECT StationMin, StationMax FROM Sessions"), "10|20") << "limits of what is in the file";
}

// An open transaction refuses another one, so that each row is on its own.
TEST(DataFiles, RowsThatCannotBeHeldTogetherAreStoredOneByOne) {
  Job job;
  ASSERT_TRUE(job.Create("ROAD01"));
  Database& file = *job.files.database;
  ASSERT_TRUE(file.Execute("BEGIN"));
  job.files.BeginRow();
  EXPECT_EQ(job.Step("10"), 1);
  job.Value(1, 1, 17, "2");
  EXPECT_TRUE(job.files.EndRow());
  EXPECT_EQ(job.state.file.StationID, 1);
  ASSERT_TRUE(file.Execute("CREATE TRIGGER no BEFORE INSERT ON Stations BEGIN SELECT RAISE(ABORT, 'no'); END"));
  job.files.BeginRow();
  EXPECT_EQ(job.Step("20"), 1);
  EXPECT_FALSE(job.files.EndRow());
  EXPECT_EQ(job.state.position.StationMaximum.Default(), 10) << "of what is in the file";
  ASSERT_TRUE(file.Execute("COMMIT"));
  EXPECT_EQ(job.Ask("SELECT Station, RegData FROM Stations JOIN Registrations ON ToID=StationID"), "10|2");
}

TEST(DataFiles, GoesOnWithoutAFile) {
  Job job;
  job.files.BeginRow();
  EXPECT_EQ(job.Step("1.000"), 0);
  job.Value(1, 1, 1, "1");
  job.files.EndRow();
  job.files.EditSession();
  job.files.ReadSession();
  job.files.CloseDataFile();
  EXPECT_FALSE(job.comma.WriteCommaFile(0, true, 1));
}

} // namespace trekor::tests
