// Opening, locking, closing; what is left after a kill; files that are no databases.
#include "StoreFixture.h"

#include <chrono>
#include <csignal>

#include <sys/wait.h>

namespace trekor {

namespace {

constexpr char roads[] = "CREATE TABLE Stations(StationID INTEGER PRIMARY KEY AUTOINCREMENT, Station REAL);"
                         "CREATE TABLE Registrations(RegID INTEGER PRIMARY KEY AUTOINCREMENT, FromID INTEGER);";

class DurabilityTest : public StoreFixture {
protected:
  void SetUp() override { Make(roads); }
  // A grid row as the data file stores it.
  static bool StoreRow(Database& data, Recordset& stations, Recordset& registrations) {
    bool stored = data.Begin() && stations.AddNew();
    const FieldValue key = stations.Get("StationID");
    stored = stored && stations.Update();
    for (int i = 0; i < 20; ++i)
      stored = stored && registrations.AddNew() && registrations.Set("FromID", key) && registrations.Update();
    return data.Commit() && stored;
  }
  // Stores rows in another process until it is killed, which it is when it has stored some.
  void StoreAndDie() {
    database.reset();
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
      const auto data = Database::Open(path, OpenMode::ExclusiveDurable);
      const auto stations = data->OpenTable("Stations"), registrations = data->OpenTable("Registrations");
      while (StoreRow(*data, *stations, *registrations))
        if (write(ends[1], "r", 1) != 1)
          break;
      _exit(1);
    }
    char row = 0;
    for (int i = 0; i < 30; ++i)
      ASSERT_EQ(read(ends[0], &row, 1), 1);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
  }
  void ExpectWholeRows() {
    const auto stations = database->OpenTable("Stations"), registrations = database->OpenTable("Registrations");
    EXPECT_GE(stations->RecordCount(), 30);
    EXPECT_EQ(registrations->RecordCount(), 20 * stations->RecordCount());
    const auto check = database->OpenQuery("PRAGMA integrity_check");
    EXPECT_EQ(check->Get(0), FieldValue("ok"));
  }
};

} // namespace

TEST_F(DurabilityTest, AKilledProgramLeavesEveryStoredRowAndNoHalfOne) {
  for (const OpenMode mode : {OpenMode::ReadOnly, OpenMode::Shared, OpenMode::Exclusive, OpenMode::ExclusiveDurable}) {
    SCOPED_TRACE(static_cast<int>(mode));
    StoreAndDie();
    ASSERT_TRUE(Exists("Road.mdb-wal"));
    Reopen(mode);
    ExpectWholeRows();
    database.reset();
    EXPECT_FALSE(Exists("Road.mdb-wal") || Exists("Road.mdb-shm") || Exists("Road.mdb-journal"));
  }
}

TEST_F(DurabilityTest, ADurableFileIsOnePlainFileAgainAfterTheClose) {
  Reopen(OpenMode::ExclusiveDurable);
  {
    const auto stations = database->OpenTable("Stations"), registrations = database->OpenTable("Registrations");
    EXPECT_TRUE(StoreRow(*database, *stations, *registrations));
  }
  EXPECT_TRUE(Exists("Road.mdb-wal"));
  EXPECT_FALSE(Exists("Road.mdb-shm"));
  database->Close();
  EXPECT_FALSE(Exists("Road.mdb-wal") || Exists("Road.mdb-shm") || Exists("Road.mdb-journal"));
  std::filesystem::copy_file(path, folder + "/Copy.mdb");
  const auto copy = Database::Open(folder + "/Copy.mdb", OpenMode::ReadOnly);
  EXPECT_EQ(copy->OpenTable("Registrations")->RecordCount(), 20);
  std::string head(20, 0);
  std::ifstream(path, std::ios::binary).read(head.data(), 20);
  EXPECT_EQ(head[18] + head[19], 1 + 1) << "the mark of a file without a log";
}

