// The whole program without windows: how it comes up, what keeps it from coming up, and its three ways out.
#include "program/Program.h"

#include "support/FakePlatform.h"
#include "support/Places.h"
#include "support/ReleasedTree.h"
#include "values/KeyCodes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace trekor::tests {
namespace {

using Texts = std::vector<std::string>;

const std::string Mdb = "C:\\Veldmark\\Trekor\\MDB\\";

struct Served {
  std::string name, working;
  std::string Template() const { return "C:\\Trekor\\" + name + ".vdb"; }
};

// Every database in the order in which the start comes to it.
const std::vector<Served>& InOrder() {
  static const std::vector<Served> all = {{"Trekor", Mdb + "Trekor.mdb"},
                                          {"Software", Mdb + "Software.mdb"},
                                          {"Messages", Mdb + "Messages.mdb"},
                                          {"HardWare", Mdb + "7707-104.mdb"},
                                          {"DataFile", Mdb + "DataFile.mdb"},
                                          {"Observations", Mdb + "Observations.mdb"},
                                          {"Sections", "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb"}};
  return all;
}

struct Vehicle {
  Vehicle() { InstallRelease(fakes.drives, BuildPlace("/share/trekor")); }

  bool Main() {
    program = std::make_unique<Program>(fakes.platform);
    return program->Main();
  }
  bool Did(const std::string& act) { return Place(act) < std::ssize(fakes.shell.acts); }
  std::ptrdiff_t Place(const std::string& act) {
    return std::find(fakes.shell.acts.begin(), fakes.shell.acts.end(), act) - fakes.shell.acts.begin();
  }
  Texts Sent() { return fakes.socket.TakeLines(); }
  Texts Boxes() { return std::exchange(fakes.shell.boxes, {}); }
  void ExpectNothingCameUp() {
    EXPECT_FALSE(Did("Show Measurements"));
    EXPECT_EQ(fakes.socket.connects, 0);
    EXPECT_FALSE(program->ForTests().form.IdleTimer.Running());
  }
  void CloseBox() {
    if (program->ForTests().form.OnQueryUnload())
      program->ForTests().form.OnUnload();
  }
  std::unique_ptr<Database> Open(const std::string& path, OpenMode mode) {
    return Database::Open(fakes.drives.NativePath(path), mode);
  }
  std::string LeftOf(const std::string& form, const std::string& file) {
    const auto database = Open(file, OpenMode::ReadOnly);
    const auto rows = database->OpenTable(form);
    return rows->SetIndex("NameIndex") && rows->Seek("Me") ? rows->Get("Left").Text() : "no row";
  }
  void Tick(int n) {
    for (int i = 0; i < n; ++i) {
      fakes.clock.Advance(24);
      program->ForTests().form.IdleTimer.Fire();
    }
  }
  void Link(const std::string& line) {
    fakes.socket.Line(line);
    Tick(2);
  }
  // Two steps of road with keys in both, the rows still in the grid.
  void StartJob(bool paused) {
    ASSERT_TRUE(Main());
    for (const char* line : {"FILE PATH C:\\Roads", "FILE BACKUPPATH D:\\Roads", "FILE NAME JOB1",
                             "SET OPERATOR A. Lind", "FILE OPEN", "SET DMI 0 I 10", "CTRL PREPARE 10", "CTRL START"})
      Link(line);
    for (const char* position : {"DMI 10.05", "DMI 10.12"}) {
      Link(position);
      for (const int key : {' ', 'A'})
        program->ForTests().measurements.Subjects().formKeys.Form_KeyDown(key, 0);
      Tick(4);
    }
    if (paused)
      Link("CTRL SUSPEND");
    ASSERT_EQ(program->ForTests().state.run.RunState, paused ? RunStates::Paused : RunStates::Running);
    Sent();
  }

