#include "datafiles/DataFileFixture.h"
#include "datafiles/ExportSessions.h"

#include <numeric>

namespace trekor::tests {

// A stretch with one observation: 5301 with its digit and fifteen empty places.
std::string Stretch(const std::string& from, const std::string& to, const std::string& digits) {
  std::string line = "5301," + from + "," + to;
  for (std::size_t i = 0; i < 16; ++i)
    line += i < digits.size() ? std::string(",") + digits[i] : ",0";
  return line + "\n";
}

const std::string Last = "5319,     0.0\n";

TEST(CommaFile, WritesAWholeDrive) {
  Job job;
  job.state.people.OperatorName = "J. Miller";
  job.state.TestSetupName = "Summer survey";
  job.state.file.DataGuid = "00112233445566778899AABBCCDDEEFF";
  FacilityRecord& road = job.state.facility;
  road.FacilityName = "Ring Road";
  road.FacilityCode = "E45";
  road.SectionType = "Motorway";
  road.FacilityClass = "A"; // arrives on the link and stays out of the session
  road.SectionName = "North";
  road.SectionCode = "S1";
  road.SectionStart = "Bridge";
  road.SectionEnd = "Exit 12";
  road.Lane = "Right";
  road.LaneNumber = "1";
  job.Offer(17, "Rutting", "RUT", 2);
  job.Offer(21, "Potholes, deep ones only", "PTHLS", 0, 1);
  job.Offer(130, "Notes", "NOTE", 1);
  ASSERT_TRUE(job.Create("ROAD01"));
  const auto a = job.Step("10.000");
  job.Fix(55.675, 12.568, -3.3, 4, 12);
  const auto b = job.Step("10.100");
  for (const auto& [code, text] : {std::pair(17, "3"), std::pair(21, ""), std::pair(130, "word")})
    job.Value(a, b, code, text);
  job.Fix(55.6760968, 12.5683371, 12.5);
  const auto event = job.Event("10.150");
  job.Value(event, event, 21, "1");
  const auto c = job.Step("10.200");
  job.Value(b, c, 17, "12");
  job.Value(b, c, 130, "0");
  job.files.EditSession();
  job.state.people.OperatorName = "Office"; // the head names who writes and who collected
  EXPECT_EQ(job.Comma(), Expected("drive.TKR"));
}

TEST(CommaFile, WritesTwentyObservationsInFeetAndCountsThemInTheNextHead) {
  Job job;
  job.state.units.FileUnitsUS = true;
  job.state.units.FileStationUnit = 4;
  job.state.position.StepSize.SetFileValue(528);
  for (int i = 1; i <= 20; ++i)
    job.Offer(i, "Item " + std::to_string(i), "I" + std::to_string(i), 1, 1);
  ASSERT_TRUE(job.Create("TWENTY"));
  const auto a = job.Step("52800.0"), b = job.Step("52272.0");
  job.Value(a, b, 1, "1");
  job.Value(a, b, 20, "7");
  job.files.EditSession();
  const std::string first = job.Comma();
  EXPECT_EQ(first, Expected("twenty.TKR"));
  std::string second = job.Comma();
  const std::size_t count = second.find(",1,34,");
  ASSERT_NE(count, std::string::npos) << "the second head counts the first writing's observations";
  EXPECT_EQ(second.replace(count, 6, ",1,30,"), first);
}

TEST(CommaFile, TurnsTextsIntoDigits) {
  const struct {
    const char* text;
    char stretch, point;
  } cases[] = {{"7", '7', '7'},    {"12", '9', '9'},    {"0", '0', '0'},   {"", '0', '0'},
               {"word", '1', '0'}, {"-3", '0', '0'},    {"2,5", '2', '2'}, {"3.5", '4', '4'},
               {"0.2", '1', '0'},  {"40000", '1', '0'}, {" 0 ", '0', '0'}, {"7x", '1', '0'}};
  for (const auto& [text, stretch, point] : cases) {
    Job job;
    job.Begin();
    const auto a = job.Step("1.000"), b = job.Step("1.100"), event = job.Event("1.150");
    job.Value(a, b, 5, text);
    job.Value(event, event, 5, text);
    EXPECT_EQ(Job::Records(job.Comma()), Stretch("   1.000", "   1.100", std::string(1, stretch)) +
                                             "5311,   1.150,  5," + point + ",\"" + text + "\"\n" + Last)
        << text;
  }
}

TEST(CommaFile, WritesPointsOfNoObservationAndDropsUnknownOnes) {
  Job job;
  job.Begin();
  job.Step("1.000");
  job.Fix(55.5, 12.5, 0, 1);
  const auto none = job.Event("1.010");
  job.Value(none, none, 0, "free \"text\", \xC3\xA9 \xE2\x82\xAC \xE2\x88\x9E", 12);
  const auto unknown = job.Event("1.020"); // not even its position
  job.Value(unknown, unknown, 99, "1");
  job.Fix(0, 12.5); // on the equator the fix is lost, the point is not
  const auto noLatitude = job.Event("1.030");
  job.Value(noLatitude, noLatitude, 5, "1");
  job.Fix(-0.5, -170.25, 9999.96, 0, 3);
  const auto noFix = job.Event("1.040");
  job.Value(noFix, noFix, 5, "2");
  EXPECT_EQ(Job::Records(job.Comma()), "5280,0,070811, 55.5000000,  12.5000000,   0.0,1, 9,    ,   \n"
                                       "5311,   1.010,  0,12,\"free \"text\", \xE9 \x80 ?\"\n"
                                       "5311,   1.030,  5,1,\"1\"\n"
                                       "5280,1,070814, -0.5000000,-170.2500000,10000.0,0, 3,    ,   \n"
                                       "5311,   1.040,  5,2,\"2\"\n" +
                                           Last);
}

TEST(CommaFile, StopsAtARegistrationThatFindsNoStation) {
  Job job;
  job.Begin();
  const auto a = job.Step("1.000"), b = job.Step("1.100"), c = job.Step("1.200");
  job.Value(a, b, 5, "1");
  job.Value(b, b, 5, "1"); // a point behind the stretch of its own station waits for ever
  job.Value(b, c, 5, "2");
  EXPECT_EQ(Job::Records(job.Comma()), Stretch("   1.000", "   1.100", "1") + Last);
}

TEST(CommaFile, TakesOnlyTheFirstValueOfAStretchThatDoesNotFollowOn) {
  Job job;
  job.Offer(6, "Patch", "P", 1);
  job.Begin();
  const auto a = job.Step("1.000"), b = job.Step("1.100"), c = job.Step("1.200"), d = job.Step("1.300");
  job.Value(a, b, 6, "1");
  job.Value(c, d, 6, "2"); // nothing was registered from b to c
  const std::string both = Stretch("   1.000", "   1.100", "1") + Stretch("   1.100", "   1.300", "2") + Last;
  EXPECT_EQ(Job::Records(job.Comma()), both);
  EXPECT_FALSE(job.comma.HoldsAll()) << "its start is lost";
  job.Value(c, d, 5, "3"); // a second value of it stops the walk
  const auto e = job.Step("1.400");
  job.Value(d, e, 6, "1");
  EXPECT_EQ(Job::Records(job.Comma()), both);
}

TEST(CommaFile, ClearsOnlyTheValuesOfTheRunningSetup) {
  Job job;
  job.Offer(6, "Patch", "P", 1);
  job.Begin("SMALLER");
  const auto a = job.Step("1.000"), b = job.Step("1.100"), c = job.Step("1.200");
  job.Value(a, b, 6, "1");
  job.Value(a, b, 5, "2");
  job.Value(b, c, 99, "1"); // known to nobody, but it makes a stretch
  job.state.file.AsciiName = "SMALLER";
  job.comma.WriteCommaFile(job.state.file.SessionID, true, 1);
  const std::string text = job.machine.drives.Read("D:\\Data\\SMALLER.TKR");
  EXPECT_NE(text.find("5301,   1.000,   1.100,1,2,"), std::string::npos);
  EXPECT_NE(text.find("5301,   1.100,   1.200,0,2,"), std::string::npos);
  EXPECT_FALSE(job.comma.HoldsAll()) << "one has no column";
}

TEST(CommaFile, WritesAHeadAloneForOneStationAndNothingForNone) {
  Job job;
  job.Begin();
  EXPECT_EQ(job.Comma(), "");
  EXPECT_EQ(job.comma.Outcome(), CommaOutcome::Nothing);
  const auto only = job.Step("1.000");
  job.Value(only, only, 5, "1"); // the first station makes no record
  EXPECT_EQ(Job::Records(job.Comma()), Last);
  EXPECT_EQ(job.comma.Outcome(), CommaOutcome::Written);
  EXPECT_FALSE(job.comma.WriteCommaFile(7, true, 1)) << "no such session";
  EXPECT_FALSE(job.comma.WriteCommaFile(0, false, 1)) << "not wanted";
}

// Last step, lowest, highest, the step before, step length; and the limits that a road may lie beyond.
TEST(CommaFile, TellsTheStationsOfTheSession) {
  const struct {
    int unit;
    std::vector<std::string> stations;
    const char* record;
  } cases[] = {{0, {"1.000", "1.100", "1.200"}, "5023,3,0,0,   1.200,   1.000,   1.200,   1.100,   0.100\n"},
               {0, {"1500.0", "1499.9"}, "5023,3,0,0,1499.900, 999.999,1500.000,1500.000,   0.100\n"},
               {1, {"1000.5", "1100.4"}, "5023,3,0,0,    1100,    1001,    1100,    1001,     100\n"},
               {3, {"12.3456", "12.5279"}, "5023,3,0,0, 12.5279, 12.3456, 12.5279, 12.3456,  0.0328\n"},
               // a unit that files don't know: no pattern, the digit 0
               {6, {"63360"}, "5010,0,0,0,0,0,0,0,0,1,0,0,0,0,0,1,0,0,0,0,0,\"SI\",\"\"\n"}};
  for (const auto& [unit, stations, record] : cases) {
    Job job;
    job.state.units.FileStationUnit = unit;
    ASSERT_TRUE(job.Create("UNITS"));
    for (const std::string& station : stations)
      job.Step(station);
    EXPECT_EQ(LineWith(job.Comma(), std::string(record, 5)), record);
  }
}

TEST(CommaFile, JoinsSessionsOrKeepsThemApart) {
  Job job;
  job.Begin();
  const auto a = job.Step("1.000"), b = job.Step("1.100");
  job.Value(a, b, 5, "1");
  for (int more = 0; more < 2; ++more) {
    job.files.NewSession();
    const auto from = job.Step("2.000"), to = job.Step("2.100");
    job.files.AddObservation(job.setup.Observations(1));
    job.Value(from, to, 5, "2");
  }
  ExportWish wish;
  wish.loadedObservations = [](std::int32_t) { return 1; };
  ExportResult result = ExportSessions(job.state.file, job.files, job.comma, wish);
  EXPECT_EQ(result.written, std::vector<std::string>{"JOB"});
  // The second session's stretch starts where the first one's ended; all sessions stand in one walk.
  EXPECT_NE(job.machine.drives.Read("D:\\Data\\JOB.TKR").find("5301,   1.100,   2.100,2,"), std::string::npos);

  wish.join = false;
  result = ExportSessions(job.state.file, job.files, job.comma, wish);
  EXPECT_EQ(result.written, (std::vector<std::string>{"JOB-01", "JOB-02", "JOB-03"}));
  EXPECT_NE(job.machine.drives.Read("D:\\Data\\JOB-02.TKR").find("5301,   2.000,   2.100,2,"), std::string::npos);

  // Without session 1 the search fails and the walk goes on behind the first row, so session 2 is never written.
  ASSERT_TRUE(job.files.database->Execute("DELETE FROM Sessions WHERE SessionID=1"));
  result = ExportSessions(job.state.file, job.files, job.comma, wish);
  EXPECT_EQ(result.written, std::vector<std::string>{"JOB-03"});

  wish.CheckTKR = false;
  EXPECT_TRUE(ExportSessions(job.state.file, job.files, job.comma, wish).written.empty());
}

TEST(CommaFile, TellsEachPercentOnceAndLeavesTheRunsStations) {
  Job job;
  job.Begin();
  std::int32_t before = job.Step("0.000");
  for (int i = 1; i <= 400; ++i) {
    const std::int32_t here = job.Step(std::to_string(i) + ".000");
    job.Value(before, here, 5, "1");
    before = here;
  }
  job.state.position.StepSize.SetFileValue(0.5);
  std::vector<int> percents;
  job.comma.AsciiFileProgress = [&percents](int p) { percents.push_back(p); };
  job.Comma();
  std::vector<int> all(100);
  std::iota(all.begin(), all.end(), 0);
  EXPECT_EQ(percents, all);
  EXPECT_DOUBLE_EQ(job.state.position.KeyStation.Default(), 400);
  EXPECT_DOUBLE_EQ(job.state.position.PreviousStation.Default(), 399);
  EXPECT_DOUBLE_EQ(job.state.position.StepSize.FileValue(), 0.1) << "the session's, for good";
  EXPECT_TRUE(job.comma.HoldsAll());
}

TEST(CommaFile, SaysWhenTheFileIsShort) {
  Job job;
  ASSERT_TRUE(job.Create("FULL"));
  job.Step("1.000");
  job.state.file.DataPath = "D:\\Nowhere";
  job.state.file.AsciiName = "FULL";
  EXPECT_FALSE(job.comma.WriteCommaFile(0, true, 0));
  EXPECT_EQ(job.comma.Outcome(), CommaOutcome::Unwritable);
  std::error_code none;
  if (!std::filesystem::exists("/dev/full", none))
    return;
  std::filesystem::create_symlink("/dev/full", job.machine.drives.NativePath("D:\\Data\\FULL.TKR"));
  job.state.file.DataPath = "D:\\Data";
  EXPECT_FALSE(job.comma.WriteCommaFile(0, true, 0));
  EXPECT_EQ(job.comma.Outcome(), CommaOutcome::Unwritable);
}

// A head without its observations looks like one of a smaller setup, and the data file is deleted for it.
TEST(CommaFile, SaysWhenItsObservationsOrValuesCannotBeRead) {
  for (const char* lost : {"Observation 89", "value 199"}) {
    Job job;
    for (int i = 0; i < 90; ++i)
      job.Offer(100 + i, "Observation " + std::to_string(i) + std::string(60, 'x'), "Obs", 1);
    ASSERT_TRUE(job.Create("BROKEN"));
    const auto from = job.Step("1.000"), to = job.Step("1.100");
    for (int i = 0; i < 200; ++i)
      job.Value(from, to, 100, "value " + std::to_string(i) + std::string(60, 'x'));
    job.files.CloseDataFile();
    const std::string file = job.DataFile("BROKEN");
    std::string bytes = job.machine.drives.Read(file);
    job.machine.drives.Write(file, bytes.replace(bytes.rfind(lost) / 4096 * 4096, 4096, 4096, '\x7f'));
    job.state.file.DataFilePath = file;
    ASSERT_TRUE(job.files.OpenDataFile(OpenMode::ReadOnly));
    job.Comma(1);
    EXPECT_EQ(job.comma.Outcome(), CommaOutcome::Unreadable) << lost;
  }
}

} // namespace trekor::tests
