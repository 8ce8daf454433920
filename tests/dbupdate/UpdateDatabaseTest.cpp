// A working database meets the template of a release.
#include "UpdateFixture.h"

namespace trekor::tests {

using UpdateDatabaseTest = UpdateFixture;

TEST_F(UpdateDatabaseTest, AMissingWorkingFileIsInstalledFromItsTemplate) {
  Build(templateFile, 2, 3, newOptions);
  drives.DeleteFile(mdb);
  const UpdateResult result = Update("Car 7");
  EXPECT_EQ(result.path, mdb + "\\Car 7.mdb");
  EXPECT_TRUE(result.version.Major == 2 && result.version.Minor == 3 && !result.programEnds);
  EXPECT_EQ(Rows("Options", result.path), "3|shipped|-1\n");
  EXPECT_FALSE(drives.FolderExists(bak));
  EXPECT_TRUE(Boxes().empty());
  const auto writable = std::filesystem::perms::owner_write;
  std::filesystem::permissions(drives.NativePath(result.path), writable, std::filesystem::perm_options::remove);
  Update("Car 7");
  EXPECT_EQ(std::filesystem::status(drives.NativePath(result.path)).permissions() & writable, writable)
      << "a medium's mark goes at any start";
  drives.failing = {working};
  EXPECT_FALSE(Update().programEnds) << "what can't be installed is told, and the program goes on";
  EXPECT_EQ(Boxes(), Words{"Cannot open " + working});
}

TEST_F(UpdateDatabaseTest, ACurrentDatabaseIsNotTouched) {
  const int versions[][4] = {{2, 3, 2, 3}, {2, 3, 2, 4}, {2, 3, 3, 3}, {1, 1, 0, 0}};
  for (const auto& [major, minor, workingMajor, workingMinor] : versions) {
    Build(templateFile, major, minor, newOptions);
    Build(working, workingMajor, workingMinor, oldOptions);
    drives.Write(mdb + "\\Software.ldb", "lock");
    before = drives.Read(working);
    const auto native = drives.NativePath(working);
    const auto time = std::filesystem::last_write_time(native);
    EXPECT_EQ(Update().version.Major, major);
    EXPECT_TRUE(Untouched() && std::filesystem::last_write_time(native) == time) << workingMajor << workingMinor;
    EXPECT_FALSE(drives.FileExists(mdb + "\\Software.ldb") || drives.FileExists(backup));
  }
}

TEST_F(UpdateDatabaseTest, AMinorUpdateKeepsWhatTheSiteHasPutIn) {
  BuildBoth(newOptions, oldOptions);
  Update();
  EXPECT_EQ(Rows("Options"), "3|US|-1|here\n7|SI|1|null\n") << "a null takes the new default, a number is kept";
  EXPECT_TRUE(Updated());
  EXPECT_FALSE(Open(working)->HasTable("SiteOnly"));
  EXPECT_TRUE(drives.Read(backup) == before);
  EXPECT_EQ(fakes.shell.notices, (Words{"Updating " + working + ", Please wait...", ""}));
  const auto options = Open(working);
  const auto rows = options->OpenTable("Options");
  rows->AddNew();
  EXPECT_EQ(rows->Get("ID"), FieldValue(8));
}

TEST_F(UpdateDatabaseTest, TheNumbersAreComparedOneByOne) {
  Build(templateFile, 2, 4, newOptions);
  Build(working, 3, 0, oldOptions);
  Update();
  EXPECT_EQ(Rows("Options"), "3|shipped|-1\n") << "another major number: replaced, not merged";
  EXPECT_TRUE(Open(backup)->HasTable("SiteOnly"));
}

TEST_F(UpdateDatabaseTest, RowsAreMergedByTheKeysAndRulesOfTheRelease) {
  const std::string form = "CREATE TABLE frmSetup(Name TEXT(40) COLLATE NOCASE, Left SINGLE,"
                           " Visible BOOLEAN, CapEnglish TEXT(80)",
                    index = "CREATE UNIQUE INDEX frmSetup_NameIndex ON frmSetup(Name COLLATE NOCASE);",
                    units = "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10)",
                    setups = "CREATE TABLE Setups(SetupID SMALLINT, ObsParID INTEGER);"
                             "CREATE UNIQUE INDEX Setups_Item ON Setups(SetupID, ObsParID);",
                    codes = "CREATE TABLE Codes(Code SMALLINT PRIMARY KEY, Word TEXT); INSERT INTO Codes VALUES ";
  const struct {
    const char* what;
    std::string shipped, site;
    const char *table, *rows;
  } cases[] = {{"a number that the counter has passed is given up: one step shows that the gap grows",
                newOptions + "INSERT INTO Options VALUES (20,'x',0); DELETE FROM Options WHERE ID=20;", oldOptions,
                "Options", "3|US|-1|here\n22|SI|1|null\n"},
               {"forms keep the site's look and take no rows of old controls; what is shown is the release's business",
                form + ", TipEnglish TEXT);" + index +
                    "INSERT INTO frmSetup VALUES ('Me',1,-1,'New','tip'),('cmdNew',5,0,'Added','t');",
                form + ", CapDanish TEXT(80));" + index +
                    "INSERT INTO frmSetup VALUES ('ME',9,0,'Mine','Min'),('cmdGone',2,-1,'Gone','Væk');",
                "frmSetup", "Me|9|-1|Mine|tip|Min\ncmdNew|5|0|Added|t|null\n"},
               {"a row that the release refuses is skipped and the rest goes on",
                units + " UNIQUE NOT NULL, Side SMALLINT CHECK (Side < 5));",
                units + ", Side SMALLINT); INSERT INTO Options VALUES (1,'US',1),(2,'US',2),(3,NULL,3),(4,'SI',9),"
                        "(2000000000,'km',4);",
                "Options", "1|US|1\n2000000000|km|4\n"},
               {"rows without a primary key are added", setups, setups + "INSERT INTO Setups VALUES (1,5),(1,6),(2,5)",
                "Setups", "1|5\n1|6\n2|5\n"},
               {"a row of the same key is the site's", codes + "(1,'one'),(2,'two')", codes + "(2,'zwei')", "Codes",
                "1|one\n2|zwei\n"}};
  for (const auto& c : cases) {
    BuildBoth(c.shipped, c.site);
    Update();
    EXPECT_EQ(Rows(c.table), c.rows) << c.what;
    EXPECT_TRUE(Boxes().empty()) << c.what;
  }
}

TEST_F(UpdateDatabaseTest, EachStepThatFailsIsToldAndLeavesTheOldFile) {
  for (const auto& [failing, box] : {std::pair(backup, backup + " could not be removed! Update cancelled"),
                                     {working, working + " could not be removed! Update cancelled"},
                                     {templateFile, working + " could not be installed! Update cancelled"}}) {
    SCOPED_TRACE(failing);
    BuildBoth(newOptions, oldOptions);
    drives.Write(backup, "older");
    (failing == templateFile ? drives.uncopied : drives.failing.emplace_back()) = failing;
    EXPECT_FALSE(Update().programEnds);
    drives.failing.clear();
    EXPECT_EQ(Boxes(), Words{box});
    EXPECT_TRUE(Untouched());
    EXPECT_EQ(fakes.shell.notices.back(), "");
  }
}

TEST_F(UpdateDatabaseTest, WithoutABackupNothingIsReplaced) {
  BuildBoth(newOptions, oldOptions);
  drives.Write(bak, "a file where the folder should be");
  Update();
  EXPECT_EQ(Boxes(), Words{working + " could not be backed up! Update cancelled"});
  EXPECT_TRUE(fakes.clock.Milliseconds() >= 500 && fakes.pump.sleeps == fakes.pump.count) << "a second try, asleep";
  EXPECT_TRUE(Untouched());
  // The file is held for a moment that ends within the pause.
  drives.DeleteFile(bak);
  drives.uncopied = working;
  fakes.pump.Post([this] { drives.uncopied.clear(); });
  Update();
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(drives.Read(backup) == before && Updated());
}

TEST_F(UpdateDatabaseTest, WhatCannotBeReadEndsTheProgramAndIsNeverOverwritten) {
  EXPECT_TRUE(Update().programEnds) << "no template";
  EXPECT_EQ(Boxes(), Words{"Error:\r\nCannot open " + templateFile});
  MakeDatabase(drives, templateFile, "CREATE TABLE NoVersion(A)");
  EXPECT_TRUE(Update().programEnds);
  EXPECT_EQ(Boxes(), Words{"Cannot open " + templateFile});
  EXPECT_FALSE(drives.FileExists(working)) << "the next release would not replace it";
  Build(templateFile, 2, 4, newOptions);
  MakeDatabase(drives, working, "CREATE TABLE NoVersion(A)");
  for (const std::string& bytes : {std::string("no database"), std::string(), drives.Read(working)}) {
    drives.Write(working, bytes);
    EXPECT_TRUE(Update().programEnds);
    EXPECT_EQ(Boxes(), Words{"Cannot open " + working});
    EXPECT_TRUE(drives.Read(working) == bytes);
  }
}

} // namespace trekor::tests