  FakePlatform fakes;
  std::unique_ptr<Program> program;
};

class ProgramTest : public testing::Test, protected Vehicle {};

// ---- coming up

TEST_F(ProgramTest, ComesUpAndTellsTheLinkWhoItIs) {
  fakes.process.decimalChar = ',';
  ASSERT_TRUE(Main());
  const std::string identity = "IDENTITY Trekor 1 " + program->ForTests().state.folders.AppVersion + " 0 Default";
  EXPECT_EQ(Sent(), (Texts{identity, identity, "HWND Trekor  4711",
                           "MESSAGE Trekor CTRL SET FACILITY SECTION FILE RTDMI GPS EVENT",
                           "SET SYSTEM TREKOR UNKNOWN 7707-104"}));
  EXPECT_LT(Place("Show Measurements"), Place("Load SocketProp")) << "the window first, then the link";
  EXPECT_TRUE(program->ForTests().form.IdleTimer.Running());
  EXPECT_EQ(program->ForTests().form.Texts8.Text(), "0,000") << "in the operator's own way";
  EXPECT_TRUE(program->ForTests().state.folders.HardwareCreated);
  for (const Served& each : InOrder())
    EXPECT_TRUE(fakes.drives.FileExists(each.working)) << each.name;
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(ProgramTest, FindsItsDatabasesCurrentAtTheNextStart) {
  ASSERT_TRUE(Main());
  program->ForTests().measurements.Subjects().wayOut.mnuExit_Click();
  Sent();
  ASSERT_TRUE(Main());
  EXPECT_EQ(Sent().size(), 5U);
  EXPECT_FALSE(program->ForTests().state.folders.HardwareCreated);
  EXPECT_FALSE(fakes.drives.FolderExists("C:\\Veldmark\\Trekor\\BAK")) << "nothing to update";
}

TEST_F(ProgramTest, GoesOnAloneWhenNobodyListens) {
  fakes.socket.accepts = false;
  ASSERT_TRUE(Main());
  EXPECT_TRUE(program->ForTests().form.IdleTimer.Running());
  EXPECT_TRUE(Sent().empty());
}

// ---- what keeps it from coming up

TEST_F(ProgramTest, ASecondInstanceABlankCommandLineAndAVehicleWithoutANameEnd) {
  const std::tuple<bool, std::string, Texts, int> cases[] = {
      {true, "7707-104 /US", {}, 1}, // without a word or a trace; the vocabulary was there
      {false, "   ", {"Use Veldmark Control Center to start this program..."}, 2}, // which stands in the texts
      {false, "A", {"Cannot open C:\\Veldmark\\Trekor\\MDB\\.mdb"}, 4}};           // one word loses its last character
  for (const auto& [second, line, boxes, databases] : cases) {
    SCOPED_TRACE(line);
    fakes.process.previousInstance = second;
    fakes.process.commandLine = line;
    EXPECT_FALSE(Main());
    EXPECT_EQ(Boxes(), boxes);
    EXPECT_EQ(std::count_if(InOrder().begin(), InOrder().end(),
                            [this](const Served& each) { return fakes.drives.FileExists(each.working); }),
              databases);
    ExpectNothingCameUp();
  }
}

TEST_F(ProgramTest, EndsAtTheFirstFileThatCannotBeReadAndNeverReplacesOne) {
  const std::string junk(5000, 'x');
  for (const std::string what : {"template missing", "template damaged", "foreign file"})
    for (const Served& bad : InOrder()) {
      SCOPED_TRACE(what + ": " + bad.name);
      const bool foreign = what == "foreign file";
      const std::string &path = foreign ? bad.working : bad.Template(), released = fakes.drives.Read(bad.Template());
      for (const Served& each : InOrder())
        fakes.drives.DeleteFile(each.working);
      fakes.drives.DeleteFile(path);
      if (what != "template missing")
        fakes.drives.Write(path, junk);
      EXPECT_FALSE(Main());
      EXPECT_EQ(Boxes(), Texts{(foreign ? "Cannot open " : "Error:\r\nCannot open ") + path});
      EXPECT_TRUE(what == "template missing" || fakes.drives.Read(path) == junk);
      bool before = true;
      for (const Served& each : InOrder()) {
        before = before && each.name != bad.name;
        EXPECT_EQ(fakes.drives.FileExists(each.working), before || (foreign && &each == &bad)) << each.name;
      }
      ExpectNothingCameUp();
      fakes.drives.Write(bad.Template(), released);
    }
}

// A program was killed while it wrote, and somebody removed its database but not the log beside it.
TEST_F(ProgramTest, AnOldLogIsNotPlayedIntoAFreshCopyOfATemplate) {
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"Software", "UPDATE Options SET Units='US'", "Software.mdb-wal"},
      {"HardWare", "UPDATE Version SET Minor=77", "7707-XXX.mdb-wal"}};
  for (const auto& [from, change, log] : cases) {
    const std::string scratch = "C:\\Roads\\" + from + ".mdb";
    fakes.drives.CopyFile("C:\\Trekor\\" + from + ".vdb", scratch);
    const auto killed = Open(scratch, OpenMode::ExclusiveDurable);
    ASSERT_TRUE(killed && killed->Execute(change));
    fakes.drives.Write(Mdb + log, fakes.drives.Read(scratch + "-wal"));
  }
  fakes.process.commandLine = "7707-XXX /US";
  ASSERT_TRUE(Main());
  EXPECT_FALSE(program->ForTests().state.units.UnitsUS);
  EXPECT_EQ(RowsOf(*program->ForTests().HardwareDb, "Version").find("77"), std::string::npos);
}

