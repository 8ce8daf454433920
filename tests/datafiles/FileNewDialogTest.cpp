#include "datafiles/FileNewDialog2.h"

#include "datafiles/BackupDrives.h"
#include "datafiles/DataFileFixture.h"
#include "values/KeyCodes.h"

#include <algorithm>

namespace trekor::tests {

// The new-file form over a data drive D with folder Data and a spare drive E, with a user who acts on it.
struct Dialog {
  Dialog() {
    drives.MakeFolders("D:\\Data");
    drives.MakeFolders("E:\\Data");
    drives.currentFolder = "D:\\Data";
    MakeTemplate(drives, "Messages", "C:\\Trekor\\Messages.mdb");
    messages.Open(Database::Open(drives.NativePath("C:\\Trekor\\Messages.mdb"), OpenMode::Shared));
    messages.LoadForm();
  }
  FakePlatform machine;
  FakeDrives& drives = machine.drives;
  ProgramState state;
  Form mainForm{"Measurements"};
  TextDatabase texts{state, machine.platform};
  MessageCatalogue messages{state, machine.platform, texts};
  SocketProp socket{state, machine.platform, texts, mainForm};
  Sections sections{state, machine.platform, socket};
  std::string folder;
  FileNewDialog2 dialog{{state, machine.platform, texts, messages, folder}, sections};
  FileNewForm& form = dialog.form;

