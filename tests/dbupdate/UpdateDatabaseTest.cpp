// A working database meets the template of a release.
#include "UpdateFixture.h"

#include <algorithm>

namespace trekor {

TEST_F(UpdateDatabaseTest, AMissingWorkingFileIsInstalledFromItsTemplate) {
  Build(templateFile, 2, 3, newOptions);
  drives.DeleteFile("C:\\Root\\MDB");
  const UpdateResult result = Update("Car 7");
  EXPECT_EQ(result.path, "C:\\Root\\MDB\\Car 7.mdb");
  EXPECT_TRUE(result.version.Major == 2 && result.version.Minor == 3 && !result.programEnds);
  EXPECT_EQ(Rows("Options", result.path), "3;shipped;-1");
  EXPECT_FALSE(drives.FolderExists("C:\\Root\\BAK"));
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(UpdateDatabaseTest, ACurrentDatabaseIsNotTouched) {
  struct Case {
    int major, minor, workingMajor, workingMinor;
  };
  for (const Case& each : {Case{2, 3, 2, 3}, Case{2, 3, 2, 4}, Case{2, 3, 3, 3}, Case{1, 1, 0, 0}}) {
    Build(templateFile, each.major, each.minor, newOptions);
    Build(working, each.workingMajor, each.workingMinor, oldOptions);
    drives.Write("C:\\Root\\MDB\\Software.ldb", "lock");
    const std::string before = drives.Read(working);
    const auto native = drives.NativePath(working);
    const auto time = std::filesystem::last_write_time(native);
    EXPECT_EQ(Update().version.Major, each.major);
    EXPECT_TRUE(drives.Read(working) == before);
    EXPECT_EQ(std::filesystem::last_write_time(native), time);
    EXPECT_FALSE(drives.FileExists("C:\\Root\\MDB\\Software.ldb"));
    EXPECT_FALSE(drives.FileExists(backup));
  }
}

TEST_F(UpdateDatabaseTest, AMinorUpdateKeepsWhatTheSiteHasPutIn) {
  Build(templateFile, 2, 4, newOptions);
  Build(working, 2, 3, oldOptions);
  const std::string before = drives.Read(working);
  Update();
  EXPECT_EQ(Rows("Options"), "3;US;-1;here|7;SI;1;") << "a null takes the new default, a number is kept";
  EXPECT_EQ(Rows("Version"), "9;9|2;4");
  EXPECT_FALSE(Open(working)->HasTable("SiteOnly"));
  EXPECT_TRUE(drives.Read(backup) == before);
  EXPECT_EQ(fakes.shell.notices, (Words{std::string("Updating ") + working + ", Please wait...", ""}));
  const auto options = Open(working);
  const auto rows = options->OpenTable("Options");
  rows->AddNew();
  EXPECT_EQ(rows->Get("ID"), FieldValue(8));
}

TEST_F(UpdateDatabaseTest, TheNumbersAreComparedOneByOne) {
  Build(templateFile, 2, 4, newOptions);
  Build(working, 3, 0, oldOptions);
  Update();
  EXPECT_EQ(Rows("Options"), "3;shipped;-1") << "another major number: replaced, not merged";
  EXPECT_EQ(Rows("SiteOnly", backup), "");
  EXPECT_TRUE(Open(backup)->HasTable("SiteOnly"));
}

TEST_F(UpdateDatabaseTest, ANumberThatTheCounterHasPassedIsGivenUp) {
  Build(templateFile, 2, 4,
        std::string(newOptions) + "INSERT INTO Options VALUES (20,'x',0); DELETE FROM Options WHERE ID=20;");
  Build(working, 2, 3, oldOptions);
  Update();
  EXPECT_EQ(Rows("Options"), "3;US;-1;here|22;SI;1;") << "one step shows that the gap grows";
}

TEST_F(UpdateDatabaseTest, FormsKeepTheSitesLookAndTakeNoRowsOfOldControls) {
  const std::string form = "CREATE TABLE frmSetup(Name TEXT(40) COLLATE NOCASE, Left SINGLE,"
                           " Visible BOOLEAN, CapEnglish TEXT(80)";
  const std::string index = "CREATE UNIQUE INDEX frmSetup_NameIndex ON frmSetup(Name COLLATE NOCASE);";
  Build(templateFile, 2, 4,
        form + ", TipEnglish TEXT);" + index +
            "INSERT INTO frmSetup VALUES ('Me',1,-1,'New','tip'),('cmdNew',5,0,'Added','t');");
  Build(working, 2, 3,
        form + ", CapDanish TEXT(80));" + index +
            "INSERT INTO frmSetup VALUES ('ME',9,0,'Mine','Min'),('cmdGone',2,-1,'Gone','Væk');");
  Update();
  EXPECT_EQ(Rows("frmSetup"), "Me;9;-1;Mine;tip;Min|cmdNew;5;0;Added;t;") << "what is shown is the release's business";
}

TEST_F(UpdateDatabaseTest, ARowThatTheReleaseRefusesIsSkippedAndTheRestGoesOn) {
  const std::string table = "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10)";
  Build(templateFile, 2, 4, table + " UNIQUE NOT NULL, Side SMALLINT CHECK (Side < 5));");
  Build(working, 2, 3,
        table + ", Side SMALLINT); INSERT INTO Options VALUES (1,'US',1),(2,'US',2),(3,NULL,3),(4,'SI',9),"
                "(2000000000,'km',4);");
  Update();
  EXPECT_EQ(Rows("Options"), "1;US;1|2000000000;km;4");
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(UpdateDatabaseTest, RowsWithoutAPrimaryKeyAreAddedAndDuplicatesSkipped) {
  const std::string tables = "CREATE TABLE Setups(SetupID SMALLINT, ObsParID INTEGER);"
                             "CREATE UNIQUE INDEX Setups_Item ON Setups(SetupID, ObsParID);"
                             "CREATE TABLE Codes(Code SMALLINT PRIMARY KEY, Word TEXT);";
  Build(templateFile, 2, 4, tables + "INSERT INTO Codes VALUES (1,'one'),(2,'two');");
  Build(working, 2, 3, tables + "INSERT INTO Setups VALUES (1,5),(1,6),(2,5); INSERT INTO Codes VALUES (2,'zwei');");
  Update();
  EXPECT_EQ(Rows("Setups"), "1;5|1;6|2;5");
  EXPECT_EQ(Rows("Codes"), "1;one|2;zwei");
}

TEST_F(UpdateDatabaseTest, EachStepThatFailsIsToldAndLeavesTheOldFile) {
  struct Case {
    const char* failing;
    std::string box;
  };
  const Case cases[] = {
      {"C:\\ROOT\\BAK\\SOFTWARE.MDB", std::string(backup) + " could not be removed! Update cancelled"},
      {"C:\\ROOT\\MDB\\SOFTWARE.MDB", std::string(working) + " could not be removed! Update cancelled"},
      {templateFile, std::string(working) + " could not be installed! Update cancelled"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.failing);
    Build(templateFile, 2, 4, newOptions);
    Build(working, 2, 3, oldOptions);
    drives.MakeFolder("C:\\Root\\BAK");
    drives.Write(backup, "older");
    const std::string before = drives.Read(working);
    (std::string(each.failing) == templateFile ? drives.refused : drives.failing.emplace_back()) = each.failing;
    fakes.shell.boxes.clear();
    const UpdateResult result = Update();
    drives.failing.clear();
    EXPECT_EQ(Boxes(), Words{each.box});
    EXPECT_TRUE(drives.Read(working) == before);
    EXPECT_FALSE(result.programEnds);
    EXPECT_EQ(fakes.shell.notices.back(), "");
  }
}

TEST_F(UpdateDatabaseTest, WithoutABackupNothingIsReplaced) {
  Build(templateFile, 2, 4, newOptions);
  Build(working, 2, 3, oldOptions);
  drives.Write("C:\\Root\\BAK", "a file where the folder should be");
  const std::string before = drives.Read(working);
  Update();
  EXPECT_EQ(Boxes(), Words{std::string(working) + " could not be backed up! Update cancelled"});
  EXPECT_TRUE(fakes.clock.Milliseconds() >= 500 && fakes.pump.sleeps == fakes.pump.count) << "a second try, asleep";
  EXPECT_TRUE(drives.Read(working) == before);
  // What holds the file for a moment lets go within the pause.
  drives.DeleteFile("C:\\Root\\BAK");
  drives.refused = working;
  fakes.pump.Post([this] { drives.refused.clear(); });
  fakes.shell.boxes.clear();
  Update();
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(drives.Read(backup) == before);
  EXPECT_EQ(Rows("Version"), "9;9|2;4");
}

TEST_F(UpdateDatabaseTest, WhatCannotBeReadEndsTheProgramAndIsNeverOverwritten) {
  EXPECT_TRUE(Update().programEnds) << "no template";
  Build(templateFile, 2, 4, newOptions);
  for (const std::string& bytes : {std::string("no database"), std::string()}) {
    drives.Write(working, bytes);
    EXPECT_TRUE(Update().programEnds);
    EXPECT_TRUE(drives.Read(working) == bytes);
  }
  drives.DeleteFile(working);
  Database::Create(drives.NativePath(working), "");
  EXPECT_TRUE(Update().programEnds) << "a database without versions";
  EXPECT_EQ(Boxes(), (Words{std::string("Error:\r\nCannot open ") + templateFile, std::string("Cannot open ") + working,
                            std::string("Cannot open ") + working, std::string("Cannot open ") + working}));
}

TEST_F(UpdateDatabaseTest, AWorkingFileThatCannotBeInstalledIsToldButTheProgramGoesOn) {
  Build(templateFile, 2, 4, newOptions);
  drives.failing = {"C:\\ROOT\\MDB\\SOFTWARE.MDB"};
  EXPECT_FALSE(Update().programEnds);
  EXPECT_EQ(Boxes(), Words{std::string("Cannot open ") + working});
}

} // namespace trekor
