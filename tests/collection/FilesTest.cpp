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
  // The operator names the file in the form.
  void Operator_Names(const std::string& name) {
    fakes.shell.scripts["FileNewDialog2"] = [this, name](Form&) {
      state.file.DataPath = Folder;
      state.file.DataName = name;
    };
  }
};

TEST_F(FileMenuStories, ANewFileIsAnnouncedInOneSend) {
  Operator_Names("ROAD09");
  form.mnuNew.Click();
  EXPECT_EQ(Sent(), (Texts{"FILE PATH C:\\Roads", "FILE BACKUPPATH ", "FILE NAME ROAD09", "FILE EXTENSION MDB",
                           "FILE GUID " + state.file.DataGuid, "FILE SESSION 1", "FILE OPEN"}));
  EXPECT_EQ(state.file.DataGuid.size(), 32U);
  EXPECT_FALSE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(form.Caption(), "Veldmark Trekor - C:\\Roads\\ROAD09.mdb (1)");
}

TEST_F(FileMenuStories, AFileThatCannotBeMadeIsNotAnnouncedAndTheNextOneIs) {
  fakes.drives.currentFolder = Folder;
  Operator_Names("ROAD09");
  fakes.drives.failing.push_back("C:\\ROADS\\ROAD09.MDB");
  form.mnuNew.Click();
  EXPECT_TRUE(Sent().empty());
  EXPECT_FALSE(state.run.DataFileOpen);
  EXPECT_TRUE(form.cboTestSetupNames.Enabled());
  fakes.shell.scripts.erase("FileNewDialog2"); // and the form is closed untouched
  form.mnuNew.Click();
  EXPECT_TRUE(Sent().empty());
  // By hand, with the vehicle's one drive.
  fakes.drives.failing.clear();
  fakes.shell.scripts["FileNewDialog2"] = [this](Form&) {
    fileNew.form.Texts2.Type("ROAD09");
    fileNew.form.OnKeyDown(13, 0);
  };
  Answer("10");
  form.tbControlBar.ClickButton("play");
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.mdb"));
  EXPECT_EQ(Stations(), Texts{"10 0"});
  const auto lines = Sent();
  EXPECT_NE(std::find(lines.begin(), lines.end(), "FILE BACKUPPATH "), lines.end());
  Press(F4);
  CloseFile();
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.TKR"));
}

TEST_F(FileMenuStories, ACloseLeavesTheCommaFileAndTellsTheLink) {
  Collect("ROAD09");
  form.mnuClose.Click();
  EXPECT_EQ(Sent(), Texts{"FILE CLOSE"});
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.TKR"));
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.mdb"));
  EXPECT_FALSE(state.run.DataFileOpen);
  EXPECT_TRUE(form.Texts7.Enabled());
  EXPECT_TRUE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(form.Caption(), "Veldmark Trekor");
  EXPECT_EQ(state.file.LastCloseTime, fakes.clock.Now());
}

TEST_F(FileMenuStories, DataThatStandNowhereElseAreNeverDeleted) {
  state.options.KeepMdb = false;
  Collect("GONE");
  form.mnuClose.Click();
  EXPECT_FALSE(Exists("C:\\Roads\\GONE.mdb"));
  EXPECT_TRUE(Exists("C:\\Roads\\GONE.TKR"));
  EXPECT_EQ(fakes.drives.synced, Texts{"C:\\Roads\\GONE.TKR"});
  fakes.drives.failing.push_back("C:\\ROADS\\UNSURE.TKR"); // its comma file may be in the memory alone
  Collect("UNSURE");
  form.mnuClose.Click();
  EXPECT_TRUE(Exists("C:\\Roads\\UNSURE.mdb"));
  OpenFile("EMPTY"); // no station, so no comma file
  form.mnuClose.Click();
  EXPECT_TRUE(Exists("C:\\Roads\\EMPTY.mdb"));
  state.options.WriteAscii = false;
  Collect("KEPT");
  form.mnuClose.Click();
  EXPECT_TRUE(Exists("C:\\Roads\\KEPT.mdb"));
}

TEST_F(FileMenuStories, CopiesFollowTheNameOfTheCommaFile) {
  fakes.drives.MakeFolders("D:\\Roads");
  Link("FILE BACKUPPATH D:\\Roads");
  state.options.WriteAscii = false;
  Collect("FIRST");
  form.mnuClose.Click();
  EXPECT_TRUE(fakes.drives.Files("D:\\Roads", "*.*").empty()) << "no comma file yet, so no name to copy by";
  state.options.WriteAscii = true;
  state.options.KeepMdb = false;
  Collect("SECOND");
  form.mnuClose.Click();
  EXPECT_EQ(fakes.drives.Files("D:\\Roads", "*.*"), (Texts{"SECOND.mdb", "SECOND.TKR"}));
}

TEST_F(FileMenuStories, ABackupCopiesTheNameAsItStands) {
  fakes.drives.MakeFolders("D:\\Backup");
  Link("FILE BACKUPPATH D:\\Backup");
  OpenFile("ROAD9"); // all of these match as patterns
  OpenFile("ROAD19");
  for (const std::string name : {"ROAD*", "ROAD?", "*", ".ROAD"}) {
    Collect(name);
    CloseFile();
    EXPECT_EQ(fakes.drives.Files("D:\\Backup", "*.*"), (Texts{name + ".mdb", name + ".TKR"}));
    for (const std::string ending : {".mdb", ".TKR"})
      fakes.drives.DeleteFile("D:\\Backup\\" + name + ending);
  }
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
  CloseFile();
  EXPECT_EQ(state.file.AsciiName, "ROAD09-02");
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09-02.TKR"));
}

