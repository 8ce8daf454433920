// What the link does while a form of the operator is up, and what the form does then.
#include "collection/RunFixture.h"

namespace trekor::tests {

class UnderAForm : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.currentFolder = Folder;
    Load();
    Type(form.Texts7, "0.1");
  }
  // What happens while the new-file form is up; a form that is left untouched closes at the end.
  void WhileAsked(const std::function<void()>& story) {
    fakes.shell.scripts["FileNewDialog2"] = [story](Form&) { story(); };
  }
  void LinkOpens(const std::string& name) {
    Link("FILE PATH C:\\Roads");
    Link("FILE NAME " + name);
    Link("FILE OPEN");
  }
  // The operator's next act, on whatever is in front of him.
  void Accept(const std::string& name) {
    fileNew.form.Texts2.Type(name);
    fileNew.form.OnKeyDown(13, 0);
  }
  int Told(const std::string& line) {
    const Texts lines = Sent();
    return static_cast<int>(std::count(lines.begin(), lines.end(), line));
  }
};

// However the form came up, and whatever key the operator was about to press.
TEST_F(UnderAForm, AFileThatTheLinkOpensTakesTheNewFileFormAway) {
  state.options.KeepMdb = false;
  int job = 0;
  for (const std::string way : {"menu", "operator", "link"})
    for (const int key : {Esc, F4, 13}) {
      const std::string name = "LINK" + std::to_string(++job);
      SCOPED_TRACE(way + " " + std::to_string(key));
      bool gone = false;
      WhileAsked([&] {
        LinkOpens(name);
        gone = !fileNew.form.Shown;
        fileNew.form.Texts2.Type("MINE");
        fileNew.form.OnKeyDown(key, 0);
      });
      Dmi(10.0);
      Sent();
      Answer("10");
      if (way == "menu")
        form.mnuNew.Click();
      else if (way == "operator")
        Key(F2);
      else
        Link("CTRL START");
      EXPECT_TRUE(gone);
      EXPECT_EQ(state.file.DataName, name);
      EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\" + name + ".mdb");
      EXPECT_EQ(Told("FILE OPEN"), 0) << "the link knows";
      EXPECT_FALSE(Exists("C:\\Roads\\MINE.mdb"));
      if (way == "menu")
        StartFromLink(10.0);
      EXPECT_EQ(State(), 1);
      Press('A');
      Dmi(10.1);
      Press(F4);
      EXPECT_EQ(Stations(), (Texts{"10 0", "10.1 0", "10.1 0"}));
      CloseFile();
      EXPECT_EQ(fakes.drives.Files(Folder, "LINK" + std::to_string(job) + ".*"), Texts{name + ".TKR"});
      fakes.clock.Advance(1000);
    }
}

TEST_F(UnderAForm, ACancelLeavesTheNameThatTheLinkHasGivenMeanwhile) {
  state.file.DataName = "OLD";
  WhileAsked([this] { EXPECT_EQ(state.file.DataName, ""); });
  form.mnuNew.Click();
  EXPECT_EQ(state.file.DataName, "");
  WhileAsked([this] {
    Link("FILE NAME NEXT");
    fileNew.form.OnKeyDown(Esc, 0);
  });
  form.mnuNew.Click();
  EXPECT_FALSE(Exists("C:\\Roads\\NEXT.mdb")) << "named, not yet ordered";
  Link("FILE PATH C:\\Roads");
  Link("FILE OPEN");
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\NEXT.mdb");
  EXPECT_TRUE(state.run.DataFileOpen);
}

// Accepting tells the link about the road, and each telling pumps.
TEST_F(UnderAForm, WhatTheLinkOrdersWhileTheOperatorsFileIsMadeComesBehindIt) {
  Link("FILE PATH C:\\Roads");
  for (int pump = 1; pump <= 6; ++pump) {
    SCOPED_TRACE(pump);
    const std::string mine = "MINE" + std::to_string(pump), theirs = "LINK" + std::to_string(pump);
    Sent();
    WhileAsked([this, pump, mine, theirs] {
      fakes.pump.AtPump(pump, [this, theirs] {
        fakes.socket.DeliverNow("FILE NAME " + theirs + "\r\nFILE GUID 77\r\nFILE OPEN\r\n");
      });
      Accept(mine);
    });
    form.mnuNew.Click();
    const Texts lines = Sent();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "FILE NAME " + mine), 1);
    for (int i = 0; i < 6; ++i)
      fakes.pump.ProcessEvents();
    EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\" + theirs + ".mdb");
    EXPECT_EQ(Query("SELECT GUID FROM Sessions"), Texts{"77"});
    CloseFile();
    state.file.DataFilePath = "C:\\Roads\\" + mine + ".mdb";
    EXPECT_EQ(Query("SELECT length(GUID) FROM Sessions"), Texts{"32"});
    fakes.clock.Advance(1000);
  }
}

