// The whole program without windows: how it comes up, what keeps it from coming up, and its three ways out.
#include "program/Program.h"

#include "support/FakePlatform.h"
#include "support/ReleasedTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace trekor::tests {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* Mdb = "C:\\Veldmark\\Trekor\\MDB\\";

struct Served {
  std::string name, working;
  std::string Template() const { return "C:\\Trekor\\" + name + ".vdb"; }
};

// Every database in the order in which the start comes to it.
const std::vector<Served>& InOrder() {
  static const std::vector<Served> all = {{"Trekor", Mdb + std::string("Trekor.mdb")},
                                          {"Software", Mdb + std::string("Software.mdb")},
                                          {"Messages", Mdb + std::string("Messages.mdb")},
                                          {"HardWare", Mdb + std::string("7707-104.mdb")},
                                          {"DataFile", Mdb + std::string("DataFile.mdb")},
                                          {"Observations", Mdb + std::string("Observations.mdb")},
                                          {"Sections", "C:\\Veldmark\\Parcels\\MDB\\Sections.mdb"}};
  return all;
}

class Vehicle : public testing::Test {
protected:
  Vehicle() { InstallRelease(fakes.drives, TREKOR_BINARY_DIR "/share/trekor"); }

  bool Main() {
    program = std::make_unique<Program>(fakes.platform);
    return program->Main();
  }
  bool Did(const std::string& act) { return Place(act) < fakes.shell.acts.size(); }
  std::size_t Place(const std::string& act) {
    const auto& acts = fakes.shell.acts;
    return static_cast<std::size_t>(std::find(acts.begin(), acts.end(), act) - acts.begin());
  }
  Texts Sent() { return fakes.socket.TakeLines(); }
  Texts Boxes() { return std::exchange(fakes.shell.boxes, {}); }
  void ExpectNothingCameUp() {
    EXPECT_FALSE(Did("Show Measurements"));
    EXPECT_EQ(fakes.socket.connects, 0);
    EXPECT_FALSE(program->form.IdleTimer.Running());
  }
  void CloseBox() {
    if (program->form.OnQueryUnload())
      program->form.OnUnload();
  }
  std::unique_ptr<Database> Open(const std::string& path, OpenMode mode) {
    return Database::Open(fakes.drives.NativePath(path), mode);
  }
  std::string LeftOf(const std::string& form, const std::string& file) {
    const auto database = Open(file, OpenMode::ReadOnly);
    const auto rows = database->OpenTable(form);
    return rows->SetIndex("NameIndex") && rows->Seek("Me") ? rows->Get("Left").Text() : "no row";
  }

  FakePlatform fakes;
  std::unique_ptr<Program> program;
};

// ---- coming up