TEST_F(FileMenuStories, ACloseDoesNothingInARunAndLittleWithoutAFile) {
  OpenFile();
  StartFromLink(10.0);
  CloseFile();
  EXPECT_TRUE(state.run.DataFileOpen);
  Press(F4);
  CloseFile();
  Sent();
  form.Texts7.SetEnabled(false);
  CloseFile();
  EXPECT_TRUE(Sent().empty());
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09.mdb"));
  EXPECT_TRUE(form.Texts7.Enabled());
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

TEST_F(FileMenuStories, AFileOrderedInARunTakesTheRowsThatLeaveFromThen) {
  Collect("FIRST");
  form.mnuClose.Click();
  StartFromLink(10.0);
  Dmi(10.1);
  OpenFile("LATE");
  Press('B');
  Press(F4);
  EXPECT_EQ(Stations(), (Texts{"10.1 0", "10.1 1", "10.1 0"}));
  EXPECT_EQ(Spans_Of(Rut), (Texts{"1 1 ", "1 3 "})) << "where the first step began is in no file";
}

// ---------------------------------------------------------------------------------------------------------- the setup

TEST_F(FileMenuStories, AChosenSetupBringsItsColumnsAndKeys) {
  form.cboTestSetupNames.Select(1);
  EXPECT_EQ(state.TestSetupID, 2);
  EXPECT_EQ(state.TestSetupName, "Short");
  EXPECT_EQ(form.lblSetupID.Caption(), "2");
  EXPECT_EQ(form.Grid.Cols(), 2);
  EXPECT_EQ(setup.KeyToObs('B'), -1);
  EXPECT_NE(form.fxgKeyBoard.CellPicture(3, 3), "") << "the letter A";
  form.cboTestSetupNames.Select(2); // "Empty"
  EXPECT_EQ(form.Grid.Cols(), 1);
  EXPECT_TRUE(form.Grid.Redraw());
  EXPECT_FALSE(Fields().GridBusy);
}

TEST_F(FileMenuStories, TheRunningSetupStaysWhenTheListIsFilledAgain) {
  form.cboTestSetupNames.Select(1);
  setup.Observations(1).SetDefault(std::string("kept"));
  run.parts().setups.Load_TestSetupNames();
  EXPECT_EQ(setup.Observations(1).DefaultText(), "kept");
  EXPECT_EQ(form.cboTestSetupNames.ListIndex(), 1);
  state.TestSetupID = 0; // as at a start, where the label alone was kept
  run.parts().setups.Load_TestSetupNames();
  EXPECT_EQ(state.TestSetupID, 2);
  EXPECT_EQ(setup.Observations(1).DefaultText(), "");
}

TEST_F(FileMenuStories, TheSetupOfTheLastTimeComesBackAtTheNextStart) {
  form.cboTestSetupNames.Select(1);
  texts.SaveFormProperties(form);
  form.cboTestSetupNames.Select(0);
  state.TestSetupID = 0;
  run.Load_Form();
  EXPECT_EQ(state.TestSetupID, 2);
  EXPECT_EQ(state.TestSetupName, "Short");
  EXPECT_EQ(form.Grid.Cols(), 2);
  EXPECT_NE(form.fxgKeyBoard.CellPicture(3, 3), "") << "the letter A";
}

TEST_F(FileMenuStories, WithoutSetupsTheListSaysSo) {
  ASSERT_TRUE(vocabulary.ObsDB->Execute("DELETE FROM SetupNames"));
  run.parts().setups.Load_TestSetupNames();
  EXPECT_EQ(form.cboTestSetupNames.Text(), "n/a");
  EXPECT_FALSE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(form.lblSetupID.Caption(), "-1");
  Link("FILE OPEN"); // without a name nothing happens
  EXPECT_FALSE(form.cboTestSetupNames.Enabled());
  EXPECT_EQ(setup.ObsCount(), 0);
}

TEST_F(FileMenuStories, DeleteOnAPictureTakesTheKeyAway) {
  form.TabStrip1.Select(1);
  EXPECT_TRUE(form.tabFrames1.Visible());
  EXPECT_FALSE(form.tabFrames0.Visible());
  form.fxgKeyBoard.SetRow(3);
  form.fxgKeyBoard.SetCol(3); // the letter A
  ASSERT_EQ(form.fxgKeyBoard.Text(3, 3), "A");
  Key(Del);
  EXPECT_EQ(setup.Observations(Crack).KeyCode(), -1);
  EXPECT_EQ(setup.KeyToObs('A'), -1);
  EXPECT_EQ(form.Grid.Text(Grids::KeyRow, Crack), "");
  EXPECT_EQ(form.fxgKeyBoard.CellPicture(3, 3), "");
  const auto stored = vocabulary.ObsDB->OpenQuery("SELECT KeyCode FROM Setups WHERE SetupID=1 AND ObsParID=1");
  EXPECT_EQ(stored->Get(0).Integer(), -1);
  Key(Del); // nothing more to take
  EXPECT_EQ(setup.Observations(Hole).KeyCode(), 'B');
}

} // namespace trekor::tests
