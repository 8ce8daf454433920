#include "options/OptionsFixture.h"

namespace trekor::tests {
namespace {

TEST_F(OptionsTest, EverySavingIsKeptAndTheLastOneLoaded) {
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(All(state), "Metric Metric 0 0 1 0 0 2025 1 1 0 0 0 xxx.x.xx. Trekor") << "what the release ships";
  state.options = {{2031, 2, 3, 4, 5, 6},
                   "A name that is a good deal longer than its field",
                   "US",
                   "Metric",
                   -1,
                   2,
                   true,
                   false,
                   false,
                   true,
                   true,
                   true,
                   false,
                   true,
                   true,
                   -7};
  state.units.StationUnit = 4;
  options.SaveOptions();
  state.units.StationUnit = 5;
  state.units.FileStationUnit = 3;
  options.SaveOptions();
  options.Close();

  ProgramState next;
  next.folders = state.folders;
  OptionsDatabase later(next, machine.platform, messages);
  ASSERT_TRUE(later.LoadSoftwareDatabases());
  EXPECT_EQ(All(next), "US=US Metric 5 3 -1 2 -7 2031 2 3 4 5 6 x..xxx.xx A name that is a good deal longe");
  const std::string saved = "|2031-02-03 04:05:06|A name that is a good deal longe|US|";
  EXPECT_EQ(RowsOf(*Open(Software), "Options"),
            "1|2025-01-01 00:00:00|Trekor|Metric|0|Metric|0|1|0|1|1|1|0|1|0|1|1|0|0\n2" + saved +
                "4|Metric|0|-1|2|1|0|0|1|1|1|0|1|-1|-7\n3" + saved + "5|Metric|3|-1|2|1|0|0|1|1|1|0|1|-1|-7\n")
      << "check marks are 1 and 0, the boolean -1";
}

TEST_F(OptionsTest, WhatARowDoesNotHoldIsLeft) {
  Execute(Template, "ALTER TABLE Options DROP COLUMN AssistanceVoice;"
                    "UPDATE Options SET Units = 'us', StationUnit = NULL, MDB = 2, User = '  Trekor '");
  state.units.StationUnit = 3;
  state.options.AssistanceVoice = true;
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(All(state), "us Metric 3 0 1 0 0 2025 1 1 0 0 0 xxx.x.xx. Trekor")
      << "any number but 0 is on, only US is US";
}

TEST_F(OptionsTest, WithoutARowAllAreOff) {
  Execute(Template, "DELETE FROM Options");
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(All(state), All(ProgramState()));
}

TEST_F(OptionsTest, WhatIsBeyondItsRangeIsLeft) {
  // StationUnit, FileStationUnit, DrivingSide, GeographicFormat, TrayColor, Datum
  const std::pair<std::string, std::string> cases[] = {
      {"6, -1, 0, 3, 4294967296, '2031-13-04'", "3 4 1 1 7 2024"},
      {"70000, 4294967297, 2, -1, -2147483649, '2031-02-04 25:00'", "3 4 1 1 7 2024"},
      {"3, 9, 0, 3, 4294967296, ''", "3 4 1 1 7 2024"},
      {"0, 8, -1, 2, -2147483648, '2031-02-04 23:59:59'", "0 8 -1 2 -2147483648 2031"}}; // 6 to 8 are the link's
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  for (const auto& [row, left] : cases) {
    Execute(Software,
            "INSERT INTO Options(StationUnit, FileStationUnit, DrivingSide, GeographicFormat, TrayColor, Datum) "
            "VALUES (" +
                row + ")");
    state.units.StationUnit = 3;
    state.units.FileStationUnit = 4;
    state.options = {{2024, 1, 1, 0, 0, 0}, "", "", "", 1, 1};
    state.options.TrayColor = 7;
    options.LoadOptions();
    EXPECT_EQ(All(state).substr(2, left.size()), left) << row;
  }
}

// All of them would be off, and a data file without its options is deleted at its close.
TEST_F(OptionsTest, TheProgramEndsWhenTheyAreThereAndCannotBeRead) {
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  const std::string before = All(state);
  {
    const auto lock = Open(Software);
    ASSERT_TRUE(lock->Execute("UPDATE Options SET MDB = 0; BEGIN EXCLUSIVE"));
    options.LoadOptions();
    EXPECT_EQ(All(state), before) << "a later reading that fails changes nothing";
  }
  options.Close();
  std::string bytes = machine.drives.Read(Software);
  const std::size_t page = bytes.find("MetricMetric") / 4096 * 4096; // the one page of the table
  machine.drives.Write(Software, bytes.replace(page, 4096, 4096, '\x7f'));
  EXPECT_FALSE(options.LoadSoftwareDatabases());
  EXPECT_EQ(machine.shell.boxes, Strings{std::string("Cannot open ") + Software});
}

TEST_F(OptionsTest, TheNetworkIsReopenedElsewhereAndSurvivesAMissingFile) {
  ASSERT_TRUE(sections.LoadSections());
  EXPECT_EQ(state.facility.SectionsPath, "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb");
  state.facility.SectionsPath = "C:\\Nowhere\\Sections.mdb";
  sections.ReopenSections();
  EXPECT_TRUE(Open("C:\\Veldmark\\Parcels\\MDB\\Sections.mdb", OpenMode::Exclusive)) << "the first file is free again";
  sections.CloseSections();
  EXPECT_FALSE(machine.drives.FileExists("C:\\Nowhere\\Sections.mdb"));
  sections.LoadSections(); // the next start goes by the folder again
  EXPECT_EQ(state.facility.SectionsPath, "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb");
  sections.CloseSections();
  std::filesystem::remove_all(machine.drives.NativePath("C:\\Veldmark\\Parcels"));
  EXPECT_TRUE(sections.LoadSections()) << "roads come from the link and the operator, so the program goes on";
  EXPECT_EQ(machine.shell.boxes.size(), 1U);
}

TEST_F(OptionsTest, TheLinkIsToldWhatTheOperatorSets) {
  machine.socket.state = SocketState::Connected;
  state.run.FromLink = true; // the form may stand open because the link asked for a start; its news still goes out
  sections.SetFacilityName("E 45");
  sections.SetSectionName("Ring 3");
  sections.SetSectionStart("10.000");
  sections.SetSectionEnd("");
  EXPECT_EQ(machine.socket.TakeLines(),
            (Strings{"FACILITY NAME E 45", "SECTION NAME Ring 3", "SECTION START 10.000", "SECTION END "}));
  EXPECT_EQ(state.facility.FacilityName + state.facility.SectionName + state.facility.SectionStart, "E 45Ring 310.000");
}

TEST(HeadingTest, ComesBackFromItsName) {
  for (int code = 1; code <= 4; ++code)
    EXPECT_EQ(HeadingCode(HeadingName(code)), code);
  EXPECT_EQ(HeadingCode("west, then north"), 4) << "from the link in any case";
  EXPECT_EQ(HeadingName(0) + HeadingName(5) + HeadingName(-1), "");
}

} // namespace
} // namespace trekor::tests
