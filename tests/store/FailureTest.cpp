// A read that fails is not an empty table, and a write that fails is not a row less in a whole transaction.
#include "StoreFixture.h"

#include <functional>
#include <utility>

namespace trekor {

namespace {

// Three thousand rows of some length, so that the table has pages of its own.
constexpr char items[] = "CREATE TABLE Items(ID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT(80));"
                         "CREATE TABLE Setups(SetupID SMALLINT, Name TEXT(80));"
                         "INSERT INTO Setups VALUES (1,'one'),(2,'two');"
                         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000)"
                         " INSERT INTO Items(Name) SELECT 'an item with a name of some length ' || i FROM n";

class FailureTest : public StoreFixture {
protected:
  void SetUp() override { Make(items); }
  // Another program writes, and lets nobody read meanwhile.
  void Lock() {
    other = Database::Open(path, OpenMode::Shared);
    ASSERT_TRUE(other->Execute("BEGIN EXCLUSIVE"));
  }
  void Unlock() { other.reset(); }
  // Destroys the pages behind the first `whole` hundredths of the file.
  void Damage(int whole) {
    database.reset();
    const auto size = static_cast<std::streamoff>(std::filesystem::file_size(path));
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    const std::streamoff begin = size * whole / 100 / 4096 * 4096;
    file.seekp(begin);
    file << std::string(static_cast<std::size_t>(size - begin), '\x7f');
    file.close();
    Reopen(OpenMode::Shared);
  }
  std::unique_ptr<Database> other;
};

} // namespace

TEST_F(FailureTest, NothingIsReadUnderALockAndEachReaderSaysSo) {
  const auto query = database->OpenQuery("SELECT * FROM Setups");
  const auto table = database->OpenTable("Setups"), keyed = database->OpenTable("Items");
  keyed->SetIndex("ID");
  EXPECT_FALSE(database->Failed());
  Lock();
  EXPECT_FALSE(database->OpenQuery("SELECT * FROM Setups"));
  EXPECT_FALSE(database->OpenTable("Items"));
  EXPECT_FALSE(query->Requery());
  EXPECT_EQ(query->Get("Name"), FieldValue("one")) << "the rows that were read before";
  table->MoveNext();
  EXPECT_TRUE(table->Eof() && table->Failed());
  EXPECT_FALSE(keyed->Seek(5));
  EXPECT_TRUE(keyed->Failed() && database->Failed());
  EXPECT_EQ(keyed->RecordCount(), 0);
  Unlock();
  EXPECT_TRUE(query->Requery() && table->Requery() && keyed->Seek(5));
  EXPECT_FALSE(table->Failed() || keyed->Failed());
  EXPECT_EQ(Walk(*table, "Name"), (Texts{"one", "two"}));
  EXPECT_FALSE(keyed->Seek(5000));
  EXPECT_FALSE(keyed->Failed()) << "there is none";
}

// The layout of a table is asked at its first use.
TEST_F(FailureTest, ATableThatIsAskedForUnderALockIsThereAfterwards) {
  Lock();
  EXPECT_FALSE(database->HasTable("Setups"));
  EXPECT_TRUE(database->TableNames().empty() && database->Failed());
  Unlock();
  EXPECT_TRUE(database->HasTable("Setups"));
  EXPECT_EQ(database->Fields("Setups").size(), 2U);
}

TEST_F(FailureTest, ARowThatCannotBeReadAgainIsNotAnEmptyRow) {
  const auto rows = database->OpenTable("Setups"), writer = database->OpenTable("Setups");
  writer->AddNew();
  writer->Set("Name", "three");
  ASSERT_TRUE(writer->Update()); // so that the other one has to look again
  Lock();
  EXPECT_TRUE(rows->Get("Name").IsNull());
  EXPECT_TRUE(rows->Failed());
  EXPECT_FALSE(rows->Edit());
  Unlock();
  EXPECT_EQ(rows->Get("Name"), FieldValue("one"));
  EXPECT_TRUE(rows->Failed()) << "until the walk begins again";
}

TEST_F(FailureTest, ADamagedPageEndsAWalkWithAFailure) {
  Damage(50);
  EXPECT_FALSE(database->OpenQuery("SELECT * FROM Items"));
  const auto rows = database->OpenTable("Items");
  ASSERT_TRUE(rows) << "its beginning is whole";
  const std::size_t read = Walk(*rows, "Name").size();
  EXPECT_TRUE(read > 100 && read < 3000) << read;
  EXPECT_TRUE(rows->Failed());
  rows->MoveFirst();
  EXPECT_FALSE(rows->Failed());
}

TEST_F(FailureTest, ATransactionInWhichTheFileFailedIsTakenBackWhole) {
  const auto rows = database->OpenTable("Items"), setups = database->OpenTable("Setups");
  const auto add = [](Recordset& to, const std::string& name) {
    return to.AddNew() && to.Set("Name", name) && to.Update();
  };
  database->Execute("CREATE UNIQUE INDEX Setups_Name ON Setups(Name)");
  const std::string pages = database->OpenQuery("PRAGMA page_count")->Get(0).Text();
  database->Execute("PRAGMA max_page_count=" + pages);
  ASSERT_TRUE(database->Begin() && add(*setups, "three"));
  const std::string large(5000, 'x');
  EXPECT_FALSE(database->Execute("INSERT INTO Items(Name) VALUES ('" + large + large + large + "')")) << "no room";
  EXPECT_FALSE(add(*setups, "four"));
  EXPECT_FALSE(database->Commit());
  EXPECT_EQ(setups->RecordCount(), 2);
  ASSERT_TRUE(database->Begin() && add(*setups, "three"));
  EXPECT_FALSE(add(*setups, "two")) << "a row that is refused is no failure of the file";
  setups->CancelUpdate();
  EXPECT_TRUE(database->Commit());
  EXPECT_EQ(setups->RecordCount(), 3);
}

TEST_F(FailureTest, AnAutomaticKeyCanBeAskedToReachANumber) {
  Reopen(OpenMode::Exclusive);
  const auto rows = database->OpenTable("Items");
  ASSERT_TRUE(rows->AddNew(2000000000) && rows->Update());
  rows->MoveLast();
  EXPECT_EQ(rows->Get("ID"), FieldValue(2000000000));
  rows->AddNew(5);
  EXPECT_EQ(rows->Get("ID"), FieldValue(2000000001));
}

} // namespace trekor
