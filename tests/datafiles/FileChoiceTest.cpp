// The forms that choose among closed data files.
#include "datafiles/FileDialogs.h"

#include "datafiles/DataFileFixture.h"
#include "values/KeyCodes.h"

namespace trekor::tests {
namespace {

// Two data files of a season on drive D beside two files that are none, and the forms over them.
struct Season {
  Season() {
    job.state.facility.FacilityName = "Ring Road";
    job.state.TestSetupName = "Summer";
    job.state.options.OptionFileUnits = "Metric";
    job.Begin("ROAD09");
    job.Step("1.000");
    EXPECT_TRUE(job.Create("ROAD10"));
    job.Step("2.000");
    job.files.CloseDataFile();
    drives.Write("D:\\Data\\EMPTY.MDB", "");
    drives.Write("D:\\Data\\TEXT.mdb", "no data file");
    drives.MakeFolders("D:\\Data\\May");
    drives.currentFolder = "D:\\Data";
    job.state.file.DataName = "BEFORE";
  }
  static constexpr int Empty = 0, Road09 = 1, Road10 = 2, Text = 3; // in the list
  Job job;
  FakePlatform& machine = job.machine;
  FakeDrives& drives = machine.drives;
  ProgramState& state = job.state;
  Form mainForm{"Measurements"};
  TextDatabase texts{state, machine.platform};
  MessageCatalogue messages{state, machine.platform, texts};
  SocketProp socket{state, machine.platform, texts, mainForm};
  Sections sections{state, machine.platform, socket};
  FileDialogs dialogs{state, machine.platform, texts, messages, sections};
  FileOpenForm& open = dialogs.fileOpen.form;
  FileExportForm& exporting = dialogs.fileExport.form;