// ---- leaving while it comes up

TEST_F(ProgramTest, AWindowClosedWhileItComesUpBringsUpNothingElse) {
  fakes.pump.AtPump(5, [this] { CloseBox(); });
  Main();
  EXPECT_EQ(fakes.process.ended, 1);
  EXPECT_EQ(fakes.socket.connects, 0);
  EXPECT_TRUE(Sent().empty());
  EXPECT_FALSE(Did("Load SocketProp"));
  EXPECT_FALSE(program->ForTests().form.IdleTimer.Running());
  EXPECT_FALSE(fakes.shell.hourglass);
  EXPECT_EQ(LeftOf("SocketProp", InOrder()[0].working), LeftOf("SocketProp", InOrder()[0].Template()))
      << "a window that was never dressed has no look to keep";
}

TEST_F(ProgramTest, AnExitFromTheLinkWhileItComesUpIsTheLastWord) {
  for (const int pump : {302, 303, 304, 305}) { // about the end of the wait in which the window is painted
    SCOPED_TRACE(pump);
    Sent();
    fakes.process.ended = 0;
    fakes.pump.AtPump(pump, [this] { fakes.socket.DeliverNow("CTRL EXIT\r\n"); });
    Main();
    const Texts lines = Sent();
    EXPECT_EQ(fakes.process.ended, 1);
    EXPECT_FALSE(program->ForTests().form.IdleTimer.Running());
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CTRL EXIT"), 1);
    EXPECT_EQ(lines.back(), "CTRL EXIT");
    program.reset();
  }
}

// ---- the ways out

TEST(WayOutTest, LeavesTheFilesOfANormalCloseAndSaysGoodbyeOnce) {
  for (const bool paused : {false, true}) {
    Vehicle closed;
    closed.StartJob(paused);
    closed.Link("CTRL STOP");
    closed.Link("FILE CLOSE");
    const std::string expected = FilesLeft(closed.fakes.drives);
    ASSERT_NE(expected.find("== D:\\Roads\\JOB1.TKR"), std::string::npos) << expected;
    for (const std::string way : {"menu", "link", "box"}) {
      SCOPED_TRACE(way + (paused ? " in a pause" : " in a run"));
      Vehicle left;
      FakePlatform& fakes = left.fakes;
      left.StartJob(paused);
      MeasurementsForm& form = left.program->ForTests().form;
      auto& parts = left.program->ForTests().measurements.Subjects();
      Form* const windows[] = {&form,
                               &parts.keyPictures.frmKeyBoard,
                               &parts.keyPictures.frmKeyPad,
                               &parts.asking.NumericPrompt.form,
                               &parts.asking.TextPrompt.form,
                               &left.program->ForTests().socket.form};
      for (Form* window : windows)
        window->Move(1234, 567, window->Width, window->Height);
      const double before = fakes.clock.Milliseconds();
      const std::string station = WireNumber(left.program->ForTests().state.position.KeyStation.Default());
      way == "menu" ? form.mnuExit.Click() : way == "link" ? left.Link("CTRL EXIT") : left.CloseBox();
      EXPECT_EQ(FilesLeft(fakes.drives), expected);
      EXPECT_EQ(fakes.drives.Read("D:\\Roads\\JOB1.mdb"), fakes.drives.Read("C:\\Roads\\JOB1.mdb"));
      const Texts asked = {"FILE CLOSE", "CTRL EXIT"}; // no answer to the order, and no news of the stop
      const Texts told = {"CTRL STOP " + station, "STATUS STOP " + station, "FILE CLOSE", "CTRL EXIT"};
      EXPECT_EQ(left.Sent(), way == "link" ? asked : told);
      EXPECT_GE(fakes.clock.Milliseconds() - before, 1000) << "time for the last line to go out";
      EXPECT_EQ(fakes.socket.State(), SocketState::Closed);
      EXPECT_FALSE(fakes.sound.open);
      for (const Form* window : windows)
        EXPECT_EQ(left.LeftOf(window->Name(), InOrder()[0].working), "1234") << window->Name();
      for (const Served& each : InOrder())
        EXPECT_TRUE(left.Open(each.working, OpenMode::Exclusive)) << each.name << " is still held";
      left.CloseBox(); // the window's own close follows
      EXPECT_TRUE(left.Sent().empty());
      EXPECT_EQ(fakes.process.ended, 1);
    }
  }
}