TEST_F(DurabilityTest, AnExclusiveFileIsLockedFromTheFirstMoment) {
  for (const OpenMode mode : {OpenMode::Exclusive, OpenMode::ExclusiveDurable}) {
    Reopen(mode);
    for (const OpenMode second :
         {OpenMode::ReadOnly, OpenMode::Shared, OpenMode::Exclusive, OpenMode::ExclusiveDurable}) {
      std::string error;
      EXPECT_FALSE(Database::Open(path, second, &error)) << static_cast<int>(second);
      EXPECT_FALSE(error.empty());
    }
    EXPECT_TRUE(database->Execute("INSERT INTO Stations(Station) VALUES (1)")) << "the first one is not disturbed";
  }
  Reopen(OpenMode::Shared);
  EXPECT_TRUE(Database::Open(path, OpenMode::Shared));
  EXPECT_EQ(database->OpenTable("Stations")->RecordCount(), 2);
}

// Other programs share some of the databases: their commit must not look like a damaged file at our start.
TEST_F(DurabilityTest, OpeningWaitsAShortWhileForAnotherProgram) {
  Reopen(OpenMode::Exclusive);
  for (const OpenMode mode : {OpenMode::Shared, OpenMode::ReadOnly}) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Database::Open(path, mode));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
  }
}

TEST_F(DurabilityTest, NestedTransactionsCountAsOneAndRollBackAsOne) {
  const auto stations = database->OpenTable("Stations");
  EXPECT_TRUE(database->Begin() && database->Begin());
  stations->AddNew();
  stations->Update();
  EXPECT_TRUE(database->Commit());
  database->Rollback();
  EXPECT_EQ(stations->RecordCount(), 0);
  EXPECT_FALSE(database->Commit()) << "none is open";
}

// When the library itself takes a transaction back, what still comes in it must not be stored row by row.
TEST_F(DurabilityTest, AfterALostTransactionNothingIsStoredUntilItEnds) {
  const auto stations = database->OpenTable("Stations");
  database->Begin();
  database->Execute("ROLLBACK");
  stations->AddNew();
  EXPECT_FALSE(stations->Update());
  EXPECT_FALSE(database->Commit());
  EXPECT_TRUE(stations->Update()) << "the buffer is still there";
  EXPECT_EQ(stations->RecordCount(), 1);
}

TEST_F(DurabilityTest, AFullDiskLosesARowAndNothingElse) {
  Reopen(OpenMode::ExclusiveDurable);
  const auto stations = database->OpenTable("Stations"), registrations = database->OpenTable("Registrations");
  ASSERT_TRUE(StoreRow(*database, *stations, *registrations));
  const std::string pages = database->OpenQuery("PRAGMA page_count")->Get(0).Text();
  database->Execute("PRAGMA max_page_count=" + pages);
  int stored = 1;
  while (StoreRow(*database, *stations, *registrations))
    ++stored;
  EXPECT_EQ(registrations->RecordCount(), 20 * stored);
  EXPECT_EQ(stations->RecordCount(), stored);
  database->Execute("PRAGMA max_page_count=100000");
  EXPECT_TRUE(StoreRow(*database, *stations, *registrations)) << "it goes on when there is room again";
}

TEST_F(DurabilityTest, WhatIsNoDatabaseIsNotOpenedAndNotTouched) {
  database.reset();
  std::string good;
  {
    std::ifstream in(path, std::ios::binary);
    good.assign(std::istreambuf_iterator<char>(in), {});
  }
  std::string badSchema = good;
  badSchema.replace(badSchema.find("CREATE TABLE Stations"), 12, "XXXXXXXXXXXX");
  const std::vector<std::pair<std::string, std::string>> files = {{"Empty", ""},
                                                                  {"Short", "ab"},
                                                                  {"Text", std::string(5000, 'x')},
                                                                  {"Foreign", std::string("\0\1\0\0Standard", 12)},
                                                                  {"CutHeader", good.substr(0, 50)},
                                                                  {"CutPages", good.substr(0, 4096 + 100)},
                                                                  {"Schema", badSchema}};
  for (const auto& [name, bytes] : files) {
    const std::string file = folder + "/" + name;
    WriteFile(file, bytes);
    for (const OpenMode mode : {OpenMode::ReadOnly, OpenMode::Shared, OpenMode::ExclusiveDurable})
      EXPECT_FALSE(Database::Open(file, mode)) << name;
    std::ifstream in(file, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), bytes) << name;
  }
  EXPECT_FALSE(Database::Open(folder + "/Missing", OpenMode::Shared));
  EXPECT_FALSE(Database::Open(folder, OpenMode::Shared)) << "a folder";
  EXPECT_FALSE(Exists("Missing"));
  EXPECT_FALSE(Database::Create(path, "")) << "there is one";
}

