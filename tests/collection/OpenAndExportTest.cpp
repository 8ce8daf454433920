// The menu's Open and Export, from the entry to the files on the disk.
#include "collection/RunFixture.h"

#include <algorithm>

namespace trekor::tests {
namespace {

class OpenAndExport : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.currentFolder = Folder;
    Load();
    OpenFile("ROAD09");
    Collect(10.0);
    CloseFile();
    Sent();
  }
  void Collect(double km) {
    StartFromLink(km);
    Dmi(km + 0.1);
    Press(F4);
  }
  // What the user does in a form while it is up.
  void In(const std::string& name, const std::function<void()>& user) {
    fakes.shell.scripts[name] = [user](Form&) { user(); };
  }
  void Open(
      const std::string& name, const std::function<void()>& meanwhile = [] {}) {
    In("FileOpenDialog", [this, name, meanwhile] {
      FileOpenForm& asking = dialogs.fileOpen.form;
      Choose(asking.files.FileSelect, name);
      meanwhile();
      asking.CmdOK.Click();
    });
    form.mnuOpen.Click();
  }
  void Export(const std::function<void()>& user) {
    In("FileExportDialog", user);
    form.mnuExport.Click();
  }
  static void Choose(ListBox& list, const std::string& name) {
    for (int i = 0; i < list.ListCount(); ++i)
      if (list.List(i) == name)
        list.Select(i);
  }
  std::string Bytes(const std::string& name) { return fakes.drives.Read("C:\\Roads\\" + name); }
};

TEST_F(OpenAndExport, ASecondSessionGoesIntoTheFileOfYesterday) {
  const std::string firstGuid = state.file.DataGuid;
  OpenFile("OTHER");
  Sent();
  Open("ROAD09.mdb");
  const std::string guid = state.file.DataGuid;
  EXPECT_EQ(Sent(), (Texts{"FILE CLOSE", "FILE PATH C:\\Roads", "FILE BACKUPPATH ", "FILE NAME ROAD09",
                           "FILE EXTENSION MDB", "FILE GUID " + guid, "FILE SESSION 2", "FILE OPEN"}));
  EXPECT_EQ(guid.size(), 32U);
  EXPECT_EQ(guid.find('-'), std::string::npos);
  EXPECT_EQ(Query("SELECT SessionID, GUID FROM Sessions ORDER BY SessionID"), (Texts{"1 " + firstGuid, "2 " + guid}));
  EXPECT_EQ(Query("SELECT SessionID, count(*) FROM Observations GROUP BY SessionID"), (Texts{"1 11", "2 11"}));
  EXPECT_EQ(form.Caption(), "Veldmark Trekor - C:\\Roads\\ROAD09.mdb (2)");
  EXPECT_FALSE(form.cboTestSetupNames.Enabled() || form.mnuExport.Enabled());
  Collect(20.0);
  EXPECT_EQ(Query("SELECT FromID, ToID FROM Registrations WHERE ToID>2 GROUP BY ToID"), (Texts{"2 3", "4 5", "5 6"}))
      << "its spans begin at its own stations";
  CloseFile();
  EXPECT_TRUE(Exists("C:\\Roads\\ROAD09-02.TKR"));
}

// Whatever is chosen, no file is lost, and an order of the link to open "the file" afterwards makes none in its place.
TEST_F(OpenAndExport, WhatCannotBeOpenedStaysAsItIs) {
  std::unique_ptr<Database> other;
  const std::string text(5000, 'x');
  fakes.drives.Write("C:\\Roads\\TEXT.mdb", text);
  fakes.drives.Write("C:\\Roads\\EMPTY.mdb", "");
  fakes.drives.CopyFile("C:\\Roads\\ROAD09.mdb", "C:\\Roads\\LOCKED.mdb");
  fakes.drives.CopyFile("C:\\Trekor\\Observations.vdb", "C:\\Roads\\FOREIGN.mdb");
  int ends = 0;
  for (const char* name : {"TEXT.mdb", "EMPTY.mdb", "LOCKED.mdb", "FOREIGN.mdb"}) {
    const std::string before = Bytes(name);
    Open(name, [&] {
      if (name == std::string("LOCKED.mdb"))
        other = Database::Open(fakes.drives.NativePath("C:\\Roads\\LOCKED.mdb"), OpenMode::Exclusive);
    });
    EXPECT_FALSE(state.run.DataFileOpen) << name;
    EXPECT_TRUE(form.cboTestSetupNames.Enabled() && form.mnuExport.Enabled()) << name;
    EXPECT_EQ(form.Caption(), "Veldmark Trekor");
    Link("FILE OPEN");
    EXPECT_TRUE(Bytes(name) == before) << name;
    ends += fakes.shell.boxes.empty() ? 0 : 1;
    EXPECT_EQ(fakes.process.ended, ends) << "the program ends with a message: " << name;
    fakes.shell.boxes.clear();
    Sent();
  }
  EXPECT_GE(ends, 3);
}

