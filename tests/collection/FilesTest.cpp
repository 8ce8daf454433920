#include "collection/RunFixture.h"

#include <algorithm>

namespace trekor::tests {

class FileMenuStories : public RunFixture {
protected:
  void SetUp() override { Load(); }
  void Collect(const std::string& name) {
    OpenFile(name);
    StartFromLink(10.0);
    Dmi(10.1);
    Press(F4);
    Sent();
  }
  // A run of steps of 0.1 km, with the keys that are pressed in each.
  void Drive(const std::vector<std::string>& steps) {
    double km = driven += 1;
    StartFromLink(km);
    for (const std::string& keys : steps) {
      for (const char key : keys)
        Press(key);
      Dmi(km += 0.1);
    }
    Press(F4);
    Sent();
  }
  double driven = 0;
};

class FirstStart : public RunFixture {};

// With only the comma file wanted. What the comma file can't hold, for whatever reason, must not go.
TEST_F(FileMenuStories, DataThatStandNowhereElseAreNeverDeleted) {
  state.options.KeepMdb = false;
  fakes.drives.MakeFolders("C:\\Other");
  // Without items whose blank cells are stored too, so that a step can be without registrations.
  for (int i = 1; i <= setup.ObsCount(); ++i)
    if (setup.Observations(i).RegModeCode != RegMode::Point)
      setup.Observations(i).RegModeCode = RegMode::PresentStep;
  const auto fail = [this](const std::string& path) { fakes.drives.failing.push_back(path); };
  const struct {
    const char* name;
    std::function<void()> story; // from the opened file to the close
    bool gone;
  } cases[] = {
      {"WHOLE",
       [this] {
         Drive({"A", "AJ"});
       },
       true},
      {"SECONDRUN", [this] { Drive({"A"}), Drive({"AJ"}); }, false},
      {"SECONDRUNOFONE", [this] { Drive({"A"}), Drive({"A"}); },
       false}, // its stretch would begin where the first run ended
      {"EMPTYSTEP",
       [this] {
         Drive({"A", "", "AJ"});
       },
       false},
      {"RENAMED", [this] { Drive({"A"}), Link("FILE NAME SOMEJOB"); }, false},
      {"MOVED", [this] { Drive({"A"}), Link("FILE PATH C:\\Other"); }, false},
      {"UNSYNCED", [this, fail] { Drive({"A"}), fail("C:\\ROADS\\UNSYNCED.TKR"); }, false},
      {"NOSTATION", [] {}, false},
      {"UNKNOWN", // an item that the session doesn't know finds no column
       [this] {
         Drive({"A"});
         ASSERT_TRUE(files.database->Execute("UPDATE Observations SET ObsCode=999 WHERE ObsCode=101"));
       },
       false},
      {"SHARED", // two items of one code fall into one column
       [this] {
         Drive({"AJ"});
         ASSERT_TRUE(files.database->Execute("UPDATE Observations SET ObsCode=101 WHERE ObsCode=110"));
       },
       false},
      {"TWOSESSIONS",
       [this] {
         Drive({"A"});
         files.CloseDataFile();
         ASSERT_TRUE(files.ReopenDataFile(setup));
         Drive({"A"});
       },
       false},
      {"NOCOMMA", [this] { Drive({"A"}), state.options.WriteAscii = false; }, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    state.options.WriteAscii = true;
    OpenFile(c.name);
    c.story();
    form.mnuClose.Click();
    EXPECT_FALSE(state.run.DataFileOpen);
    EXPECT_NE(Exists("C:\\Roads\\" + std::string(c.name) + ".mdb"), c.gone);
  }
  EXPECT_TRUE(Exists("C:\\Roads\\WHOLE.TKR"));
  EXPECT_TRUE(Exists("C:\\Roads\\SOMEJOB.TKR"));
  EXPECT_EQ(fakes.drives.synced.front(), "C:\\Roads\\WHOLE.TKR");
}

TEST_F(FileMenuStories, AWholeCopyOnTheBackupDriveLetsTheDataFileGo) {
  state.options.KeepMdb = false;
  fakes.drives.MakeFolders("D:\\Roads");
  fakes.drives.failing = {"D:\\ROADS\\REFUSED.MDB"};
  const struct {
    const char *name, *backup, *before; // what the link says before the close
    bool gone;
  } cases[] = {{"COPIED", "D:\\Roads", "", true},
               {"REFUSED", "D:\\Roads", "", false},
               {"ITSELF", "C:\\roads", "", false},
               {"RENAMED", "D:\\Roads", "FILE NAME COPIED", false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OpenFile(c.name);
    Link(std::string("FILE BACKUPPATH ") + c.backup);
    Drive({"A"}), Drive({"A"}); // more than its comma file holds
    const Texts stations = Stations();
    Link(c.before);
    CloseFile();
    EXPECT_NE(Exists("C:\\Roads\\" + std::string(c.name) + ".mdb"), c.gone);
    state.file.DataFilePath = (c.gone ? "D:\\Roads\\" : "C:\\Roads\\") + std::string(c.name) + ".mdb";
    EXPECT_EQ(Stations(), stations);
  }
}

// ------------------------------------------------------------------------------------------- files that can't be made

// The program would lose its vocabulary, its options or the road's sections under its own hands.
TEST_F(FileMenuStories, TheProgramsOwnDatabasesAreNeverReplaced) {
  auto& folders = state.folders;
  folders.SharedMdbFolder = "C:\\Veldmark\\Parcels\\MDB";
  fakes.drives.MakeFolders(folders.SharedMdbFolder + "\\Old");
  fakes.drives.MakeFolders(folders.RootFolder + "\\BAK");
  fakes.drives.MakeFolders("D:\\Net");
  for (const char* path : {"C:\\Veldmark\\Parcels\\MDB\\Sections.mdb", "C:\\Veldmark\\Trekor\\BAK\\Observations.mdb",
                           "D:\\Net\\Network.mdb"})
    fakes.drives.CopyFile("C:\\Trekor\\Observations.vdb", path);
  Link("SET NETWORKDB D:\\Net\\Network.mdb");
  std::filesystem::create_symlink(fakes.drives.NativePath(folders.MdbFolder),
                                  fakes.drives.NativePath("D:\\") + "/Short");
  const struct {
    const char *path, *name;
  } cases[] = {{"C:\\Veldmark\\Trekor\\MDB", "Observations"},
               {"c:\\veldmark\\trekor\\mdb\\", "OBSERVATIONS"},
               {"C:\\Roads", "..\\Veldmark\\Trekor\\MDB\\Observations"},
               {"C:\\Veldmark\\Trekor\\MDB", "DATAfile"},
               {"C:\\Veldmark\\Trekor\\MDB", "ROAD10"},
               {"C:\\Veldmark\\Parcels\\MDB", "Sections"},
               {"C:\\Veldmark\\Parcels\\MDB\\Old", "ROAD10"},
               {"C:\\Veldmark\\Trekor\\BAK", "Observations"},
               {"D:\\Short", "Observations"},
               {"D:\\Net", "network"}};
  const auto databases = [this, &folders] {
    std::string all;
    for (const auto& folder : {folders.MdbFolder, folders.SharedMdbFolder, folders.SharedMdbFolder + "\\Old",
                               folders.RootFolder + "\\BAK", std::string("D:\\Net")})
      for (const auto& file : fakes.drives.Files(folder, "*.*"))
        all += folder + file + fakes.drives.Read(folder + "\\" + file);
    return all;
  };
  const std::string before = databases();
  OpenFile("ROAD09");
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.path) + " " + c.name);
    Link(std::string("FILE PATH ") + c.path);
    Link(std::string("FILE NAME ") + c.name);
    Link("FILE OPEN");
    EXPECT_EQ(form.Caption(), "Veldmark Trekor - C:\\Roads\\ROAD09.mdb (1)");
    EXPECT_TRUE(databases() == before);
    state.file.DataPath = c.path; // for more collection it is no data file either
    state.file.DataName = c.name;
    EXPECT_FALSE(files.ReopenDataFile(setup));
    EXPECT_TRUE(databases() == before);
    CloseFile();
    OpenFile("ROAD09");
  }
  // Nor by the copies of a job that has a name of theirs.
  OpenFile("Observations");
  Link("FILE BACKUPPATH " + folders.MdbFolder);
  Drive({"A"});
  CloseFile();
  EXPECT_TRUE(databases() == before);
  // The operator's form has another name to ask for.
  fakes.drives.currentFolder = folders.MdbFolder;
  fakes.shell.scripts["FileNewDialog2"] = [this](Form&) {
    fileNew.form.Texts2.Type("ROAD10");
    fileNew.form.CmdOK.Click();
    EXPECT_TRUE(fileNew.form.Shown);
  };
  form.mnuNew.Click();
  EXPECT_TRUE(databases() == before);
}

