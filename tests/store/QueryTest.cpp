// Queries as the program writes them: joins, LIKE, order, editing through a query, large results.
#include "StoreFixture.h"

#include "store/Cursor.h"
#include "store/LikePattern.h"
#include "support/Case.h"

namespace trekor::tests {

constexpr char vocabulary[] =
    "CREATE TABLE Observations(ObsParID INTEGER PRIMARY KEY AUTOINCREMENT, LanguageID SMALLINT, ObsCode SMALLINT,"
    " ParCode SMALLINT DEFAULT 0, DataType SMALLINT DEFAULT 1, RegModeCode SMALLINT DEFAULT 1, KeyingCode SMALLINT);"
    "CREATE TABLE ObsLinguistic(LanguageID SMALLINT, ObsCode SMALLINT, ObsNameDisp TEXT(80) COLLATE NOCASE);"
    "CREATE UNIQUE INDEX ObsLinguistic_Key ON ObsLinguistic(LanguageID, ObsCode);"
    "CREATE TABLE Setups(SetupID SMALLINT, ObsParID INTEGER, GridPosition SMALLINT, KeyCode SMALLINT DEFAULT -1);"
    "CREATE UNIQUE INDEX Setups_Key ON Setups(SetupID, ObsParID);"
    "CREATE TABLE Languages(LanguageID INTEGER PRIMARY KEY AUTOINCREMENT, Language TEXT(80) COLLATE NOCASE);"
    "CREATE TABLE KeyingCodes(KeyingCode SMALLINT, keying TEXT);"
    "INSERT INTO KeyingCodes VALUES (1,'one'),(2,'two');"
    "INSERT INTO Observations(LanguageID, ObsCode, KeyingCode) VALUES (1,30,1),(1,20,2),(1,0,1),(2,20,1);"
    "INSERT INTO ObsLinguistic VALUES (2,20,'Riss'),(1,30,'Patch'),(1,20,'Crack'),(1,0,'None');"
    "INSERT INTO Setups VALUES (5,4,2,65),(5,2,1,-1),(5,1,2,66),(5,3,3,-1),(5,99,4,-1),(6,1,1,-1);"
    "INSERT INTO Languages(Language) VALUES ('road'),('Bridge'),('New Folder (2)'),('new folder (10)'),"
    "('New Folder'),('alley');";

class QueryTest : public StoreFixture {
protected:
  void SetUp() override { Make(vocabulary); }
  Texts Result(const std::string& sql, const std::string& field) {
    const auto rows = database->OpenQuery(sql);
    return rows ? Walk(*rows, field) : Texts{database->LastError()};
  }
};

constexpr char loadSetup[] =
    "SELECT * FROM Setups, Observations, ObsLinguistic WHERE Setups.SetupID=5 AND Setups.ObsParID = "
    "Observations.ObsParID AND Observations.LanguageID=ObsLinguistic.LanguageID AND "
    "Observations.ObsCode=ObsLinguistic.ObsCode AND NOT Observations.ObsCode=0 ORDER BY GridPosition";

TEST_F(QueryTest, AJoinGivesItsRowsInOrderTiesAsInserted) {
  const auto rows = database->OpenQuery(loadSetup);
  ASSERT_TRUE(rows);
  EXPECT_EQ(rows->RecordCount(), 3) << "code 0 and the item without a row are left out";
  EXPECT_EQ(Walk(*rows, "ObsNameDisp"), (Texts{"Crack", "Riss", "Patch"}));
  rows->MoveFirst();
  EXPECT_EQ(rows->Get("Observations.Obscode"), FieldValue(20));
  EXPECT_EQ(rows->Get("observations.keyingcode"), FieldValue(2));
  EXPECT_EQ(rows->FieldCount(), 4 + 7 + 3);
  EXPECT_FALSE(rows->HasField("Setups.Language"));
  EXPECT_FALSE(rows->HasField("rowid"));
}

TEST_F(QueryTest, ATableWithoutAConditionMultipliesTheRows) {
  const auto rows = database->OpenQuery("SELECT * FROM Observations, ObsLinguistic, KeyingCodes WHERE ObsParID=2 AND "
                                        "Observations.ObsCode=ObsLinguistic.ObsCode AND "
                                        "Observations.LanguageID=ObsLinguistic.LanguageID");
  ASSERT_TRUE(rows);
  EXPECT_EQ(rows->RecordCount(), 2);
  EXPECT_EQ(rows->Get("Observations.keyingcode"), FieldValue(2));
}

TEST_F(QueryTest, NumbersWithLeadingBlanksAndOtherSpellings) {
  EXPECT_EQ(Result("SELECT * FROM Setups WHERE SetupID= 6 AND ObsParID= 1", "KeyCode"), Texts{"-1"});
  EXPECT_EQ(Result("SELECT * FROM ObsLinguistic WHERE (ObsCode= 30 AND LanguageID=1)", "ObsNameDisp"), Texts{"Patch"});
  EXPECT_EQ(Result("SELECT * FROM Languages ORDER BY Language", "Language"),
            (Texts{"alley", "Bridge", "New Folder", "new folder (10)", "New Folder (2)", "road"}));
  EXPECT_EQ(Result("SELECT * FROM Setups WHERE SetupID=5 AND GridPosition>=2", "KeyCode"),
            (Texts{"65", "66", "-1", "-1"}));
  EXPECT_FALSE(database->OpenQuery("SELECT * FROM Nothing"));
  EXPECT_FALSE(database->OpenQuery("DELETE FROM Setups"));
  EXPECT_FALSE(database->OpenQuery(""));
  EXPECT_EQ(Table("Setups")->RecordCount(), 6);
}

TEST_F(QueryTest, LikeKeepsItsStar) {
  EXPECT_EQ(Result("SELECT * from Languages WHERE Language LIKE 'New Folder (*)'", "Language"),
            (Texts{"New Folder (2)", "new folder (10)"}));
  for (const Case c : {" -> ", "* -> ", "? -> æ", "a*b*c -> aXbbYc", "100% -> 100%", "# -> 7", "[a-c]1 -> B1",
                       "[*] -> *", "[ -> [", "**a -> bca"})
    EXPECT_TRUE(LikeMatches(c.given, c.wanted)) << c.line;
  for (const Case c : {"? -> ", "a*b*c -> aXbbY", "100% -> 1000", "_ -> a", "# -> x", "[!a-c]1 -> B1", "[*] -> x",
                       "a -> ab", "*a*a*a*a*b -> aaaaaaaaaaaaaaaaaaaa"})
    EXPECT_FALSE(LikeMatches(c.given, c.wanted)) << c.line;
}

TEST_F(QueryTest, RowsOfAQueryAreEditedInTheirTable) {
  const auto rows = database->OpenQuery("SELECT * FROM Setups WHERE SetupID=5 ORDER BY GridPosition");
  int place = 10; // raising the very field that orders: each row is met once
  for (; !rows->Eof(); rows->MoveNext()) {
    ASSERT_TRUE(Edit(*rows, {{"GridPosition", place++}}));
    EXPECT_EQ(rows->Get("GridPosition"), FieldValue(place - 1));
  }
  EXPECT_EQ(Result("SELECT * FROM Setups WHERE SetupID=5 ORDER BY GridPosition", "ObsParID"),
            (Texts{"2", "4", "1", "3", "99"}));
  EXPECT_EQ(Walk(*Table("Setups"), "GridPosition"), (Texts{"11", "10", "12", "13", "14", "1"}));
}

TEST_F(QueryTest, AJoinWritesEachFieldIntoItsOwnTable) {
  const auto rows = database->OpenQuery(loadSetup);
  ASSERT_TRUE(Edit(*rows, {{"KeyCode", 70}, {"ObsNameDisp", "Long crack"}}));
  EXPECT_FALSE(rows->AddNew());
  EXPECT_EQ(Walk(*Table("Setups"), "KeyCode")[1], "70");
  EXPECT_EQ(Walk(*Table("ObsLinguistic"), "ObsNameDisp")[2], "Long crack");
}

TEST_F(QueryTest, DeletingAndAddingThroughAQuery) {
  const auto rows = database->OpenQuery("SELECT * FROM Observations ORDER BY ObsParID");
  rows->MoveNext();
  ASSERT_TRUE(rows->Delete());
  EXPECT_TRUE(rows->Get("ObsCode").IsNull());
  EXPECT_EQ(rows->RecordCount(), 3);
  ASSERT_TRUE(rows->AddNew());
  EXPECT_EQ(rows->Get("ObsParID"), FieldValue(5));
  EXPECT_EQ(rows->Get("DataType"), FieldValue(1)) << "defaults are there from the start";
  ASSERT_TRUE(rows->Set("ObsCode", 77) && rows->Update());
  rows->MoveLast();
  EXPECT_EQ(rows->Get("ObsCode"), FieldValue(77));
  EXPECT_EQ(Walk(*rows, "ObsParID"), (Texts{"1", "3", "4", "5"}));
  for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext())
    EXPECT_TRUE(rows->Delete());
  EXPECT_EQ(rows->RecordCount(), 0);
  rows->MoveFirst();
  EXPECT_TRUE(rows->Eof());
  rows->MoveLast();
  EXPECT_TRUE(rows->Eof()) << "the last one is gone too";
}