// A database of an earlier release has no row for them: the given look then, and from there on it is kept as well.
TEST_F(ProgramTest, TheSizeOfTheGridAndTheNightAreThereAgainAtTheNextStart) {
  const auto look = [this] {
    return std::to_string(program->ForTests().form.Grid.Zoom()) + (fakes.shell.night ? " night" : " day");
  };
  const auto key = [this](int code, int shift) {
    program->ForTests().measurements.Subjects().formKeys.Form_KeyDown(code, shift);
  };
  for (const bool older : {false, true}) {
    if (older) {
      const auto database = Open(InOrder()[0].working, OpenMode::Exclusive);
      ASSERT_TRUE(database && database->Execute("DELETE FROM Measurements WHERE Name LIKE 'mnuSize*' OR Name IN "
                                                "('mnuViewNight', 'mnuViewLarger', 'mnuViewSize', 'mnuViewLine1')"));
    }
    fakes.shell.night = false; // a new program begins by day
    ASSERT_TRUE(Main());
    EXPECT_EQ(look(), "100 day");
    EXPECT_EQ(program->ForTests().form.mnuViewNight.Caption(), "&Night colours");
    key(keys::PageUp, 2), key(keys::PageUp, 2), key(keys::PageUp, 0), key(keys::F12, 0);
    EXPECT_EQ(look(), "160 night");
    CloseBox();
    fakes.shell.night = false;
    ASSERT_TRUE(Main());
    EXPECT_EQ(look(), "160 night");
    key(keys::F12, 0), key(keys::PageDown, 2);
    EXPECT_EQ(look(), "125 day");
    CloseBox();
  }
}

TEST_F(ProgramTest, AMinimisedWindowComesBackBeforeItCloses) {
  ASSERT_TRUE(Main());
  program->ForTests().form.mnuViewKeyPad.Click();
  program->ForTests().form.SetWindowState(WindowStates::Minimised);
  Tick(40);
  EXPECT_TRUE(program->ForTests().form.OnQueryUnload());
  EXPECT_EQ(program->ForTests().form.WindowState(), WindowStates::Normal);
  EXPECT_TRUE(program->ForTests().measurements.Subjects().keyPictures.frmKeyPad.Shown);
}

// While "CTRL EXIT" goes out the window is still there, but nothing may begin.
TEST_F(ProgramTest, NothingBeginsInTheLastSecond) {
  ASSERT_TRUE(Main());
  fakes.pump.AtPump(200, [this] {
    program->ForTests().measurements.Subjects().formKeys.Form_KeyDown(keys::F2, 0);
    program->ForTests().form.mnuNew.Click();
    fakes.socket.DeliverNow("FILE NAME LATE\r\n");
  });
  program->ForTests().measurements.Subjects().wayOut.mnuExit_Click();
  EXPECT_FALSE(Did("Modal FileNewDialog2"));
  EXPECT_EQ(program->ForTests().state.file.DataName, "");
}

} // namespace
} // namespace trekor::tests