  void Ask(const std::function<void()>& user) {
    machine.shell.scripts["FileNewDialog2"] = [user](Form&) { user(); };
    if (dialog.ShowDialog())
      dialog.TakeOver();
  }
  auto Messages() { return std::count(machine.shell.acts.begin(), machine.shell.acts.end(), "Modal Message"); }
  // The file of that name is asked for.
  void Accept(const std::string& name) {
    form.Texts2.Type(name);
    form.CmdOK.Click();
  }
};

TEST(FileNewDialog2, HandsOverNameFolderBackupAndRoad) {
  Dialog d;
  d.state.facility.SectionEnd = "Exit 12";
  d.machine.socket.state = SocketState::Connected;
  d.Ask([&d] {
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\Data");
    EXPECT_EQ(d.form.cboBackup.Text(), "E:") << "the first drive behind the data's";
    d.form.Texts0.Type("Ring Road");
    d.form.Texts1.Type("North");
    d.form.Texts9.Type("Bridge");
    d.state.facility.SectionStart = "Tunnel"; // the link speaks later than the user
    d.form.BlinkTimer.Fire();
    d.form.Texts2.Type("  ROAD01 ");
    EXPECT_TRUE(d.form.OnKeyDown(keys::Enter, 0));
  });
  EXPECT_EQ(d.state.file.DataName + d.state.file.DataPath + d.state.file.BackupPath, "ROAD01D:\\DataE:\\Data");
  EXPECT_EQ(d.state.facility.SectionStart, "Bridge");
  EXPECT_EQ(d.machine.socket.TakeLines(), (std::vector<std::string>{"FACILITY NAME Ring Road", "SECTION NAME North",
                                                                    "SECTION START Bridge", "SECTION END Exit 12"}));
}

TEST(FileNewDialog2, MakesItsFileWithoutACopyWhenThereIsNoOtherDriveOrNoneIsWanted) {
  for (const bool oneDrive : {true, false}) {
    Dialog d;
    if (oneDrive)
      for (const char* drive : {"D", "E"})
        std::filesystem::remove_all(d.drives.Root() + "/" + drive);
    d.drives.MakeFolders("C:\\Data");
    d.drives.currentFolder = "C:\\Data";
    d.state.file.BackupPath = "E:\\Data"; // of the job before
    d.Ask([&] {
      if (oneDrive)
        EXPECT_EQ(d.form.cboBackup.ListCount(), 1);
      else
        d.form.cboBackup.Select(0);
      EXPECT_EQ(d.form.cboBackup.Text(), "No Backup");
      d.Accept("ROAD01");
      EXPECT_FALSE(d.form.Shown);
    });
    EXPECT_EQ(d.state.file.DataName + d.state.file.DataPath + d.state.file.BackupPath, "ROAD01C:\\Data");
    d.Ask([&] { EXPECT_EQ(d.form.cboBackup.Text(), "No Backup") << "the choice stays for the next file"; });
  }
}

TEST(FileNewDialog2, ForgetsTheNameWhenTheUserCancels) {
  for (const int key : {keys::Esc, keys::F4, keys::Enter}) { // Enter with an empty name is a cancel, too
    Dialog d;
    d.state.file.DataName = "OLD";
    d.Ask([&d, key] {
      d.form.Texts2.Type(key == keys::Enter ? "   " : "NEW");
      d.form.OnKeyDown(key, 0);
    });
    EXPECT_EQ(d.state.file.DataName + d.state.file.DataPath, "") << key;
  }
}

TEST(FileNewDialog2, RefusesANameThatExistsOnEitherDrive) {
  for (const char* existing : {"D:\\Data\\road01.mdb", "E:\\Data\\Road01.MDB"}) {
    Dialog d;
    d.drives.Write(existing, "x");
    d.Ask([&d] { d.Accept("ROAD01"); });
    EXPECT_EQ(d.Messages(), 1) << existing;
    EXPECT_EQ(d.state.file.DataName + d.state.file.BackupPath, "") << existing;
    d.Ask([&d] {
      d.Accept("ROAD01");
      EXPECT_TRUE(d.form.Shown);
      EXPECT_EQ(d.form.Texts2.Text(), "ROAD01");
      d.Accept("ROAD02");
    });
    EXPECT_EQ(d.state.file.DataName, "ROAD02") << existing;
  }
}

TEST(FileNewDialog2, MakesOneLevelOfTheBackupFolderAndSaysWhenItCannot) {
  Dialog d;
  d.drives.MakeFolders("D:\\Data\\Deep\\Deeper");
  d.drives.currentFolder = "D:\\Data\\Deep\\Deeper";
  d.Ask([&d] { d.Accept("ROAD01"); });
  EXPECT_EQ(d.machine.shell.boxes, std::vector<std::string>{"Could not create Backup folder: E:\\Data\\Deep\\Deeper"});
  EXPECT_EQ(d.state.file.DataName, "");
  d.Ask([&d] {
    d.form.DirectorySelect.DblClick(0); // up to Deep
    d.Accept("ROAD01");
  });
  EXPECT_EQ(d.state.file.BackupPath, "E:\\Data\\Deep");
  EXPECT_TRUE(d.drives.FolderExists("E:\\Data\\Deep"));
}

TEST(FileNewDialog2, WalksFoldersAndProposesTheNextNameOfASeries) {
  Dialog d;
  d.drives.MakeFolders("D:\\Data\\May");
  for (const char* name : {"ROAD09.mdb", "ROAD10.MDB", "notes.txt"})
    d.drives.Write("D:\\Data\\May\\" + std::string(name), "x");
  d.drives.currentFolder = "D:\\";
  d.Ask([&d] {
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\");
    d.form.DirectorySelect.DblClick(0); // Data
    d.form.DirectorySelect.DblClick(1); // May, behind ".."
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\Data\\May");
    ASSERT_EQ(d.form.FileSelect.ListCount(), 2);
    d.form.FileSelect.Select(0);
    EXPECT_EQ(d.form.Texts2.Text(), "ROAD11");
    EXPECT_EQ(d.form.Texts2.OnKeyPress(U'?'), U'\0');
    EXPECT_EQ(d.form.Texts2.OnKeyPress(U'x'), U'x');
    d.form.DriveSelect.Select(d.form.DriveSelect.ListCount() - 1); // E
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "E:\\");
    EXPECT_EQ(d.form.cboBackup.List(2), "D:") << "the data drive has moved";
    std::filesystem::remove_all(d.drives.Root() + "/D"); // a medium that is taken out
    d.form.DriveSelect.Select(1);
    EXPECT_EQ(d.form.FullPathLabel.Caption() + d.form.DriveSelect.Text() + d.form.DriveSelect.List(1), "C:\\C:E:");
    EXPECT_EQ(d.form.cboBackup.List(1), "E:");
  });
}

TEST(FileNewDialog2, WalksFoldersWithTheKeysAndLeavesOneThatHasGone) {
  Dialog d;
  d.drives.MakeFolders("D:\\Data\\May");
  d.Ask([&d] {
    ListBox& folders = d.form.DirectorySelect;
    EXPECT_TRUE(folders.Press(keys::Right, 0)) << "none is chosen";
    EXPECT_EQ(d.folder, "D:\\Data");
    folders.Select(1);
    folders.Press(keys::Right, 0);
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\Data\\May");
    folders.Press(keys::Left, 0);
    folders.Press(keys::Backspace, 0);
    folders.Press(keys::Left, 0);
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\");
    EXPECT_FALSE(folders.Press(keys::Down, 0)) << "the list's own";
    folders.Select(0);
    std::filesystem::remove_all(d.drives.NativePath("D:\\Data"));
    folders.Press(keys::Right, 0);
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "D:\\");
    EXPECT_EQ(folders.ListCount(), 0);
    d.drives.MakeFolders("D:\\June");
    d.form.DriveSelect.Select(1);
    folders.Select(0);
    std::filesystem::remove_all(d.drives.Root() + "/D");
    folders.Press(keys::Right, 0);
    EXPECT_EQ(d.form.FullPathLabel.Caption(), "C:\\");
    EXPECT_NE(d.form.cboBackup.List(1), "C:") << "a copy onto itself is none";
  });
}

