// What comes in at a pump in the middle of something else.
#include "collection/RunFixture.h"

namespace trekor::tests {

class AtAPump : public RunFixture {
protected:
  void SetUp() override { Load(); }
  // The line arrives at the n-th pump from now.
  void LineAtPump(int n, const std::string& line) {
    fakes.pump.AtPump(n, [this, line] { fakes.socket.DeliverNow(line + "\r\n"); });
  }
};

TEST_F(AtAPump, AnEchoedStartInTheWaitsBeginsNoSecondRun) {
  OpenFile();
  LineAtPump(400, "CTRL START");
  for (int n = 300; n < 900; n += 25) // ticks go on in the waits
    fakes.pump.AtPump(n, [this] { form.IdleTimer.Fire(); });
  StartAt(10.0);
  EXPECT_EQ(Roads(), Texts{"10.000 to 10.100"});
  EXPECT_EQ(Stations(), Texts{"10 0"});
  EXPECT_EQ(std::count(prompts.begin(), prompts.end(), prompts.front()), 1);
}

// Any order that is carried out meanwhile ends the silence of the one before it.
TEST_F(AtAPump, AnOrderInsideALinkStartMakesTheRestOfItSpeak) {
  const Texts told = {"CTRL PREPARE  3", "STATUS PREPARE  3", "CTRL START  3", "STATUS START  3  0 1",
                      "ACK Trekor CTRL START"};
  OpenFile("ROW");
  Type(form.Texts7, "0.1");
  Dmi(3);
  Link("CTRL PREPARE 3");
  Sent();
  LineAtPump(2, "FACILITY NAME Road 21"); // the first row's; the order's own arrival is the first
  Link("CTRL START");
  EXPECT_TRUE(prompts.empty()) << "the station was settled before";
  EXPECT_EQ(Sent(), told);
  EXPECT_EQ(Roads(), Texts{"3.000 to 3.100"});
  Press(F4);
  CloseFile();
  Sent();
  fakes.drives.currentFolder = Folder;
  fakes.shell.scripts["FileNewDialog2"] = [this](Form&) { // the operator names the file while the order comes
    Link("FACILITY NAME Road 22");
    fileNew.form.Texts2.Type("FORM");
    fileNew.form.CmdOK.Click();
  };
  Answer("3");
  Link("CTRL START");
  EXPECT_EQ(prompts.size(), 1U);
  Texts lines = Sent();
  ASSERT_EQ(lines.size(), 17U) << "road and file are announced too";
  EXPECT_EQ(lines[10], "FILE OPEN");
  EXPECT_EQ(lines[11], "SET DMI  0 1  3");
  EXPECT_EQ(Texts(lines.begin() + 12, lines.end()), told);
}

TEST_F(AtAPump, APositionInsideARowWaitsUntilTheRowIsWhole) {
  for (int n = 1; n <= 4; ++n) {
    SCOPED_TRACE("pump " + std::to_string(n));
    StartFromLink(10.0);
    // The arrival of the first position is pump 1, the row's own pumps come inside it.
    LineAtPump(1 + n, "DMI 10.35");
    LineAtPump(1 + n, "DMI 10.35");
    Dmi(10.1);
    fakes.pump.ProcessEvents();
    fakes.pump.ProcessEvents();
    fakes.pump.ProcessEvents();
    EXPECT_EQ(Roads(), (Texts{"10.300 to 10.400", "10.200 to 10.300", "10.100 to 10.200", "10.000 to 10.100"}));
    ExpectAligned();
    Press(F4);
  }
}

TEST_F(AtAPump, AKeyInsideAStepRowWaitsForTheNextTick) {
  StartFromLink(10.0);
  fakes.pump.AtPump(2, [this] {
    Key('B');
    form.IdleTimer.Fire();
  });
  Dmi(10.1);
  EXPECT_EQ(Rows(), 2);
  Tick();
  EXPECT_EQ(Roads(), (Texts{"10.100 to 10.200", "10.100", "10.000 to 10.100"}));
  ExpectAligned();
}

TEST_F(AtAPump, APositionInsideAnEventRowIsCaughtUpAfterIt) {
  StartFromLink(10.0);
  Key('B');
  LineAtPump(2, "DMI 10.1"); // the tick's own pump is the first
  Tick();
  EXPECT_EQ(Roads(), (Texts{"10.100 to 10.200", "10.000 to 10.100", "10.000"}));
  ExpectAligned();
}

// The closing station is where the key was taken; a boundary that came behind it would be stored before it.
TEST_F(AtAPump, APositionInTheSendsOfAStopCrossesNoBoundary) {
  for (int pump : {2, 3}) { // the tick's own pump is the first
    SCOPED_TRACE("pump " + std::to_string(pump));
    OpenFile("STOP" + std::to_string(pump));
    StartFromLink(10.0);
    Dmi(10.05);
    Key(F4);
    LineAtPump(pump, "DMI 10.15");
    Sounds();
    Tick();
    EXPECT_EQ(Stations(), (Texts{"10 0", "10.05 0"}));
    EXPECT_TRUE(Sounds().empty());
    EXPECT_EQ(form.Texts8.Text(), "10.050");
    EXPECT_EQ(state.position.DmiStation.Text(), "10.150");
    StartFromLink(10.0);
    Tick(2);
    EXPECT_EQ(Rows(), 1) << "what was held belonged to the run before";
    Press(F4);
  }
}

// A control program that answers the end of a run straight away finds a program at rest.
TEST_F(AtAPump, WhatAnswersTheSendsOfAStopIsCarriedOutBehindIt) {
  for (int pump : {2, 3}) {
    SCOPED_TRACE("pump " + std::to_string(pump));
    const std::string first = "FIRST" + std::to_string(pump), second = "SECOND" + std::to_string(pump);
    OpenFile(first);
    StartFromLink(10.0);
    Dmi(10.05);
    for (int key : {int{'A'}, int{F4}, int{'B'}})
      Key(key);
    Tick();
    for (const std::string& line :
         Texts{"FILE CLOSE", "FILE NAME " + second, "FILE OPEN", "CTRL PREPARE 20", "CTRL START"})
      LineAtPump(pump, line);
    Tick();
    EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\" + second + ".mdb");
    EXPECT_EQ(State(), 1);
    Tick(3);
    EXPECT_EQ(Roads(), Texts{"20.000 to 20.100"}) << "no key of the run before";
    EXPECT_EQ(Stations(), Texts{"20 0"});
    Press(F4);
    CloseFile();
    EXPECT_TRUE(Exists("C:\\Roads\\" + first + ".TKR"));
    state.file.DataFilePath = "C:\\Roads\\" + first + ".mdb";
    EXPECT_EQ(Stations(), (Texts{"10 0", "10.05 0"}));
    EXPECT_EQ(Spans_Of(Crack), Texts{"1 2 1"});
    fakes.clock.Advance(1000);
  }
}

TEST_F(AtAPump, AnExitInTheWaitsEndsTheStartFirst) {
  for (int pump : {2, 5, 300, 1500}) {
    SCOPED_TRACE("pump " + std::to_string(pump));
    Fields().ending = false;
    unloads = 0;
    OpenFile("ROAD" + std::to_string(pump));
    Type(form.Texts7, "0.1");
    Answer("10");
    LineAtPump(pump, "CTRL EXIT");
    Key(F2);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(State(), 0);
    EXPECT_EQ(Rows(), 0);
    EXPECT_FALSE(state.run.DataFileOpen);
    EXPECT_FALSE(form.IdleTimer.Running());
    socket.Load();
    fakes.pump.ProcessEvents();
  }
}

TEST_F(AtAPump, AnExitInsideARowStoresEveryValue) {
  for (int pump : {2, 3, 4}) {
    SCOPED_TRACE("pump " + std::to_string(pump));
    Fields().ending = false;
    form.IdleTimer.SetRunning(true);
    OpenFile("EXIT" + std::to_string(pump));
    StartFromLink(10.0);
    Press('A');
    LineAtPump(pump, "CTRL EXIT");
    Sent();
    Dmi(10.1);
    fakes.pump.ProcessEvents();
    fakes.pump.ProcessEvents();
    EXPECT_EQ(State(), 0);
    EXPECT_EQ(Stations(), (Texts{"10 0", "10.1 0", "10 0"})) << "the key's position is where the run ends";
    EXPECT_EQ(Spans_Of(Crack), Texts{"1 2 1"});
    EXPECT_EQ(Sent(), (Texts{"FILE CLOSE", "CTRL EXIT"})) << "no acknowledgement, and silent as asked by the link";
    socket.Load();
    fakes.pump.ProcessEvents();
  }
}

TEST_F(AtAPump, AnExitDuringAPromptStopsTheRunAndDropsTheAnswer) {
  OpenFile();
  StartFromLink(10.0);
  fakes.shell.scripts["NumericPrompt"] = [this](Form& prompt) {
    Link("CTRL EXIT");
    dynamic_cast<PromptForm&>(prompt).txtBox.Type("77");
  };
  Press('G');
  EXPECT_EQ(unloads, 1);
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(Stations(), (Texts{"10 0", "10 0"}));
  EXPECT_FALSE(form.IdleTimer.Running());
}

TEST_F(AtAPump, AnExitInTheSendsOfACommandStoresTheRunOnce) {
  for (const auto& [key, pump] : {std::pair{F3, 2}, {F2, 2}, {F2, 3}, {F4, 2}, {F4, 3}}) {
    SCOPED_TRACE("key " + std::to_string(key) + " pump " + std::to_string(pump));
    Fields().ending = false;
    form.IdleTimer.SetRunning(true);
    unloads = 0;
    OpenFile("SENDS" + std::to_string(key) + std::to_string(pump));
    StartFromLink(10.0);
    Press('A');
    Key(key);
    LineAtPump(pump, "CTRL EXIT");
    Tick();
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(State(), 0);
    EXPECT_EQ(Stations(), (Texts{"10 0", "10 0"}));
    EXPECT_EQ(Spans_Of(Crack), Texts{"1 2 1"});
    socket.Load();
    fakes.pump.ProcessEvents();
  }
}

TEST_F(AtAPump, NoTickRunsWhileAKeyAsks) {
  StartFromLink(10.0);
  state.run.Simulator = true;
  fakes.shell.scripts["NumericPrompt"] = [this](Form&) {
    EXPECT_FALSE(form.IdleTimer.Running());
    Link("CTRL STOP"); // into the ring
    EXPECT_EQ(State(), 1);
  };
  Press('G');
  EXPECT_TRUE(form.IdleTimer.Running());
  Tick();
  EXPECT_EQ(State(), 0);
}

// The next lines of the link come while the pictures of the new file are stored.
TEST_F(AtAPump, WhatComesWhileAFileIsMadeIsCarriedOutInOrderBehindIt) {
  Type(form.Texts7, "0.1");
  Link("FILE PATH C:\\Roads");
  Link("FILE NAME FIRST");
  fakes.shell.pictureBytes = 20000; // events run between its blocks
  LineAtPump(2, "FILE NAME SECOND");
  fakes.pump.AtPump(2, [this] { Key(F2); }); // the operator's own start finds the form at work
  LineAtPump(3, "FILE OPEN");
  LineAtPump(4, "CTRL PREPARE 10");
  LineAtPump(5, "CTRL START");
  Line("FILE OPEN");
  for (int i = 0; i < 3; ++i)
    fakes.pump.ProcessEvents();
  EXPECT_TRUE(Exists("C:\\Roads\\FIRST.mdb"));
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\SECOND.mdb");
  EXPECT_EQ(State(), 1);
  EXPECT_EQ(Stations(), Texts{"10 0"});
  EXPECT_TRUE(prompts.empty());
  const auto& acts = fakes.shell.acts;
  EXPECT_EQ(std::count(acts.begin(), acts.end(), "Modal FileNewDialog2"), 0);
}

TEST_F(AtAPump, AKeyWhileTheNextFileOfARunIsMadeLosesNoRow) {
  Fields().GridDepth = 5;
  OpenFile("FIRST");
  StartFromLink(10.0);
  for (int i = 1; i <= 4; ++i)
    Dmi(10 + i * 0.1);
  fakes.shell.pictureBytes = 20000; // events run between its blocks
  fakes.pump.AtPump(3, [this] {
    Key('B');
    form.IdleTimer.Fire();
  });
  Link("FILE NAME SECOND");
  Link("FILE OPEN");
  fakes.pump.ProcessEvents();
  Tick();
  Press(F4);
  EXPECT_EQ(Stations(), (Texts{"10.1 0", "10.2 0", "10.3 0", "10.4 0", "10.4 1", "10.4 0"}))
      << "the full grid's oldest row too";
}

// The rows of the run are in the grid, the file that is to take them is half made.
TEST_F(AtAPump, AnExitWhileTheNextFileOfARunIsMadeStoresTheRunInIt) {
  for (const bool box : {false, true}) {
    SCOPED_TRACE(box ? "close box" : "menu");
    Fields().ending = false;
    form.IdleTimer.SetRunning(true);
    unloads = 0;
    fakes.shell.pictureBytes = 0;
    const std::string first = box ? "BOX1" : "MENU1", second = box ? "BOX2" : "MENU2";
    OpenFile(first);
    StartFromLink(10.0);
    Press('A');
    fakes.shell.pictureBytes = 20000; // events run between its blocks
    fakes.pump.AtPump(3, [this, box] {
      form.mnuNew.Click(); // nor do the operator's other orders get between
      form.mnuClose.Click();
      if (!box)
        form.mnuExit.Click();
      else if (form.OnQueryUnload())
        run.UnloadMainForm();
    });
    Link("FILE NAME " + second);
    Link("FILE OPEN");
    EXPECT_EQ(unloads, 0);
    Tick();
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\" + second + ".mdb");
    EXPECT_EQ(Query("SELECT count(*) FROM Observations"), Texts{std::to_string(setup.ObsCount())});
    EXPECT_EQ(Stations(), Texts{"10 0"});
    EXPECT_EQ(Spans_Of(Crack), Texts{"1 1 1"});
    EXPECT_TRUE(Exists("C:\\Roads\\" + second + ".TKR"));
    EXPECT_FALSE(form.IdleTimer.Running());
    socket.Load();
    fakes.pump.ProcessEvents();
  }
}

TEST_F(AtAPump, AFileOrderedWhileOneIsClosedIsOpenedAfterIt) {
  OpenFile("FIRST");
  LineAtPump(2, "FILE NAME SECOND");
  LineAtPump(2, "FILE OPEN");
  Link("FILE CLOSE");
  fakes.pump.ProcessEvents();
  EXPECT_TRUE(state.run.DataFileOpen);
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\SECOND.mdb");
  EXPECT_TRUE(Exists("C:\\Roads\\FIRST.mdb"));
}

} // namespace trekor::tests