// The copy of a job before lies on the backup drive as a killed program left it, its rows in the log.
TEST_F(FileMenuStories, ABackupIsTheJobThatWasClosedWhateverLayThere) {
  fakes.drives.MakeFolders("D:\\Backup");
  Link("FILE BACKUPPATH D:\\Backup");
  Collect("ROAD09");
  for (const std::string tail : {"", "-wal"})
    fakes.drives.Write("D:\\Backup\\ROAD09.mdb" + tail, fakes.drives.Read("C:\\Roads\\ROAD09.mdb" + tail));
  ASSERT_TRUE(Exists("D:\\Backup\\ROAD09.mdb-wal"));
  Line("FILE BACKUPPATH");
  CloseFile();
  Collect("ROAD09");
  StartFromLink(20.0);
  Dmi(20.1);
  Press(F4);
  Link("FILE BACKUPPATH D:\\Backup");
  CloseFile();
  const auto stored = [this](const char* path) {
    state.file.DataFilePath = path;
    EXPECT_TRUE(files.OpenDataFile(OpenMode::ReadOnly));
    const Texts rows = Stations();
    files.CloseDataFile();
    return rows;
  };
  EXPECT_EQ(stored("D:\\Backup\\ROAD09.mdb"), stored("C:\\Roads\\ROAD09.mdb"));
}