  void Script(const std::string& form, const std::function<void()>& user) {
    machine.shell.scripts[form] = [user](Form&) { user(); };
  }
  // The file that the user gets by what he does, "" for none.
  std::string Open(const std::function<void()>& user) {
    Script("FileOpenDialog", user);
    if (!dialogs.fileOpen.ShowDialog())
      return state.file.DataName;
    dialogs.fileOpen.TakeOver();
    return state.file.DataPath + "\\" + state.file.DataName;
  }
  std::string Shown() const {
    const SessionBoxes& s = open.session;
    return open.DateLabel.Caption() + "|" + s.Texts0.Text() + "|" + s.TestSetupLabel.Caption() + "|" +
           s.FiledUnitsLabel.Caption() + "|" + s.FiledStationsLabel.Caption();
  }
};

constexpr const char* Nothing = "||||";

TEST(FileOpenDialog, TakesTheFileInWhateverWayItIsAccepted) {
  Season s;
  ListBox& files = s.open.files.FileSelect;
  const std::string road = "D:\\Data\\ROAD09.mdb";
  const auto key = [&](int code) { s.open.OnKeyDown(code, 0); };
  EXPECT_EQ(s.Open([&] { files.Select(Season::Road09), key(keys::Enter); }), road);
  EXPECT_EQ(s.Open([&] { files.Select(Season::Road09), s.open.CmdOK.Click(); }), road);
  EXPECT_EQ(s.Open([&] { files.DblClick(Season::Road09); }), road);
  EXPECT_EQ(s.Open([&] { files.Select(Season::Text), key(keys::Enter); }), "D:\\Data\\TEXT.mdb")
      << "the preview decides of a double click alone";
  EXPECT_EQ(s.Open([&] {
    files.DblClick(Season::Text);
    EXPECT_TRUE(s.open.Shown);
  }),
            "");
  for (const int code : {keys::Esc, keys::F4})
    EXPECT_EQ(s.Open([&] { files.Select(Season::Road09), key(code); }), "") << code;
  EXPECT_EQ(s.Open([&] { files.Select(Season::Road09), s.open.OnQueryUnload(); }), "");
  EXPECT_EQ(s.Open([&] { key(keys::Enter); }), "") << "none is chosen";
  EXPECT_EQ(s.Open([&] {
    s.dialogs.GiveWay(); // to a file of the link
    files.Select(Season::Road09), key(keys::Enter);
  }),
            "");
  EXPECT_EQ(s.Open([&] { s.state.file.DataName = "LINK"; }), "LINK");
  EXPECT_EQ(s.Open([&] {
    s.machine.shell.SetFocus(s.open.CmdCancel);
    EXPECT_FALSE(s.open.OnKeyDown(keys::Enter, 0)) << "the button's";
  }),
            "");
}

TEST(FileOpenDialog, ShowsTheNewestSessionOfTheFileUnderTheCursorAndNothingOfOthers) {
  Season s;
  s.Open([&] {
    EXPECT_EQ(s.Shown(), Nothing);
    ListBox& files = s.open.files.FileSelect;
    const std::string seen = "2024-05-06 07:08:10|Ring Road|Summer|METRIC|KILOMETERS";
    files.Select(Season::Road10);
    EXPECT_EQ(s.Shown(), seen);
    files.Select(Season::Text);
    EXPECT_EQ(s.Shown(), Nothing);
    files.Select(Season::Road10);
    s.machine.shell.SetFocus(s.open.files.DirectorySelect);
    s.open.files.DirectorySelect.Select(1);
    s.open.OnKeyDown(keys::Enter, 0); // into May
    EXPECT_EQ(s.open.files.FullPathLabel.Caption() + s.Shown(), std::string("D:\\Data\\May") + Nothing);
    s.open.OnKeyDown(keys::Enter, 0);
    EXPECT_TRUE(s.open.Shown) << "no folder is chosen, and the key is not the button's";
  });
  s.Open([&] { EXPECT_EQ(s.open.files.FullPathLabel.Caption(), "D:\\Data\\May") << "where he was"; });
}

// A comma file would have the head of the option and the numbers of the file.
TEST(FileOpenDialog, BlinksWhatACommaFileWouldCallOtherwise) {
  Season s;
  s.state.options.OptionFileUnits = "US";
  s.Open([&] {
    const SessionBoxes& boxes = s.open.session;
    s.open.files.FileSelect.Select(Season::Road09);
    EXPECT_EQ(boxes.FiledUnitsLabel.ForeColor(), -1);
    s.open.session.BlinkTimer.Fire();
    EXPECT_NE(boxes.FiledUnitsLabel.ForeColor(), -1);
    EXPECT_EQ(boxes.FiledStationsLabel.ForeColor(), -1);
    s.state.units.FileStationUnit = 1;
    s.open.files.FileSelect.Select(Season::Road10);
    s.open.session.BlinkTimer.Fire();
    EXPECT_NE(boxes.FiledStationsLabel.ForeColor(), -1);
    s.open.files.FileSelect.Select(Season::Text);
    s.open.session.BlinkTimer.Fire();
    EXPECT_EQ(boxes.FiledUnitsLabel.ForeColor(), -1);
  });
  EXPECT_FALSE(s.open.session.BlinkTimer.Running());
}

TEST(FileOpenDialog, DeletesOnlyADataFileAndOnlyAfterAYes) {
  Season s;
  const YesNoForm& prompt = s.dialogs.DeletePrompt.form;
  ListBox& files = s.open.files.FileSelect;
  int asked = 0;
  const auto answer = [&](const std::function<void()>& act) {
    s.Script("DeletePrompt", [&, act] {
      ++asked;
      EXPECT_EQ(prompt.Subject.Caption(), "D:\\Data\\ROAD09.mdb");
      act();
    });
  };
  const auto yes = [&] { s.dialogs.DeletePrompt.form.CmdYes.Click(); };
  s.Open([&] {
    answer(yes);
    for (const int none : {Season::Empty, Season::Text}) {
      files.Select(none);
      EXPECT_TRUE(files.Press(keys::Delete, 0));
    }
    EXPECT_EQ(asked, 0);
    files.Select(Season::Road09);
    answer([&] { s.dialogs.DeletePrompt.form.CmdNo.Click(); });
    files.Press(keys::Delete, 0);
    answer([&] {
      s.dialogs.GiveWay(); // the link has opened a file
      yes();
    });
    files.Press(keys::Delete, 0);
    EXPECT_FALSE(s.open.Shown);
  });
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(s.drives.FileExists("D:\\Data\\ROAD09.mdb"));
  s.Open([&] {
    files.Select(Season::Road09);
    answer([&] {
      s.drives.Write("D:\\Data\\ROAD09.mdb-wal", "rows of a killed program");
      yes();
    });
    files.Press(keys::Delete, 0);
    EXPECT_FALSE(s.drives.FileExists("D:\\Data\\ROAD09.mdb") || s.drives.FileExists("D:\\Data\\ROAD09.mdb-wal"));
    EXPECT_EQ(files.ListCount(), 3);
    EXPECT_EQ(s.Shown(), Nothing);
    s.open.OnKeyDown(keys::Enter, 0);
  });
  EXPECT_EQ(s.state.file.DataName, "") << "none is chosen any more";
}

TEST(FileExportDialog, AsksForTheMarkedFilesInTheOrderOfTheList) {
  Season s;
  std::string exported;
  s.dialogs.fileExport.OnExport = [&](const FileExportDialog::Wish& wish) {
    exported += wish.folder + (wish.join ? " join" : " keep") + (wish.CheckTKR ? "" : " nothing");
    for (const std::string& name : wish.names)
      if (s.dialogs.fileExport.Begins(name))
        exported += " " + name + "[" + s.exporting.ProgressLabel.Caption() + "]";
    EXPECT_FALSE(s.exporting.files.FileSelect.Enabled());
    s.exporting.ActiveControl = &s.exporting.CmdCancel;
    EXPECT_TRUE(s.exporting.OnKeyDown(keys::Enter, 0)) << "held down, it would press the button";
  };
  const auto ask = [&](const std::function<void()>& user) {
    s.Script("FileExportDialog", user);
    s.dialogs.fileExport.ShowDialog();
    return std::exchange(exported, {});
  };
  ListBox& files = s.exporting.files.FileSelect;
  EXPECT_EQ(ask([&] {
              s.exporting.CheckTKR.SetValue(1);
              files.SelectSeveral({Season::Text, Season::Road09}, Season::Text);
              s.exporting.CmdOK.Click();
              EXPECT_FALSE(s.exporting.Shown);
            }),
            "D:\\Data join ROAD09.mdb[Writing ROAD09.mdb (1 of 2): 0%] TEXT.mdb[Writing TEXT.mdb (2 of 2): 0%]");
  EXPECT_TRUE(files.Enabled());
  EXPECT_EQ(s.state.file.DataName, "BEFORE");
  s.machine.pump.AtPump(1, [&] { s.exporting.OnKeyDown(keys::Esc, 0); });
  EXPECT_EQ(ask([&] {
              s.exporting.OptionKeep.Click();
              s.exporting.CheckTKR.SetValue(0);
              files.SelectSeveral({0, 1, 2, 3}, 3);
              s.exporting.OnKeyDown(keys::Enter, 0);
            }),
            "D:\\Data keep nothing")
      << "he has had enough while the first one began";
  EXPECT_EQ(ask([&] { s.exporting.OnKeyDown(keys::Enter, 0); }), "D:\\Data keep nothing") << "none is marked";
  EXPECT_EQ(ask([&] { files.Select(1), s.exporting.OnKeyDown(keys::Esc, 0); }), "");
}

TEST(FolderNewDialog, MakesOneLevelBelowTheFolderAndGoesThere) {
  Season s;
  FileNewForm& form = s.dialogs.fileNew.form;
  FolderNewForm& ask = s.dialogs.fileNew.folderNew.form;
  const auto make = [&](const std::string& name, const std::function<void()>& act) {
    s.Script("FolderNewDialog", [&, name, act] {
      EXPECT_EQ(ask.FolderName.Text(), "");
      ask.FolderName.Type(name);
      act();
    });
    form.CmdNewDir.Click();
    return form.FullPathLabel.Caption();
  };
  const auto enter = [&] { ask.OnKeyDown(keys::Enter, 0); };
  s.drives.Write("D:\\Data\\File", "in the way");
  s.Script("FileNewDialog2", [&] {
    EXPECT_EQ(make("June", [&] { ask.OnKeyDown(keys::Esc, 0); }), "D:\\Data");
    EXPECT_EQ(make("  ", enter), "D:\\Data");
    EXPECT_EQ(make("File", enter), "D:\\Data") << "it can't be made";
    EXPECT_EQ(make(" June ", enter), "D:\\Data\\June");
    EXPECT_EQ(make("Week", [&] { ask.CmdOK.Click(); }), "D:\\Data\\June\\Week");
    make("Late", [&] {
      s.dialogs.GiveWay();
      enter();
    });
    EXPECT_FALSE(form.Shown);
  });
  s.dialogs.fileNew.ShowDialog();
  EXPECT_TRUE(s.drives.FolderExists("D:\\Data\\June\\Week"));
  EXPECT_FALSE(s.drives.FolderExists("D:\\Data\\June\\Week\\Late"));
  EXPECT_EQ(ask.FolderName.OnKeyPress(U'"') + ask.FolderName.OnKeyPress(U':'), U'\0');
}

} // namespace
} // namespace trekor::tests
