#include "options/Options.h"

#include "Templates.h"

namespace trekor::tests {
namespace {

class ProgramOptions : public WithTemplates {
protected:
  static constexpr const char* Software = "C:\\Veldmark\\Trekor\\MDB\\Software.mdb";
  TextDatabase texts{state, machine.platform};
  MessageCatalogue messages{state, machine.platform, texts};
  OptionsDatabase options{state, machine.platform, messages};
};

TEST_F(ProgramOptions, BeginWithWhatTheReleaseShips) {
  Ship("Software");
  Ship("Messages");
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(state.options.OptionUnits, "Metric");
  EXPECT_TRUE(state.units.UnitsSI() && state.units.FileUnitsSI());
  EXPECT_TRUE(state.options.KeepMdb && state.options.WriteAscii);
  EXPECT_EQ(state.options.DrivingSide, 1);
  EXPECT_EQ(state.options.OptionsDate, (LocalTime{2025, 1, 1, 0, 0, 0}));
}

TEST_F(ProgramOptions, KeepEverySavingAndLoadTheLast) {
  Ship("Software");
  Ship("Messages");
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  state.options.OptionUnits = "US";
  state.units.StationUnit = 4;
  state.options.WriteAscii = false;
  state.options.DataColVoice = true;
  state.options.OptionsUser = "A name that is a good deal longer than its field";
  state.options.OptionsDate = {2031, 2, 3, 4, 5, 6};
  options.SaveOptions();
  state.units.StationUnit = 5;
  options.SaveOptions();
  options.Close();

  ProgramState next;
  next.folders = state.folders;
  MessageCatalogue catalogue(next, machine.platform, texts);
  OptionsDatabase later(next, machine.platform, catalogue);
  ASSERT_TRUE(later.LoadSoftwareDatabases());
  EXPECT_EQ(next.units.StationUnit, 5);
  EXPECT_TRUE(next.units.UnitsUS);
  EXPECT_FALSE(next.units.FileUnitsUS);
  EXPECT_FALSE(next.options.WriteAscii);
  EXPECT_TRUE(next.options.KeepMdb && next.options.DataColVoice);
  EXPECT_EQ(next.options.OptionsUser, "A name that is a good deal longe");
  EXPECT_EQ(next.options.OptionsDate, (LocalTime{2031, 2, 3, 4, 5, 6}));
  later.Close();

  const auto database = Open(Software);
  const auto rows = database->OpenQuery("SELECT StationUnit, MDB, TKR, DataColVoice FROM Options ORDER BY ID");
  ASSERT_EQ(rows->RecordCount(), 3);
  rows->MoveLast();
  std::string stored;
  for (int i = 0; i < rows->FieldCount(); ++i) {
    stored += rows->Get(i).Text() + " ";
  }
  EXPECT_EQ(stored, "5 1 0 -1 ") << "check marks are 1 and 0, the boolean -1";
}

TEST_F(ProgramOptions, LeaveWhatARowDoesNotHold) {
  Make("C:\\Trekor\\Software.vdb",
       "CREATE TABLE Version(Major SMALLINT, Minor SMALLINT); INSERT INTO Version VALUES(1,0);"
       "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(16), StationUnit SMALLINT, MDB SMALLINT);"
       "CREATE UNIQUE INDEX Options_ID ON Options(ID DESC);"
       "INSERT INTO Options(Units, StationUnit, MDB) VALUES('us', NULL, 2)");
  Ship("Messages");
  state.units.StationUnit = 3;
  state.options.AssistanceVoice = true;
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_EQ(state.units.StationUnit, 3);
  EXPECT_TRUE(state.options.AssistanceVoice);
  EXPECT_TRUE(state.options.KeepMdb) << "any number but 0 is on";
  EXPECT_FALSE(state.units.UnitsUS) << "only the exact word is US";
}

TEST_F(ProgramOptions, LeaveWhatIsBeyondItsRange) {
  struct Case {
    const char* row; // StationUnit, FileStationUnit, DrivingSide, GeographicFormat, TrayColor, Datum
    const char* left;
  };
  const Case cases[] = {{"6, -1, 0, 3, 4294967296, '2031-13-04'", "3 4 1 1 7 2024"},
                        {"70000, 4294967297, 2, -1, -2147483649, '2031-02-04 25:00'", "3 4 1 1 7 2024"},
                        {"5, 0, -1, 2, -2147483648, '2031-02-04 23:59:59'", "5 0 -1 2 -2147483648 2031"}};
  Ship("Software");
  Ship("Messages");
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  for (const Case& each : cases) {
    ASSERT_TRUE(Open(Software)->Execute(
        std::string("INSERT INTO Options(StationUnit, FileStationUnit, DrivingSide, GeographicFormat, TrayColor, Datum)"
                    " VALUES (") +
        each.row + ")"));
    state.units.StationUnit = 3;
    state.units.FileStationUnit = 4;
    state.options.DrivingSide = state.options.GeographicFormat = 1;
    state.options.TrayColor = 7;
    state.options.OptionsDate = {2024, 1, 1, 0, 0, 0};
    options.LoadOptions();
    std::string left;
    for (const std::int32_t value : {state.units.StationUnit, state.units.FileStationUnit, state.options.DrivingSide,
                                     state.options.GeographicFormat, state.options.TrayColor})
      left += std::to_string(value) + " ";
    EXPECT_EQ(left + std::to_string(state.options.OptionsDate.year), each.left) << each.row;
  }
}

// All of them would be off, and a data file without its options is deleted at its close.
TEST_F(ProgramOptions, EndTheProgramWhenTheyAreThereAndCannotBeRead) {
  Ship("Software");
  Ship("Messages");
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  state.options.KeepMdb = true;
  {
    const auto lock = Open(Software);
    ASSERT_TRUE(lock->Execute("BEGIN EXCLUSIVE"));
    options.LoadOptions();
    EXPECT_TRUE(state.options.KeepMdb) << "a later reading that fails changes nothing";
  }
  options.Close();
  std::string bytes = machine.drives.Read(Software);
  const std::size_t page = bytes.find("MetricMetric") / 4096 * 4096; // the one page of the table
  machine.drives.Write(Software, bytes.replace(page, 4096, 4096, '\x7f'));
  EXPECT_FALSE(options.LoadSoftwareDatabases());
  EXPECT_EQ(machine.shell.boxes, std::vector<std::string>{std::string("Cannot open ") + Software});
}

TEST_F(ProgramOptions, StayOffWithoutARow) {
  Ship("Software");
  Ship("Messages");
  auto shipped = Open("C:\\Trekor\\Software.vdb");
  ASSERT_TRUE(shipped->Execute("DELETE FROM Options"));
  shipped.reset();
  ASSERT_TRUE(options.LoadSoftwareDatabases());
  EXPECT_TRUE(state.units.UnitsSI());
  EXPECT_FALSE(state.options.KeepMdb || state.options.WriteAscii);
  EXPECT_EQ(state.options.OptionUnits, "");
}

} // namespace
} // namespace trekor::tests