TEST_F(UnderAForm, AStartFromTheLinkIsIgnoredWhileTheOperatorNamesAFile) {
  for (const char* word : {"START", "RESUME"}) {
    SCOPED_TRACE(word);
    Sent();
    WhileAsked([this, word] {
      Link(std::string("CTRL ") + word);
      EXPECT_EQ(State(), 0);
      EXPECT_EQ(Rows(), 0);
      EXPECT_TRUE(fileNew.form.Shown);
      Accept(word);
    });
    form.mnuNew.Click();
    EXPECT_EQ(State(), 0);
    EXPECT_TRUE(state.run.DataFileOpen);
    EXPECT_EQ(Told(std::string("ACK Trekor CTRL ") + word), 1);
    EXPECT_TRUE(prompts.empty());
    CloseFile();
  }
  // The form has gone for the link's file by then, though its showing has not yet come to its end.
  WhileAsked([this] {
    Line("FILE NAME BURST");
    Line("FILE OPEN");
    Line("CTRL PREPARE 10");
    Link("CTRL START");
  });
  form.mnuNew.Click();
  EXPECT_EQ(State(), 1);
  EXPECT_EQ(Stations(), Texts{"10 0"});
}

TEST_F(UnderAForm, TheLinksFileTakesAMessageOfTheFormAwayToo) {
  const std::string words = fakes.drives.NativePath("C:\\Trekor\\Words.mdb");
  ASSERT_TRUE(Database::Create(words, ""));
  ASSERT_TRUE(Database::Open(words, OpenMode::Shared)
                  ->Execute("CREATE TABLE Messages (ID INTEGER NOT NULL PRIMARY KEY, English TEXT);"
                            "INSERT INTO Messages VALUES (401, 'Taken.')"));
  messages.Open("C:\\Trekor\\Words.mdb");
  fakes.drives.Write("C:\\Roads\\TAKEN.mdb", "x");
  fakes.shell.scripts["Message"] = [this](Form& message) {
    LinkOpens("ROAD09");
    EXPECT_FALSE(message.Shown);
    EXPECT_FALSE(fileNew.form.Shown);
  };
  WhileAsked([this] { Accept("TAKEN"); });
  form.mnuNew.Click();
  EXPECT_EQ(state.file.DataName, "ROAD09");
}

TEST_F(UnderAForm, AnExitTakesTheNewFileFormAwayAndItsAnswerIsNoOrder) {
  WhileAsked([this] {
    Link("CTRL EXIT");
    EXPECT_FALSE(fileNew.form.Shown);
    Sent();
    Accept("LATE");
  });
  Key(F2);
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(Sent().empty());
  EXPECT_EQ(state.file.DataName, "");
  EXPECT_FALSE(Exists("C:\\Roads\\LATE.mdb"));
}

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
    Accept("ROAD09");
  });
  form.mnuNew.Click();
  EXPECT_EQ(Query("SELECT FacilityName, SectionName, Start, End FROM Sessions"), Texts{"Road 21 South Bridge Exit 12"});
  WhileAsked([this] {
    EXPECT_EQ(fileNew.form.Texts0.Text() + fileNew.form.Texts1.Text(), "Road 21South") << "the next file goes on there";
    fileNew.form.OnKeyDown(27, 0);
  });
  form.mnuNew.Click();
}

TEST_F(UnderAForm, AFileChangedUnderAPromptOfTheStartDecidesWhereTheRunGoes) {
  OpenFile("FIRST");
  fakes.shell.scripts["NumericPrompt"] = [this](Form&) { LinkOpens("SECOND"); };
  Type(form.Texts6, "10");
  Key(F2);
  EXPECT_EQ(State(), 1);
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\SECOND.mdb");
  EXPECT_EQ(Stations(), Texts{"10 0"});
  Press(F4);
  // Closed under the prompt: nobody would store this run, and the operator would not know.
  fakes.shell.scripts["NumericPrompt"] = [this](Form&) { CloseFile(); };
  Sent();
  Key(F2);
  EXPECT_EQ(State(), 0);
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(Sent(), (Texts{"FILE CLOSE", "SET DMI  0 1  10"})) << "no start is announced";
  EXPECT_TRUE(form.Texts7.Enabled());
}

// A run's prompt keeps the tick away: the ring keeps the order.
TEST_F(UnderAForm, OrdersUnderAPromptOfARunComeBehindItsAnswer) {
  OpenFile("FIRST");
  StartFromLink(10.0);
  fakes.shell.scripts["NumericPrompt"] = [this](Form& prompt) {
    for (const char* line : {"CTRL SUSPEND", "CTRL START", "CTRL STOP", "FILE CLOSE"})
      Link(line);
    dynamic_cast<PromptForm&>(prompt).txtBox.Type("77");
  };
  Press('G');
  EXPECT_EQ(State(), 1);
  Tick(3);
  EXPECT_EQ(State(), 0);
  EXPECT_TRUE(state.run.DataFileOpen) << "no close in a run";
  EXPECT_EQ(Query("SELECT RegData FROM Registrations WHERE ObsCode=107"), (Texts{"77", "77"}))
      << "the point, and the step that it lies in";
  CloseFile();

  OpenFile("SECOND");
  StartFromLink(10.0);
  fakes.shell.scripts["NumericPrompt"] = [this](Form& prompt) {
    LinkOpens("THIRD");
    dynamic_cast<PromptForm&>(prompt).txtBox.Type("78");
  };
  Dmi(10.05);
  Press('G');
  Dmi(10.1);
  Press(F4);
  EXPECT_EQ(state.file.DataFilePath, "C:\\Roads\\THIRD.mdb");
  EXPECT_EQ(Query("SELECT RegData FROM Registrations WHERE ObsCode=107"), (Texts{"78", "78"}));
  EXPECT_EQ(
      Query("SELECT count(*) FROM Registrations WHERE FromID>0 AND FromID NOT IN (SELECT StationID FROM Stations)"),
      Texts{"0"})
      << "no span begins at a station of the file before";
}

} // namespace trekor::tests