TEST(FileNewDialog2, ContinuesTheLastSessionOfTheFileThatIsPointedAt) {
  Dialog d;
  MakeTemplate(d.drives, "DataFile", "D:\\Data\\ROAD09.mdb");
  const auto file = Database::Open(d.drives.NativePath("D:\\Data\\ROAD09.mdb"), OpenMode::Shared);
  ASSERT_TRUE(file->Execute("INSERT INTO Sessions(FacilityName, SectionName, Start, \"End\", TestSetup) VALUES"
                            " ('Ring Road', 'North', ' Bridge', 'Exit 12 ', 'Summer');"
                            "INSERT INTO Stations(SessionID, StationUnit) VALUES (1, 0)"));
  d.drives.Write("D:\\Data\\TEXT.mdb", "none");
  d.state.TestSetupName = "Winter";
  d.Ask([&d] {
    d.form.Texts0.Type("Road 21");
    d.form.FileSelect.Select(1);
    EXPECT_EQ(d.form.Texts0.Text() + d.form.Texts2.Text(), "Road 21TEXT1") << "no data file: nothing to continue";
    d.form.FileSelect.Select(0);
    EXPECT_EQ(d.form.Texts0.Text() + d.form.Texts1.Text() + d.form.Texts9.Text() + d.form.Texts10.Text() +
                  d.form.Texts2.Text() + d.form.TestSetupLabel.Caption(),
              "Ring RoadNorthBridgeExit 12ROAD10Summer");
    d.state.facility.FacilityName = "Road 22"; // told by the link: what the form shows is the user's choice now
    d.form.BlinkTimer.Fire();
    d.form.CmdOK.Click();
  });
  EXPECT_EQ(d.state.facility.FacilityName, "Ring Road");
  EXPECT_EQ(d.state.TestSetupName, "Winter") << "the label loads no setup";
}

TEST(FileNewDialog2, BlinksWhatIsFiledOtherwiseThanSeen) {
  Dialog d;
  d.state.units.FileUnitsUS = true;
  d.state.units.FileStationUnit = d.state.units.StationUnit = 3;
  d.Ask([&d] {
    EXPECT_EQ(d.form.FiledUnitsLabel.Caption(), "US/ENGLISH");
    EXPECT_EQ(d.form.FiledStationsLabel.Caption(), "MILES.FEET");
    const int plain = d.form.FiledStationsLabel.ForeColor();
    d.form.BlinkTimer.Fire();
    EXPECT_NE(d.form.FiledUnitsLabel.ForeColor(), plain);
    EXPECT_EQ(d.form.FiledStationsLabel.ForeColor(), plain);
    d.form.BlinkTimer.Fire();
    EXPECT_EQ(d.form.FiledUnitsLabel.ForeColor(), plain);
  });
  EXPECT_FALSE(d.form.BlinkTimer.Running());
}

TEST(BackupDrives, OffersTheDrivesThatMayHoldCopies) {
  FakePlatform machine;
  for (const char* folder : {"D:\\", "F:\\", "H:\\", "K:\\"})
    machine.drives.MakeFolders(folder);
  machine.drives.remoteNames = {{'H', "\\\\VCC-7\\share"}, {'K', "\\\\OFFICE\\share"}};
  Form form("Test");
  ComboBox list(form, "cboBackup");
  CommandLineFlags command;
  const auto rows = [&](char dataDrive) {
    FillBackupDrives(list, dataDrive, command, machine.drives);
    std::string all;
    for (int i = 1; i < list.ListCount(); ++i)
      all += list.List(i);
    return all + " " + list.Text();
  };
  EXPECT_EQ(rows('D'), "C:F:H:K: F:");
  EXPECT_EQ(rows('K'), "C:D:F:H: F:") << "the former choice stays";
  EXPECT_EQ(rows('F'), "C:D:H:K: H:");
  list.SetListIndex(0);
  EXPECT_EQ(rows('D'), "C:F:H:K: No Backup");
  command.CmdDrive = "F";
  command.CmdR = true;
  list.Clear();
  EXPECT_EQ(rows('K'), "C:D: D:") << "none behind: the last one before";
  for (const auto& [setting, offered] : {std::pair("\\\\office", "C:D:H: D:"), {"", "C:D:H:K: D:"}}) {
    ::setenv("TREKOR_CONTROL_SHARE", setting, 1);
    EXPECT_EQ(rows('E'), offered) << setting;
  }
  ::unsetenv("TREKOR_CONTROL_SHARE");
}

} // namespace trekor::tests
