#include "datafiles/SessionPreview.h"

#include "datafiles/DataFileFixture.h"

namespace trekor::tests {
namespace {

// A job with two sessions of one station each, closed.
struct TwoSessions : Job {
  TwoSessions() {
    state.facility.FacilityName = "Ring Road";
    state.facility.SectionStart = "  Bridge ";
    Begin("ROAD09");
    Step("1.000");
    machine.clock.Advance(3600 * 1000);
    state.facility.SectionName = "North";
    state.TestSetupName = "Summer";
    state.options.OptionFileUnits = "US";
    state.units.FileStationUnit = 4;
    files.NewSession();
    Step("2.000");
    files.CloseDataFile();
  }
  bool Look() { return PreviewDataFile(machine.drives.NativePath(DataFile("ROAD09")), seen); }
  void Change(const std::string& sql) {
    const auto file = Database::Open(machine.drives.NativePath(DataFile("ROAD09")), OpenMode::Shared);
    ASSERT_TRUE(file->Execute(sql)) << sql;
  }
  SessionPreview seen;
};

TEST(SessionPreview, TellsTheNewestSessionAndTheUnitOfTheLastStation) {
  TwoSessions job;
  ASSERT_TRUE(job.Look());
  const SessionPreview& s = job.seen;
  EXPECT_EQ(s.Date + "|" + s.FacilityName + "|" + s.SectionName + "|" + s.Start + "|" + s.End + "|" + s.TestSetup +
                "|" + s.Units,
            "2024-05-06 08:08:10|Ring Road|North|Bridge||Summer|US");
  EXPECT_EQ(s.StationUnit, 4);
  EXPECT_EQ(job.state.units.StationUnit, units::Km) << "the operator's own";
  job.Change("UPDATE Sessions SET Start=NULL, SectionName=NULL, Date=NULL");
  ASSERT_TRUE(job.Look());
  EXPECT_EQ(s.Date + s.SectionName + s.Start + s.TestSetup, "Summer");
}

TEST(SessionPreview, WhatIsNoDataFileOrHoldsNothingFailsAndLeavesTheFields) {
  for (const char* change : {"DROP TABLE Stations", "DROP TABLE Sessions", "DROP TABLE Version",
                             "ALTER TABLE Version DROP COLUMN Type", "DELETE FROM Version", "DELETE FROM Sessions",
                             "DELETE FROM Stations", "UPDATE Stations SET StationUnit=NULL"}) {
    TwoSessions job;
    job.seen.FacilityName = "before";
    job.Change(change);
    EXPECT_FALSE(job.Look()) << change;
    EXPECT_EQ(job.seen.FacilityName, "before") << change;
  }
}

} // namespace
} // namespace trekor::tests
