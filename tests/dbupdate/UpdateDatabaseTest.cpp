// A working database meets the template of a release.
#include "dbupdate/UpdateDatabase.h"

#include "store/Database.h"
#include "store/Recordset.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trekor {

namespace {

constexpr char templateFile[] = "C:\\Trekor\\Software.vdb";
constexpr char working[] = "C:\\Root\\MDB\\Software.mdb";
constexpr char backup[] = "C:\\Root\\BAK\\Software.mdb";

// Refuses to copy from one path.
class StubbornDrives : public tests::FakeDrives {
public:
  bool CopyFile(const std::string& from, const std::string& to) override {
    return from != refused && FakeDrives::CopyFile(from, to);
  }
  std::string refused;
};

class UpdateDatabaseTest : public testing::Test {
protected:
  UpdateDatabaseTest() {
    folders.AppPath = "C:\\Trekor";
    folders.RootFolder = "C:\\Root";
    folders.ProgramName = "Trekor";
    drives.MakeFolders("C:\\Trekor");
    drives.MakeFolders("C:\\Root");
  }
  void Build(const std::string& path, int major, int minor, const std::string& sql = "") {
    drives.MakeFolder("C:\\Root\\MDB");
    const std::string native = drives.NativePath(path);
    std::filesystem::remove(native);
    ASSERT_TRUE(Database::Create(native, ""));
    ASSERT_TRUE(Open(path)->Execute("CREATE TABLE Version(Major SMALLINT, Minor INTEGER);"
                                    "INSERT INTO Version VALUES(9, 9), (" +
                                    std::to_string(major) + ", " + std::to_string(minor) + ");" + sql));
  }
  std::unique_ptr<Database> Open(const std::string& path) {
    auto database = Database::Open(drives.NativePath(path), OpenMode::Shared);
    if (database)
      database->Execute("PRAGMA synchronous=OFF");
    return database;
  }
  UpdateResult Update(const std::string& name = "") {
    return UpdateDatabase(folders, platform, "Software", "C:\\Root\\MDB", name);
  }
  // All rows of a table as one text: "1;a|2;b".
  std::string Rows(const std::string& table, const std::string& path = working) {
    const auto database = Open(path);
    const auto rows = database->OpenTable(table);
    std::string text;
    for (; rows && !rows->Eof(); rows->MoveNext()) {
      text += text.empty() ? "" : "|";
      for (int i = 0; i < rows->FieldCount(); ++i)
        text += (i == 0 ? "" : ";") + rows->Get(i).Text();
    }
    return text;
  }
  std::vector<std::string> Boxes() { return fakes.shell.boxes; }
  using Words = std::vector<std::string>;

  tests::FakePlatform fakes;
  StubbornDrives drives;
  Platform platform{fakes.clock,    fakes.pump, fakes.socket,  fakes.sound,
                    fakes.keyboard, drives,     fakes.process, fakes.shell};
  FolderPaths folders;
};

constexpr char oldOptions[] =
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10), Site TEXT(5));"
    "INSERT INTO Options VALUES (3,'US','here'),(7,NULL,NULL);"
    "CREATE TABLE SiteOnly(A INTEGER);";
constexpr char newOptions[] = "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10) DEFAULT 'SI',"
                              " Side SMALLINT DEFAULT 1); INSERT INTO Options VALUES (3,'shipped',-1);"
                              "CREATE INDEX Options_ID ON Options(ID DESC);";

} // namespace

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
  const std::string form = "CREATE TABLE frmSetup(Name TEXT(40) COLLATE NOCASE, Left SINGLE, CapEnglish TEXT(80)";
  const std::string index = "CREATE UNIQUE INDEX frmSetup_NameIndex ON frmSetup(Name COLLATE NOCASE);";
  Build(templateFile, 2, 4,
        form + ", TipEnglish TEXT);" + index +
            "INSERT INTO frmSetup VALUES ('Me',1,'New','tip'),('cmdNew',5,'Added','t');");
  Build(working, 2, 3,
        form + ", CapDanish TEXT(80));" + index +
            "INSERT INTO frmSetup VALUES ('ME',9,'Mine','Min'),('cmdGone',2,'Gone','Væk');");
  Update();
  EXPECT_EQ(Rows("frmSetup"), "Me;9;Mine;tip;Min|cmdNew;5;Added;t;");
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
  EXPECT_TRUE(drives.Read(working) == before);
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
