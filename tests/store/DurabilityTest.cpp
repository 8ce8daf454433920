// Opening, locking, closing; transactions and full disks; files that are no databases; structure.
#include "StoreFixture.h"

#include <chrono>
#include <csignal>

#include <sys/resource.h>
#include <sys/wait.h>

namespace trekor::tests {

constexpr char roads[] = "CREATE TABLE Stations(StationID INTEGER PRIMARY KEY AUTOINCREMENT, Station REAL);"
                         "CREATE TABLE Registrations(RegID INTEGER PRIMARY KEY AUTOINCREMENT, FromID INTEGER);";

class DurabilityTest : public StoreFixture {
protected:
  void SetUp() override { Make(roads); }
  // A grid row as the data file stores it.
  bool StoreRow() {
    const auto stations = Table("Stations"), registrations = Table("Registrations");
    bool stored = database->Begin() && stations->AddNew();
    const FieldValue key = stations->Get("StationID");
    stored = stored && stations->Update();
    for (int i = 0; i < 20; ++i)
      stored = stored && Add(*registrations, {{"FromID", key}});
    return database->Commit() && stored;
  }
  bool HasLog() { return Exists("Road.mdb-wal") || Exists("Road.mdb-shm") || Exists("Road.mdb-journal"); }
};

TEST_F(DurabilityTest, ADurableFileIsOnePlainFileAgainAfterTheClose) {
  Reopen(OpenMode::ExclusiveDurable);
  EXPECT_TRUE(StoreRow());
  EXPECT_TRUE(Exists("Road.mdb-wal"));
  EXPECT_FALSE(Exists("Road.mdb-shm"));
  database->Close();
  EXPECT_FALSE(HasLog());
  std::filesystem::copy_file(path, folder.File("Copy.mdb"));
  const auto copy = Database::Open(folder.File("Copy.mdb"), OpenMode::ReadOnly);
  EXPECT_EQ(copy->OpenTable("Registrations")->RecordCount(), 20);
  EXPECT_EQ(BytesOf(path).substr(18, 2), "\1\1") << "the mark of a file without a log";
}

// A commit that lengthens the log costs twice as much. Without room for the whole log it grows as it is written, and
// what the attempt took is given back.
TEST_F(DurabilityTest, TheLogHasItsRoomBeforeTheFirstRowWhereTheDiskHasIt) {
  for (const bool room : {true, false}) {
    SCOPED_TRACE(room);
    database.reset();
    const pid_t child = fork(); // for a limit of its own: beyond it writing fails as on a full disk
    if (child == 0) {
      signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{room ? RLIM_INFINITY : 1000000, RLIM_INFINITY};
      setrlimit(RLIMIT_FSIZE, &limit);
      database = Database::Open(path, OpenMode::ExclusiveDurable);
      const auto length = [this] { return std::filesystem::file_size(path + "-wal"); };
      const auto before = length();
      bool stored = true;
      for (int i = 0; i < 20; ++i)
        stored = stored && StoreRow();
      const bool asWanted = room ? before > 4000000 && length() == before : before == 0 && length() < 1000000;
      _exit(stored && asWanted ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    Reopen(OpenMode::ReadOnly);
    EXPECT_EQ(database->OpenTable("Stations")->RecordCount(), room ? 20 : 40);
  }
}

// Other programs share some of the databases: their commit must not look like a damaged file at our start.
TEST_F(DurabilityTest, AnExclusiveFileIsLockedFromTheFirstMomentAndAskedForAShortWhile) {
  for (const OpenMode mode : {OpenMode::Exclusive, OpenMode::ExclusiveDurable}) {
    Reopen(mode);
    for (const OpenMode second :
         {OpenMode::ReadOnly, OpenMode::Shared, OpenMode::Exclusive, OpenMode::ExclusiveDurable}) {
      const auto start = std::chrono::steady_clock::now();
      std::string error;
      EXPECT_TRUE(!Database::Open(path, second, &error) && !error.empty()) << static_cast<int>(second);
      const bool shares = second == OpenMode::ReadOnly || second == OpenMode::Shared;
      EXPECT_TRUE(!shares || std::chrono::steady_clock::now() - start >= std::chrono::milliseconds(200));
    }
    EXPECT_TRUE(database->Execute("INSERT INTO Stations(Station) VALUES (1)")) << "the first one is not disturbed";
  }
  Reopen(OpenMode::Shared);
  EXPECT_TRUE(Database::Open(path, OpenMode::Shared));
  EXPECT_EQ(database->OpenTable("Stations")->RecordCount(), 2);
}

TEST_F(DurabilityTest, NestedTransactionsCountAsOneAndRollBackAsOne) {
  const auto stations = Table("Stations");
  EXPECT_TRUE(database->Begin() && database->Begin() && Add(*stations));
  EXPECT_TRUE(database->Commit());
  database->Rollback();
  EXPECT_EQ(stations->RecordCount(), 0);
  EXPECT_FALSE(database->Commit()) << "none is open";
  // When the library itself rolls back, later rows of the transaction must not be stored one by one.
  database->Begin();
  database->Execute("ROLLBACK");
  EXPECT_FALSE(Add(*stations));
  EXPECT_FALSE(database->Commit());
  EXPECT_TRUE(stations->Update()) << "the buffer is still there";
  EXPECT_EQ(stations->RecordCount(), 1);
}

TEST_F(DurabilityTest, AFullDiskLosesARowAndNothingElse) {
  Reopen(OpenMode::ExclusiveDurable);
  FillDisk();
  int stored = 0;
  while (StoreRow())
    ++stored;
  EXPECT_EQ(Table("Registrations")->RecordCount(), 20 * stored);
  EXPECT_EQ(Table("Stations")->RecordCount(), stored);
  database->Execute("PRAGMA max_page_count=100000");
  EXPECT_TRUE(StoreRow()) << "it goes on when there is room again";
}

TEST_F(DurabilityTest, WhatIsNoDatabaseIsNotOpenedAndNotTouched) {
  database.reset();
  const std::string good = BytesOf(path);
  std::string badSchema = good;
  badSchema.replace(badSchema.find("CREATE TABLE Stations"), 12, "XXXXXXXXXXXX");
  const std::string foreign("\0\1\0\0Standard", 12), file = folder.File("Bad.mdb");
  for (const std::string& bytes : {std::string(), std::string("ab"), std::string(5000, 'x'), foreign,
                                   good.substr(0, 50), good.substr(0, 4096 + 100), badSchema}) {
    WriteBytes(file, bytes);
    for (const OpenMode mode : {OpenMode::ReadOnly, OpenMode::Shared, OpenMode::ExclusiveDurable})
      EXPECT_FALSE(Database::Open(file, mode)) << bytes.substr(0, 50);
    EXPECT_TRUE(BytesOf(file) == bytes) << bytes.substr(0, 50);
  }
  EXPECT_FALSE(Database::Open(folder.File("Missing"), OpenMode::Shared));
  EXPECT_FALSE(Database::Open(folder.path, OpenMode::Shared)) << "a folder";
  EXPECT_FALSE(Exists("Missing"));
  EXPECT_FALSE(Database::Create(path, "")) << "there is one";
}

TEST_F(DurabilityTest, NothingIsWrittenThroughAReadOnlyDatabase) {
  Reopen(OpenMode::ReadOnly);
  EXPECT_FALSE(Add(*Table("Stations")));
  EXPECT_FALSE(database->AppendField("Stations", {.name = "Extra"}));
}

// Stored in one place, read on a medium where nothing can be written: with the log's mark still in the file it is read
// too, whatever its name.
TEST_F(DurabilityTest, AReadOnlyFolderIsEnoughForReading) {
  database->Execute("PRAGMA journal_mode=WAL");
  database.reset();
  const std::string name = folder.File("A4 100%25 #1?.mdb");
  std::filesystem::rename(path, name);
  std::filesystem::permissions(name, std::filesystem::perms(0444));
  std::filesystem::permissions(folder.path, std::filesystem::perms(0555));
  const uid_t user = geteuid();
  ASSERT_EQ(user == 0 ? seteuid(65534) : 0, 0); // the administrator could write all the same
  database = Database::Open(name, OpenMode::ReadOnly);
  EXPECT_TRUE(database && database->HasTable("Stations"));
  EXPECT_FALSE(Database::Open(name, OpenMode::ExclusiveDurable));
  database.reset();
  ASSERT_EQ(seteuid(user), 0);
  std::filesystem::permissions(folder.path, std::filesystem::perms(0755));
}

TEST_F(DurabilityTest, StructureIsToldAsDeclaredAndGrows) {
  database->Execute("CREATE TABLE Form(Name TEXT(40) COLLATE NOCASE PRIMARY KEY, Left SINGLE DEFAULT -1.5 NOT NULL,"
                    " Tag VARCHAR(8), Icon LONGBINARY); CREATE INDEX Form_LeftTag ON Form(Left, Tag);");
  EXPECT_EQ(database->TableNames(), (Texts{"Stations", "Registrations", "Form"}));
  std::string told;
  for (const auto& index : database->Indexes("form")) {
    told += index.name + (index.primary ? " primary" : "") + (index.unique ? " unique" : "");
    for (const auto& field : index.fields)
      told += " " + field;
    told += "; ";
  }
  EXPECT_EQ(told + database->Indexes("Stations")[0].name, "Name primary unique Name; LeftTag Left Tag; StationID");
  FieldDefinition extra{.name = "CapDansk å", .type = FieldType::Text, .size = 30, .defaultValue = "it's"};
  ASSERT_TRUE(database->AppendField("FORM", extra));
  EXPECT_FALSE(database->AppendField("Form", extra)) << "it is there";
  EXPECT_FALSE(database->AppendField("Nothing", extra));
  told.clear();
  for (const auto& field : database->Fields("Form"))
    told += field.name + " " + std::to_string(static_cast<int>(field.type)) + " " + std::to_string(field.size) +
            (field.required ? " required " : " ") + field.defaultValue.Text() + "; ";
  EXPECT_EQ(told, "Name 4 40 ; Left 3 0 required -1.5; Tag 4 8 ; Icon 7 0 ; CapDansk å 4 30 it's; ");
  EXPECT_TRUE(database->Fields("Stations")[0].autoNumber);
}

TEST_F(DurabilityTest, ARecordsetThatOutlivesItsDatabaseIsHarmless) {
  const auto stations = Table("Stations");
  const auto query = database->OpenQuery("SELECT * FROM Stations");
  database->Close();
  EXPECT_FALSE(Add(*stations));
  stations->MoveFirst();
  EXPECT_TRUE(stations->Eof());
  query->Requery();
  EXPECT_TRUE(query->Eof());
  EXPECT_FALSE(database->OpenTable("Registrations"));
}

} // namespace trekor::tests
