// What the link does while a form of the operator is up, and what the form does then.
#include "collection/RunFixture.h"

namespace trekor::tests {

class UnderAForm : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.currentFolder = Folder;
    Load();
  }
  // What happens while the new-file form is up; a form that is left untouched closes at the end.
  void WhileAsked(const std::function<void()>& story) {
    fakes.shell.scripts["FileNewDialog2"] = [story](Form&) { story(); };
    form.mnuNew.Click();
  }
};

// A box that nobody has typed in must not bring back the road of before.
TEST_F(UnderAForm, TheRoadThatTheLinkTellsIsTakenUpByTheForm) {
  Link("FACILITY NAME Ring Road");
  Link("SECTION NAME North");
  WhileAsked([this] {
    fileNew.form.Texts1.Type("South");
    Link("FACILITY NAME Road 21");
    Link("SECTION NAME West");
    Link("SECTION START Bridge");
    fileNew.form.BlinkTimer.Fire();
    EXPECT_EQ(fileNew.form.Texts0.Text(), "Road 21");
    Link("SECTION END Exit 12");
    fileNew.form.Texts2.Type("ROAD09");
    fileNew.form.OnKeyDown(keys::Enter, 0);
  });
  EXPECT_EQ(Query("SELECT FacilityName, SectionName, Start, End FROM Sessions"), Texts{"Road 21 South Bridge Exit 12"});
  WhileAsked([this] {
    EXPECT_EQ(fileNew.form.Texts0.Text() + fileNew.form.Texts1.Text(), "Road 21South") << "the next file goes on there";
  });
}

// The options are open with a change in each half, and the operator says OK as late as he can.
TEST_F(UnderAForm, TheOptionsGiveWayToARunAndLeaveAFileItsUnits) {
  enum class Then { Stays, Locks, Goes };
  const struct {
    Texts lines;
    Then then;
  } rows[] = {{{"SET UNITS US FEET", "CTRL INIT", "CTRL STOP", "DMI 3"}, Then::Stays},
              {{"FILE PATH C:\\Roads", "FILE NAME ROAD09", "FILE OPEN"}, Then::Locks},
              {{"FILE NAME ROAD10", "FILE OPEN", "FILE CLOSE"}, Then::Stays},
              {{"CTRL START"}, Then::Goes},
              {{"FILE NAME ROAD11", "FILE OPEN", "CTRL PREPARE 3", "CTRL START"}, Then::Goes}};
  Type(form.Texts7, "0.1");
  OptionsForm& asked = optionsDialog.form;
  for (const auto& row : rows) {
    state.units.UnitsUS = state.units.FileUnitsUS = false;
    fakes.shell.scripts["Options"] = [&](Form&) {
      asked.OptionUS.Click();
      asked.FileOptionUS.Click();
      for (const auto& line : row.lines)
        Link(line);
      EXPECT_EQ(asked.Shown, row.then != Then::Goes);
      EXPECT_EQ(asked.FileOptionUS.Enabled(), row.then == Then::Stays || row.lines.size() == 1);
      if (row.then == Then::Stays)
        asked.FileOptionUS.Click();
      asked.CmdOK.Click();
      asked.OnKeyDown(keys::Esc, 0);
    };
    form.mnuOptions.Click();
    EXPECT_EQ(State(), row.then == Then::Goes ? RunStates::Running : RunStates::Idle) << row.lines.back();
    EXPECT_EQ(state.units.UnitsUS, row.then != Then::Goes) << row.lines.back();
    EXPECT_EQ(state.units.FileUnitsUS, row.then == Then::Stays) << row.lines.back();
    Press(F4);
    CloseFile();
  }
}

// What is applied holds for the run, which then begins with the boxes in the new unit.
TEST_F(UnderAForm, ARunOfTheLinkHasTheOptionsThatWereApplied) {
  Type(form.Texts7, "0.1");
  OpenFile();
  fakes.shell.scripts["Options"] = [this](Form&) {
    optionsDialog.form.Combos0.Select(units::Metre);
    optionsDialog.form.CmdApply.Click();
    optionsDialog.form.Combos0.Select(units::Mile);
    Link("CTRL PREPARE 5");
    Link("CTRL START");
    Sent();
  };
  form.mnuOptions.Click();
  EXPECT_EQ(State(), RunStates::Running);
  EXPECT_EQ(state.position.StepKm, 0.1);
  EXPECT_EQ(form.Texts7.Text() + form.StationUnitLabel.Caption(), "100.0meters");
  EXPECT_EQ(Sent().front(), "SET UNITS SI M DEG");
}

// A form on data files, how it comes up, and the act of a user who has not seen what became of it.
struct FormCase {
  const char* name;
  std::function<void(MeasurementsForm&, FileDialogs&, FakeShell&)> open;
  std::function<void(FileDialogs&)> accept;
};

void PrintTo(const FormCase& c, std::ostream* out) {
  *out << c.name;
}

class UnderEachForm : public UnderAForm, public testing::WithParamInterface<std::tuple<FormCase, std::string>> {
protected:
  std::string Disk() {
    std::string all;
    for (const std::string& file : fakes.drives.Files(Folder, "*.*"))
      all += file + fakes.drives.Read(std::string(Folder) + "\\" + file);
    for (const std::string& folder : fakes.drives.Folders(Folder))
      all += folder;
    return all;
  }
};