TEST_F(FileMenuStories, ADriveThatIsNotThereIsNeverMade) {
  Link("FILE BACKUPPATH T:\\");
  Link("FILE PATH Q:");
  EXPECT_EQ(state.file.DataPath, "C:");
  Link("FILE NAME ROAD09");
  Link("FILE OPEN");
  StartFromLink(10.0);
  Press(F4);
  CloseFile();
  EXPECT_TRUE(Exists("C:\\ROAD09.TKR"));
  Link("FILE PATH /:\\tmp");
  EXPECT_EQ(state.file.DataPath, "C:\\tmp");
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    EXPECT_EQ(fakes.drives.DriveExists(letter), letter == 'C') << letter;
}

TEST_F(FileMenuStories, ALaterSessionsCommaFileHasItsNumber) {
  Collect("ROAD09");
  form.mnuClose.Click();
  ASSERT_TRUE(files.ReopenDataFile(setup));
  StartFromLink(11.0);
  Press(F4);
  Tick(40);
  EXPECT_EQ(form.Caption(), "Veldmark Trekor - C:\\Roads\\ROAD09.mdb (2)");
  CloseFile();
  EXPECT_EQ(state.file.AsciiName, "ROAD09-02");
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09-02.TKR"));
}

TEST_F(FileMenuStories, EachRowIsOnTheDiskBeforeTheNextKey) {
  OpenFile();
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.mdb-wal"));
  EXPECT_EQ(Query("PRAGMA synchronous"), Texts{"2"}) << "full: the log is synced at the end of each transaction";
}

// Or nothing behind the gap would find its way out of the file.
TEST_F(FileMenuStories, WhateverRowsAFullDiskLosesEverySpanNamesStationsOfTheFile) {
  const char* strayed = "SELECT count(*) FROM Registrations WHERE FromID NOT IN (SELECT StationID FROM Stations)"
                        " OR ToID NOT IN (SELECT StationID FROM Stations)";
  const std::vector<std::pair<std::string, Texts>> cases = {
      {"Stations WHEN NEW.Station IN (10)", {"10.05 1", "10.1 0", "10.2 0", "10.25 0"}},
      {"Stations WHEN NEW.Station IN (10.05)", {"10 0", "10.1 0", "10.2 0", "10.25 0"}}, // a point
      {"Stations WHEN NEW.Station IN (10.1)", {"10 0", "10.05 1", "10.2 0", "10.25 0"}},
      {"Registrations WHEN NEW.ToID=3", {"10 0", "10.05 1", "10.2 0", "10.25 0"}}, // behind its station
      {"Stations WHEN NEW.Station IN (10.1, 10.2)", {"10 0", "10.05 1", "10.25 0"}},
      {"Stations WHEN NEW.Station < 10.22", {"10.25 0"}},
      {"Stations WHEN NEW.Station > 10.22", {"10 0", "10.05 1", "10.1 0", "10.2 0"}}};
  for (const auto& [lost, left] : cases) {
    SCOPED_TRACE("lost " + lost);
    OpenFile("FULL" + std::to_string(&lost - &cases[0].first));
    ASSERT_TRUE(files.database->Execute("CREATE TRIGGER full BEFORE INSERT ON " + lost +
                                        " BEGIN SELECT RAISE(ROLLBACK, 'disk full'); END"));
    StartFromLink(10.0);
    Dmi(10.05);
    Press('B');
    Dmi(10.1);
    Dmi(10.2);
    Dmi(10.25);
    Press(F4);
    EXPECT_EQ(Stations(), left);
    EXPECT_EQ(Query(strayed), Texts{"0"});
    const auto spans = Query("SELECT count(*) FROM Registrations WHERE ObsCode=105");
    EXPECT_EQ(spans, Texts{std::to_string(std::count_if(
                         left.begin(), left.end(), [](const auto& s) { return s.ends_with(" 0") && s != "10 0"; }))})
        << "one for each step that is in the file";
    CloseFile();
  }
}