TEST_F(OpenAndExport, AFileThatVanishesUnderTheFormIsMadeAnew) {
  Open("ROAD09.mdb", [this] { fakes.drives.DeleteFile("C:\\Roads\\ROAD09.mdb"); });
  EXPECT_TRUE(state.run.DataFileOpen);
  EXPECT_EQ(Query("SELECT SessionID FROM Sessions"), Texts{"1"});
}

TEST_F(OpenAndExport, ExportsJoinedAndKeptWithoutTouchingTheDataOrTheNameOfTheNextFile) {
  Open("ROAD09.mdb");
  Collect(20.0);
  CloseFile();
  fakes.drives.Write("C:\\Roads\\TEXT.mdb", "no data file");
  for (const char* name : {"ROAD09.TKR", "ROAD09-02.TKR"})
    fakes.drives.DeleteFile("C:\\Roads\\" + std::string(name));
  const std::string before = Bytes("ROAD09.mdb");
  Link("FILE NAME NEXT");
  FileExportForm& asking = dialogs.fileExport.form;
  Texts progress;
  bool idle = false;
  fakes.pump.AtPump(1, [&] {
    progress = {asking.ProgressLabel.Caption(), form.Caption()};
    fakes.socket.DeliverNow("FILE OPEN\r\n"); // waits
    run.Subjects().wayOut.mnuExit_Click();    // waits
    idle = !state.run.DataFileOpen && unloads == 0;
  });
  const auto exportAll = [&](OptionButton& way, int write) {
    Export([&] {
      way.Click();
      asking.CheckTKR.SetValue(write);
      asking.files.FileSelect.SelectSeveral({0, 1}, 0);
      asking.CmdOK.Click();
      EXPECT_FALSE(asking.Shown);
    });
    return fakes.drives.Files(Folder, "ROAD09*.TKR");
  };
  EXPECT_EQ(exportAll(asking.OptionJoin, 0), Texts{});
  EXPECT_TRUE(idle);
  EXPECT_EQ(progress, (Texts{"Writing ROAD09.mdb (1 of 2): 0%", "Veldmark Trekor"}));
  EXPECT_TRUE(state.run.DataFileOpen) << "the link's file, after the export";
  EXPECT_TRUE(Exists("C:\\Roads\\NEXT.mdb"));
  EXPECT_FALSE(form.mnuExport.Enabled());
  Tick();
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(Bytes("ROAD09.mdb") == before);
}

TEST_F(OpenAndExport, JoinMakesOneCommaFileAndKeepOneForEachSession) {
  Open("ROAD09.mdb");
  Collect(20.0);
  CloseFile();
  const std::string second = Bytes("ROAD09-02.TKR");
  const auto exported = [this](bool join) {
    for (const std::string& name : fakes.drives.Files(Folder, "*.TKR"))
      fakes.drives.DeleteFile("C:\\Roads\\" + name);
    FileExportForm& asking = dialogs.fileExport.form;
    Export([&asking, join] {
      (join ? asking.OptionJoin : asking.OptionKeep).Click();
      asking.CheckTKR.SetValue(1);
      Choose(asking.files.FileSelect, "ROAD09.mdb");
      asking.CmdOK.Click();
    });
    EXPECT_EQ(form.Caption(), "Veldmark Trekor");
    return fakes.drives.Files(Folder, "*.TKR");
  };
  EXPECT_EQ(exported(true), Texts{"ROAD09.TKR"});
  EXPECT_NE(Bytes("ROAD09.TKR").find("5301,  10.100,  20.100,"), std::string::npos) << "stretches of both";
  EXPECT_EQ(exported(false), (Texts{"ROAD09-01.TKR", "ROAD09-02.TKR"}));
  EXPECT_TRUE(Bytes("ROAD09-02.TKR") == second) << "as at the close";
}

} // namespace
} // namespace trekor::tests