TEST_F(DurabilityTest, NothingIsWrittenThroughAReadOnlyDatabase) {
  Reopen(OpenMode::ReadOnly);
  const auto stations = database->OpenTable("Stations");
  stations->AddNew();
  EXPECT_FALSE(stations->Update());
  EXPECT_FALSE(database->AppendField("Stations", {.name = "Extra"}));
}

// Stored in one place, read on a medium where nothing can be written: with the log's mark still in the file it is read
// too.
TEST_F(DurabilityTest, AReadOnlyFolderIsEnoughForReading) {
  if (geteuid() == 0)
    GTEST_SKIP() << "the administrator can write everywhere";
  database->Execute("PRAGMA journal_mode=WAL");
  database.reset();
  using std::filesystem::perms;
  std::filesystem::permissions(path, perms::owner_read);
  std::filesystem::permissions(folder, perms::owner_read | perms::owner_exec);
  database = Database::Open(path, OpenMode::ReadOnly);
  EXPECT_TRUE(database && database->HasTable("Stations"));
  EXPECT_FALSE(Database::Open(path, OpenMode::ExclusiveDurable));
  std::filesystem::permissions(folder, perms::owner_all);
}

TEST_F(DurabilityTest, StructureIsToldAsDeclaredAndGrows) {
  database->Execute("CREATE TABLE Form(Name TEXT(40) COLLATE NOCASE PRIMARY KEY, Left SINGLE DEFAULT -1.5 NOT NULL,"
                    " Tag VARCHAR(8), Icon LONGBINARY); CREATE INDEX Form_LeftTag ON Form(Left, Tag);");
  EXPECT_EQ(database->TableNames(), (Texts{"Stations", "Registrations", "Form"}));
  const auto indexes = database->Indexes("form");
  ASSERT_EQ(indexes.size(), 2U);
  EXPECT_EQ(indexes[0].name + indexes[1].name, "NameLeftTag");
  EXPECT_TRUE(indexes[0].primary && indexes[0].unique && !indexes[1].primary);
  EXPECT_EQ(indexes[1].fields, (Texts{"Left", "Tag"}));
  EXPECT_EQ(database->Indexes("Stations")[0].name, "StationID");
  FieldDefinition extra{.name = "CapDansk å", .type = FieldType::Text, .size = 30, .defaultValue = "it's"};
  ASSERT_TRUE(database->AppendField("FORM", extra));
  EXPECT_FALSE(database->AppendField("Form", extra)) << "it is there";
  EXPECT_FALSE(database->AppendField("Nothing", extra));
  const auto fields = database->Fields("Form");
  ASSERT_EQ(fields.size(), 5U);
  EXPECT_EQ(fields[1].defaultValue, FieldValue(-1.5));
  EXPECT_TRUE(fields[1].required && fields[1].type == FieldType::Single);
  EXPECT_EQ(fields[2].size, 8);
  EXPECT_TRUE(fields[4].name == extra.name && fields[4].type == extra.type && fields[4].size == 30);
  EXPECT_EQ(fields[4].defaultValue, FieldValue("it's"));
  EXPECT_TRUE(database->Fields("Stations")[0].autoNumber);
}

TEST_F(DurabilityTest, ARecordsetThatOutlivesItsDatabaseIsHarmless) {
  const auto stations = database->OpenTable("Stations");
  const auto query = database->OpenQuery("SELECT * FROM Stations");
  database->Close();
  EXPECT_FALSE(stations->AddNew() && stations->Update());
  stations->MoveFirst();
  EXPECT_TRUE(stations->Eof());
  query->Requery();
  EXPECT_TRUE(query->Eof());
  EXPECT_FALSE(database->OpenTable("Registrations"));
}

} // namespace trekor
