// A read that fails is not an empty table, and a write that fails is not a row less in a whole transaction.
#include "StoreFixture.h"

namespace trekor::tests {

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
  void Damage(std::size_t whole) {
    database.reset();
    std::string bytes = BytesOf(path);
    const std::size_t begin = bytes.size() * whole / 100 / 4096 * 4096;
    WriteBytes(path, bytes.replace(begin, bytes.npos, bytes.size() - begin, '\x7f'));
    Reopen(OpenMode::Shared);
  }
  std::unique_ptr<Database> other;
};

TEST_F(FailureTest, NothingIsReadUnderALockAndEachReaderSaysSo) {
  const auto query = database->OpenQuery("SELECT * FROM Setups");
  const auto table = Table("Setups"), keyed = Table("Items");
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
  const auto rows = Table("Setups");
  ASSERT_TRUE(Add(*Table("Setups"), {{"Name", "three"}})); // so that the other one has to look again
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
  const auto setups = Table("Setups");
  database->Execute("CREATE UNIQUE INDEX Setups_Name ON Setups(Name)");
  FillDisk();
  ASSERT_TRUE(database->Begin() && Add(*setups, {{"Name", "three"}}));
  EXPECT_FALSE(database->Execute("INSERT INTO Items(Name) VALUES ('" + std::string(15000, 'x') + "')")) << "no room";
  EXPECT_TRUE(database->Failed());
  EXPECT_FALSE(Add(*setups, {{"Name", "four"}}));
  EXPECT_FALSE(database->Commit());
  EXPECT_EQ(setups->RecordCount(), 2);
  ASSERT_TRUE(database->Begin() && Add(*setups, {{"Name", "three"}}));
  EXPECT_FALSE(Add(*setups, {{"Name", "two"}})) << "a row that is refused is no failure of the file";
  setups->CancelUpdate();
  EXPECT_TRUE(database->Commit());
  EXPECT_EQ(setups->RecordCount(), 3);
}

} // namespace trekor::tests