// ---------------------------------------------------------------------------------------------------------- the setup

TEST_F(FileMenuStories, TheRunningSetupStaysWhenTheListIsFilledAgain) {
  form.cboTestSetupNames.Select(1);
  setup.Observations(1).SetDefault(std::string("kept"));
  run.Subjects().setupChoice.Load_TestSetupNames();
  EXPECT_EQ(setup.Observations(1).DefaultText(), "kept");
  EXPECT_EQ(form.cboTestSetupNames.ListIndex(), 1);
  state.TestSetupID = 0; // as at a start, where the label alone was kept
  run.Subjects().setupChoice.Load_TestSetupNames();
  EXPECT_EQ(state.TestSetupID, 2);
  EXPECT_EQ(setup.Observations(1).DefaultText(), "");
}

// It has no columns, which is something else than a setup that was made without any.
TEST_F(FileMenuStories, ASetupThatCannotBeReadLeavesTheOneBefore) {
  const auto other = Database::Open(vocabulary.ObsDB->Path(), OpenMode::Shared);
  ASSERT_TRUE(other->Execute("BEGIN EXCLUSIVE"));
  form.cboTestSetupNames.Select(1);
  EXPECT_EQ(fakes.shell.boxes, Texts{"Cannot open C:\\Veldmark\\Trekor\\MDB\\Observations.mdb"});
  EXPECT_EQ(form.cboTestSetupNames.Text() + state.TestSetupName + form.lblSetupID.Caption(), "RoadRoad1");
  EXPECT_EQ(state.TestSetupID, 1) << "keys that are assigned now must go into this one";
  EXPECT_EQ(form.Grid.Cols(), 12);
  EXPECT_EQ(setup.KeyToObs('B'), Hole);
  EXPECT_NE(form.fxgKeyBoard.CellPicture(3, 3), "") << "the letter A";
  run.Subjects().setupChoice.Load_TestSetupNames();
  EXPECT_EQ(form.cboTestSetupNames.ListCount(), 3) << "nor is the list without setups";
  ASSERT_TRUE(other->Execute("ROLLBACK"));
  form.cboTestSetupNames.Select(1);
  EXPECT_EQ(state.TestSetupName, "Short");
  EXPECT_EQ(form.Grid.Cols(), 2);
}

// That it has none yet is no setup's number.
TEST_F(FirstStart, TakesUpSetupDirectionAndDepthWhereTheLastOneLeftThem) {
  ASSERT_TRUE(texts.Open() && vocabulary.LoadDatabase());
  ASSERT_TRUE(vocabulary.ObsDB->Execute("UPDATE SetupNames SET SetupID=0 WHERE SetupID=2;"
                                        "UPDATE Setups SET SetupID=0 WHERE SetupID=2"));
  const auto looks =
      Database::Open(fakes.drives.NativePath(state.folders.MdbFolder + "\\Trekor.mdb"), OpenMode::Shared);
  ASSERT_TRUE(looks->Execute("UPDATE Measurements SET CapEnglish='0' WHERE Name IN ('lblSetupID', 'DmiDirLabel');"
                             "UPDATE Measurements SET CapEnglish='20' WHERE Name='txtGridDepth'"));
  Load();
  EXPECT_FALSE(state.position.DmiIncreasing);
  EXPECT_EQ(run.Subjects().runGrid.rows.Depth(), 20);
  EXPECT_FALSE(form.mnuMessaging.Visible()) << "stored as visible, by a maintenance user";
  EXPECT_EQ(state.TestSetupName, "Short");
  EXPECT_EQ(form.Grid.Cols(), 2);
}

TEST_F(FileMenuStories, WithoutSetupsTheListSaysSo) {
  ASSERT_TRUE(vocabulary.ObsDB->Execute("DELETE FROM SetupNames"));
  run.Subjects().setupChoice.Load_TestSetupNames();
  EXPECT_EQ(form.cboTestSetupNames.Text(), "n/a");
  EXPECT_FALSE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(form.lblSetupID.Caption(), "-1");
  Link("FILE OPEN"); // without a name nothing happens
  EXPECT_FALSE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(setup.ObsCount(), 0);
}

} // namespace trekor::tests