TEST_F(QueryTest, AWalkThatHasEndedDoesNotBeginAgain) {
  Cursor rows(*database, "SELECT keying FROM KeyingCodes");
  EXPECT_TRUE(rows.Step() && rows.Step());
  EXPECT_FALSE(rows.Step() || rows.Step() || rows.Failed());
}

TEST_F(QueryTest, WhatIsComputedCanOnlyBeRead) {
  const auto rows = database->OpenQuery("SELECT count(*) AS n, max(KeyCode) FROM Setups GROUP BY SetupID");
  ASSERT_TRUE(rows);
  EXPECT_EQ(Walk(*rows, "n"), (Texts{"5", "1"}));
  rows->MoveFirst();
  EXPECT_FALSE(rows->Edit());
  EXPECT_FALSE(rows->AddNew());
}

TEST_F(QueryTest, LargeResultsWalkCountRestartAndEdit) {
  database->Execute(
      "CREATE TABLE Stations(StationID INTEGER PRIMARY KEY AUTOINCREMENT, SessionID INTEGER, Station REAL);"
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000)"
      " INSERT INTO Stations(SessionID, Station) SELECT 1, i FROM n");
  const auto query = database->OpenQuery("SELECT * FROM Stations WHERE SessionID= 1 ORDER BY StationID");
  const auto table = Table("Stations");
  for (Recordset* rows : {query.get(), table.get()}) {
    int seen = 0;
    for (rows->MoveFirst(); !rows->Eof(); rows->MoveNext()) {
      ASSERT_EQ(rows->Get("StationID"), FieldValue(++seen));
      ASSERT_TRUE(seen % 700 != 0 || Edit(*rows, {{"Station", -seen}}));
      ASSERT_EQ(rows->Get("Station").Number(), seen % 700 == 0 ? -seen : seen);
    }
    EXPECT_EQ(seen, 3000);
    EXPECT_EQ(rows->RecordCount(), 3000);
    rows->MoveLast();
    EXPECT_EQ(rows->Get("StationID"), FieldValue(3000));
    EXPECT_TRUE(rows->Requery());
    EXPECT_EQ(rows->Get("StationID"), FieldValue(1));
  }
}

// A recordset that rests on a row must not keep another program from writing, whatever its size.
TEST_F(QueryTest, ARestingRecordsetHoldsNoLock) {
  database->Execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<3000)"
                    " INSERT INTO Observations(LanguageID, ObsCode) SELECT 3, i FROM n");
  const auto large = database->OpenQuery("SELECT * FROM Observations ORDER BY ObsParID");
  const auto rest = Table("Observations"), table = Table("Languages");
  for (int i = 0; i < 700; ++i) {
    large->MoveNext();
    rest->MoveNext();
  }
  const auto query = database->OpenQuery("SELECT * FROM Languages ORDER BY Language");
  table->MoveNext();
  query->MoveNext();
  const auto other = Database::Open(path, OpenMode::Shared);
  ASSERT_TRUE(other);
  EXPECT_TRUE(other->Execute("UPDATE Languages SET Language='Path' WHERE LanguageID=3"));
  table->MoveFirst();
  table->MoveNext();
  table->MoveNext();
  EXPECT_EQ(table->Get("Language"), FieldValue("Path"));
}

} // namespace trekor::tests