TEST_F(Vehicle, ComesUpAndTellsTheLinkWhoItIs) {
  ASSERT_TRUE(Main());
  const std::string identity = "IDENTITY Trekor 1 " + program->state.folders.AppVersion + " 0 Default";
  EXPECT_EQ(Sent(), (Texts{identity, identity, "HWND Trekor  4711",
                           "MESSAGE Trekor CTRL SET FACILITY SECTION FILE RTDMI GPS EVENT",
                           "SET SYSTEM TREKOR UNKNOWN 7707-104"}));
  EXPECT_LT(Place("Show Measurements"), Place("Load SocketProp")) << "the window first, then the link";
  EXPECT_TRUE(program->form.IdleTimer.Running());
  EXPECT_TRUE(program->state.folders.HardwareCreated);
  for (const Served& each : InOrder())
    EXPECT_TRUE(fakes.drives.FileExists(each.working)) << each.name;
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(Vehicle, FindsItsDatabasesCurrentAtTheNextStart) {
  ASSERT_TRUE(Main());
  program->measurements.mnuExit_Click();
  Sent();
  ASSERT_TRUE(Main());
  EXPECT_EQ(Sent().size(), 5U);
  EXPECT_FALSE(program->state.folders.HardwareCreated);
  EXPECT_FALSE(fakes.drives.FolderExists("C:\\Veldmark\\Trekor\\BAK")) << "nothing to update";
}

TEST_F(Vehicle, GoesOnAloneWhenNobodyListens) {
  fakes.socket.accepts = false;
  ASSERT_TRUE(Main());
  EXPECT_TRUE(program->form.IdleTimer.Running());
  EXPECT_TRUE(Sent().empty());
}

// ---- what keeps it from coming up

TEST_F(Vehicle, ASecondInstanceEndsWithoutAWordOrATrace) {
  fakes.process.previousInstance = true;
  EXPECT_FALSE(Main());
  EXPECT_TRUE(Boxes().empty());
  EXPECT_FALSE(fakes.drives.FileExists(InOrder()[0].working));
  ExpectNothingCameUp();
}

TEST_F(Vehicle, ABlankCommandLineEndsWithItsMessageBeforeTheOptions) {
  fakes.process.commandLine = "   ";
  EXPECT_FALSE(Main());
  EXPECT_EQ(Boxes(), Texts{"Use Veldmark Control Center to start this program..."});
  EXPECT_TRUE(fakes.drives.FileExists(InOrder()[0].working)) << "the texts were open before";
  EXPECT_FALSE(fakes.drives.FileExists(InOrder()[1].working));
  ExpectNothingCameUp();
}

TEST_F(Vehicle, AVehicleWithoutANameEnds) {
  fakes.process.commandLine = "A"; // one word loses its last character
  EXPECT_FALSE(Main());
  EXPECT_TRUE(fakes.drives.FileExists(Mdb + std::string("HardWare.mdb")));
  ExpectNothingCameUp();
}

TEST_F(Vehicle, EndsAtTheFirstTemplateThatIsMissingOrDamaged) {
  for (const bool damaged : {false, true})
    for (const Served& bad : InOrder()) {
      SCOPED_TRACE(bad.name + (damaged ? " damaged" : " missing"));
      const std::string released = fakes.drives.Read(bad.Template());
      for (const Served& each : InOrder())
        fakes.drives.DeleteFile(each.working);
      fakes.drives.DeleteFile(bad.Template());
      if (damaged)
        fakes.drives.Write(bad.Template(), std::string(5000, 'x'));
      EXPECT_FALSE(Main());
      EXPECT_EQ(Boxes(), Texts{"Error:\r\nCannot open " + bad.Template()});
      bool before = true;
      for (const Served& each : InOrder()) {
        before = before && each.name != bad.name;
        EXPECT_EQ(fakes.drives.FileExists(each.working), before) << each.name;
      }
      ExpectNothingCameUp();
      fakes.drives.Write(bad.Template(), released);
    }
}

TEST_F(Vehicle, AFileThatCannotBeReadEndsTheStartAndIsNeverReplaced) {
  const std::string foreign(5000, 'x');
  for (const Served& bad : InOrder()) {
    SCOPED_TRACE(bad.name);
    fakes.drives.Write(bad.working, foreign);
    EXPECT_FALSE(Main());
    EXPECT_EQ(Boxes(), Texts{"Cannot open " + bad.working});
    EXPECT_EQ(fakes.drives.Read(bad.working), foreign);
    ExpectNothingCameUp();
    fakes.drives.DeleteFile(bad.working);
  }
}

// A program was killed while it wrote, and somebody removed its database but not the log beside it.
TEST_F(Vehicle, AnOldLogIsNotPlayedIntoAFreshCopyOfATemplate) {
  struct Case {
    const char *from, *change, *log;
  };
  for (const Case& c : {Case{"Software", "UPDATE Options SET Units='US'", "Software.mdb-wal"},
                        Case{"HardWare", "UPDATE Version SET Minor=77", "7707-XXX.mdb-wal"}}) {
    const std::string scratch = "C:\\Roads\\" + std::string(c.from) + ".mdb";
    fakes.drives.CopyFile("C:\\Trekor\\" + std::string(c.from) + ".vdb", scratch);
    const auto killed = Open(scratch, OpenMode::ExclusiveDurable);
    ASSERT_TRUE(killed && killed->Execute(c.change));
    fakes.drives.Write(Mdb + std::string(c.log), fakes.drives.Read(scratch + "-wal"));
  }
  fakes.process.commandLine = "7707-XXX /US";
  ASSERT_TRUE(Main());
  EXPECT_FALSE(program->state.units.UnitsUS);
  EXPECT_EQ(RowsOf(*program->HardwareDb, "Version").find("77"), std::string::npos);
}

// ---- leaving while it comes up

TEST_F(Vehicle, AWindowClosedWhileItComesUpBringsUpNothingElse) {
  fakes.pump.AtPump(5, [this] { CloseBox(); });
  Main();
  EXPECT_EQ(fakes.process.ended, 1);
  EXPECT_EQ(fakes.socket.connects, 0);
  EXPECT_TRUE(Sent().empty());
  EXPECT_FALSE(Did("Load SocketProp"));
  EXPECT_FALSE(program->form.IdleTimer.Running());
  EXPECT_FALSE(fakes.shell.hourglass);
  EXPECT_EQ(LeftOf("SocketProp", InOrder()[0].working), LeftOf("SocketProp", InOrder()[0].Template()))
      << "a window that was never dressed has no look to keep";
}

TEST_F(Vehicle, AnExitFromTheLinkWhileItComesUpIsTheLastWord) {
  for (const int pump : {302, 303, 304, 305}) { // about the end of the wait in which the window is painted
    SCOPED_TRACE(pump);
    Sent();
    fakes.process.ended = 0;
    fakes.pump.AtPump(pump, [this] { fakes.socket.DeliverNow("CTRL EXIT\r\n"); });
    Main();
    const Texts lines = Sent();
    EXPECT_EQ(fakes.process.ended, 1);
    EXPECT_FALSE(program->form.IdleTimer.Running());
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "CTRL EXIT"), 1);
    EXPECT_EQ(lines.back(), "CTRL EXIT");
    program.reset();
  }
}