// A file that the link opens wins: the form goes as by a cancel, and what the user does then is for nobody. So it is
// with an exit. Nothing else of the link disturbs him, and no run begins behind his back.
TEST_P(UnderEachForm, TheLinkIsObeyedAndNothingIsTouched) {
  const FormCase& asked = std::get<0>(GetParam()); // lambdas of some compilers do not catch the names of a binding
  const std::string& order = std::get<1>(GetParam());
  OpenFile("ROAD09");
  StartFromLink(10.0);
  Dmi(10.1);
  Press(F4);
  CloseFile();
  Link("FILE NAME LINK");
  const std::string before = Disk();
  const bool goes = order == "FILE OPEN" || order == "CTRL EXIT";
  int times = 0;
  fakes.shell.scripts[asked.name] = [&](Form& shown) {
    ++times;
    Link("FILE NAME LINK");
    Link(order);
    EXPECT_EQ(shown.Shown, !goes);
    EXPECT_EQ(State(), RunStates::Idle);
    EXPECT_FALSE(state.units.UnitsUS);
    if (goes)
      asked.accept(dialogs);
  };
  asked.open(form, dialogs, fakes.shell);
  EXPECT_EQ(times, 1);
  EXPECT_FALSE(dialogs.fileNew.form.Shown || dialogs.fileOpen.form.Shown || dialogs.fileExport.form.Shown);
  EXPECT_EQ(unloads, order == "CTRL EXIT" ? 1 : 0);
  EXPECT_EQ(state.run.DataFileOpen, order == "FILE OPEN");
  if (order == "FILE OPEN") {
    EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\LINK.mdb");
    CloseFile();
    EXPECT_TRUE(fakes.drives.DeleteFile("C:\\Roads\\LINK.mdb"));
  }
  EXPECT_TRUE(Disk() == before);
}

// Storing its pictures lets events in, and the form is still up.
TEST_F(UnderAForm, NoExportBeginsWhileTheFileOfTheLinkIsMade) {
  OpenFile("ROAD09");
  CloseFile();
  fakes.shell.pictureBytes = 9000;
  int pressed = 0;
  fakes.shell.scripts["FileExportDialog"] = [&](Form& shown) {
    FileExportForm& asking = dialogs.fileExport.form;
    asking.files.FileSelect.Select(0);
    fakes.pump.AtPump(4, [&] { // the lines come with the first three
      EXPECT_FALSE(state.run.DataFileOpen);
      ++pressed;
      asking.CmdOK.Click();
    });
    OpenFile("LINK");
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(shown.Shown);
  };
  form.mnuExport.Click();
  EXPECT_EQ(Query("SELECT count(*) FROM Observations WHERE ObsIcon IS NOT NULL").front(),
            std::to_string(setup.ObsCount()));
}

// Telling the road lets events in, and the file that was named does not exist yet.
TEST_F(UnderAForm, NothingAsksAgainUntilTheNamedFileIsMade) {
  int asked = 0;
  fakes.shell.scripts["FileNewDialog2"] = [&](Form&) {
    ++asked;
    fileNew.form.Texts2.Type("ROAD09");
    fakes.pump.AtPump(1, [this] { Key(F2), form.mnuNew.Click(); });
    fileNew.form.CmdOK.Click();
  };
  form.mnuNew.Click();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(State(), RunStates::Idle);
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\ROAD09.mdb");
  EXPECT_TRUE(state.run.DataFileOpen);
}

const FormCase FormCases[] = {
    {"FileNewDialog2", [](auto& form, auto&, auto&) { form.mnuNew.Click(); },
     [](FileDialogs& dialogs) {
       dialogs.fileNew.form.Texts2.Type("MINE");
       dialogs.fileNew.form.CmdOK.Click();
     }},
    {"FolderNewDialog",
     [](auto& form, FileDialogs& dialogs, FakeShell& shell) {
       shell.scripts["FileNewDialog2"] = [&dialogs](Form&) { dialogs.fileNew.form.CmdNewDir.Click(); };
       form.mnuNew.Click();
     },
     [](FileDialogs& dialogs) {
       dialogs.fileNew.folderNew.form.FolderName.Type("MINE");
       dialogs.fileNew.folderNew.form.CmdOK.Click();
     }},
    {"FileOpenDialog", [](auto& form, auto&, auto&) { form.mnuOpen.Click(); },
     [](FileDialogs& dialogs) { dialogs.fileOpen.form.files.FileSelect.DblClick(0); }},
    {"DeletePrompt",
     [](auto& form, FileDialogs& dialogs, FakeShell& shell) {
       shell.scripts["FileOpenDialog"] = [&dialogs](Form&) {
         dialogs.fileOpen.form.files.FileSelect.Select(0);
         dialogs.fileOpen.form.files.FileSelect.Press(keys::Delete, 0);
       };
       form.mnuOpen.Click();
     },
     [](FileDialogs& dialogs) { dialogs.DeletePrompt.form.CmdYes.Click(); }},
    {"FileExportDialog", [](auto& form, auto&, auto&) { form.mnuExport.Click(); },
     [](FileDialogs& dialogs) {
       dialogs.fileExport.form.files.FileSelect.Select(0);
       dialogs.fileExport.form.CmdOK.Click();
     }},
};

INSTANTIATE_TEST_SUITE_P(Forms, UnderEachForm,
                         testing::Combine(testing::ValuesIn(FormCases),
                                          testing::Values("FILE OPEN", "FILE CLOSE", "CTRL START", "CTRL EXIT",
                                                          "SET UNITS US ML DEG")));

} // namespace trekor::tests