// ---- the ways out

struct Way {
  const char* name;
  bool paused;
};

class WayOut : public Vehicle, public testing::WithParamInterface<Way> {
protected:
  static constexpr int Space = 32;

  void Tick(int n) {
    for (int i = 0; i < n; ++i) {
      fakes.clock.Advance(24);
      program->form.IdleTimer.Fire();
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
      program->measurements.Form_KeyDown(Space, 0);
      program->measurements.Form_KeyDown('A', 0);
      Tick(4);
    }
    if (paused)
      Link("CTRL SUSPEND");
    ASSERT_EQ(program->state.run.RunState, paused ? 2 : 1);
    Sent();
  }
  // What the same job leaves when it is stopped and closed before the program ends.
  static std::string OfANormalClose(bool paused) {
    struct Job : WayOut {
      void TestBody() override {}
    } job;
    job.StartJob(paused);
    job.Link("CTRL STOP");
    job.Link("FILE CLOSE");
    return FilesLeft(job.fakes.drives);
  }
  void Leave() {
    if (GetParam().name == std::string("menu"))
      program->form.mnuExit.Click();
    else if (GetParam().name == std::string("link"))
      Link("CTRL EXIT");
    else
      CloseBox();
  }
};

TEST_P(WayOut, LeavesTheFilesOfANormalCloseAndSaysGoodbyeOnce) {
  const std::string expected = OfANormalClose(GetParam().paused);
  ASSERT_NE(expected.find("== D:\\Roads\\JOB1.TKR"), std::string::npos) << expected;
  StartJob(GetParam().paused);
  program->form.Move(1234, 567, program->form.Width, program->form.Height);
  const double before = fakes.clock.Milliseconds();
  const std::string station = WireNumber(program->state.position.KeyStation.Default());
  Leave();
  EXPECT_EQ(FilesLeft(fakes.drives), expected);
  EXPECT_EQ(fakes.drives.Read("D:\\Roads\\JOB1.mdb"), fakes.drives.Read("C:\\Roads\\JOB1.mdb"));
  const Texts asked = {"FILE CLOSE", "CTRL EXIT"}; // no answer to the order, and no news of the stop
  const Texts told = {"CTRL STOP " + station, "STATUS STOP " + station, "FILE CLOSE", "CTRL EXIT"};
  EXPECT_EQ(Sent(), GetParam().name == std::string("link") ? asked : told);
  EXPECT_GE(fakes.clock.Milliseconds() - before, 1000) << "time for the last line to go out";
  EXPECT_EQ(fakes.socket.State(), SocketState::Closed);
  EXPECT_FALSE(fakes.sound.open);
  EXPECT_EQ(LeftOf("Measurements", InOrder()[0].working), "1234");
  for (const Served& each : InOrder())
    EXPECT_TRUE(Open(each.working, OpenMode::Exclusive)) << each.name << " is still held";
  CloseBox(); // the window's own close follows
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(fakes.process.ended, 1);
}

INSTANTIATE_TEST_SUITE_P(Program, WayOut,
                         testing::Values(Way{"menu", false}, Way{"menu", true}, Way{"link", false}, Way{"link", true},
                                         Way{"box", false}, Way{"box", true}),
                         [](const auto& way) {
                           return way.param.name + std::string(way.param.paused ? "InAPause" : "InARun");
                         });

TEST_F(Vehicle, AMinimisedWindowComesBackBeforeItCloses) {
  ASSERT_TRUE(Main());
  program->form.SetWindowState(1);
  EXPECT_TRUE(program->form.OnQueryUnload());
  EXPECT_EQ(program->form.WindowState(), 0);
}

// The program's last second: the window is still there, and nothing may begin.
TEST_F(Vehicle, NothingBeginsInTheLastSecond) {
  ASSERT_TRUE(Main());
  fakes.pump.AtPump(200, [this] {
    program->measurements.Form_KeyDown(113, 0);
    program->form.mnuNew.Click();
    fakes.socket.DeliverNow("FILE NAME LATE\r\n");
  });
  program->measurements.mnuExit_Click();
  EXPECT_FALSE(Did("Modal FileNewDialog2"));
  EXPECT_EQ(program->state.file.DataName, "");
}

} // namespace
} // namespace trekor::tests
