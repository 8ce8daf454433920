// The transport: connecting and reconnecting, cutting bytes into lines and lines into words, sending.
#include "LinkFixture.h"

#include "values/KeyCodes.h"

#include <ctime>

namespace trekor::tests {
namespace {

class SocketPropTest : public LinkFixture {};

TEST_F(SocketPropTest, GreetsWithTheIdentityTwice) {
  socket.Load();
  EXPECT_EQ(fake.socket.host, "127.0.0.1");
  EXPECT_EQ(fake.socket.port, 15959);
  EXPECT_EQ(socket.form.RemoteHost.Text(), "Default");
  Pump();
  EXPECT_EQ(Sent(), (Lines{"IDENTITY Trekor 1 1.2.3 0 Default", "IDENTITY Trekor 1 1.2.3 0 Default",
                           "HWND Trekor  4711", "MESSAGE Trekor CTRL SET FACILITY SECTION FILE RTDMI GPS EVENT"}));
  EXPECT_TRUE(fake.socket.noDelay);
  EXPECT_FALSE(socket.form.cmdConnect.Enabled());
  EXPECT_TRUE(socket.form.cmdDisConnect.Enabled());
}

TEST_F(SocketPropTest, ASimulatorRepeatsItsCapability) {
  state.run.Simulator = true;
  socket.Load();
  Pump();
  EXPECT_EQ(Sent(), (Lines{"IDENTITY Trekor 1 1.2.3 0 Default", "CAPABILITY Trekor DMI", "CAPABILITY Trekor DMI",
                           "HWND Trekor  4711", "MESSAGE Trekor CTRL SET FACILITY SECTION FILE DMI GPS EVENT"}));
}

TEST_F(SocketPropTest, TheEntryFieldsSayWhereTo) {
  Connect();
  socket.form.RemoteHost.SetText(" 10.0.0.7 ");
  socket.form.RemotePort.SetText(" 5000 and more");
  socket.form.cmdConnect.OnClick();
  EXPECT_EQ(fake.socket.host, "10.0.0.7");
  EXPECT_EQ(fake.socket.port, 5000);
  socket.form.RemoteHost.SetText("deFAULT ");
  socket.form.RemotePort.SetText("");
  socket.form.cmdConnect.OnClick();
  EXPECT_EQ(fake.socket.host, "127.0.0.1");
  EXPECT_EQ(fake.socket.port, 15959);
}

TEST_F(SocketPropTest, OnlyCrLfEndsALine) {
  Connect();
  Arrive("DMI 1");
  EXPECT_EQ(TakeHeard(), Lines{});
  Arrive(".5\r");
  Arrive("\n\n\r\nGPS 1\rX\nY  \r\n  \r\n\r\n half");
  EXPECT_EQ(TakeHeard(), (Lines{"DMI 1.5", "\n", "GPS 1\rX\nY", "", ""}));
  Arrive(std::string(" \0\xFFline\r\n", 9));
  EXPECT_EQ(TakeHeard(), (Lines{std::string("half \0ÿline", 12)}));
}

TEST_F(SocketPropTest, AnyCutOfTheStreamGivesTheSameLines) {
  // Letters outside ASCII first, last and alone; a pair that would be one letter in the other code page; a plain line
  // in front of them and behind.
  const std::string stream =
      "\nA 1\r\n\r\n\r\r\nB\n\r\n  C 3 \r\n\xC5vej J\xF8rgen \x80\r\n\xC3\xB8\r\nD\r\n\xE6\r\nE\r\n\n\r";
  const Lines whole = {"\nA 1", "", "\r", "B\n", "C 3", "Åvej Jørgen €", "Ã¸", "D", "æ", "E"};
  Lines all = whole;
  all.emplace_back("\n\r");
  Connect();
  for (std::size_t size = 1; size <= stream.size(); ++size) {
    for (std::size_t at = 0; at < stream.size(); at += size)
      Arrive(stream.substr(at, size));
    EXPECT_EQ(TakeHeard(), whole) << "pieces of " << size;
    Arrive("\r\n"); // the rest of this round
    EXPECT_EQ(TakeHeard(), Lines{"\n\r"});
    Arrive(stream.substr(0, size)); // and cut once alone
    Arrive(stream.substr(size) + "\r\n");
    EXPECT_EQ(TakeHeard(), all) << "cut at " << size;
  }
}

TEST_F(SocketPropTest, SpeaksWindows1252) {
  Connect();
  Arrive("SET DRIVER J\xF8rgen \x80\r\n");
  EXPECT_EQ(TakeHeard(), Lines{"SET DRIVER Jørgen €"});
  socket.SendData("FACILITY NAME Åvej 道");
  EXPECT_EQ(Sent(), Lines{"FACILITY NAME \xC5vej ?"});
}

TEST_F(SocketPropTest, AnArrivalInsideAHandlerKeepsTheOrder) {
  Connect();
  socket.dispatch = [this](std::string_view line) {
    const std::string mine(line);
    heard.push_back("<" + mine);
    Pump();
    heard.push_back(mine + ">");
  };
  fake.socket.Line("B");
  Arrive("A\r\nA2\r\nhalf ");
  fake.socket.Line("line");
  Arrive("X\r\n");
  // B comes in while A is at work, and takes the waiting A2 along.
  EXPECT_EQ(TakeHeard(), (Lines{"<A", "<A2", "A2>", "<half B", "half B>", "A>", "<X", "<line", "line>", "X>"}));
}

TEST_F(SocketPropTest, AFloodThatNestsInEachAnswerIsServedInOrder) {
  Connect();
  constexpr int flood = 100000;
  int expected = 0, deepest = 0, depth = 0;
  socket.dispatch = [&](std::string_view line) {
    ASSERT_EQ(line, "CTRL " + std::to_string(expected));
    deepest = std::max(deepest, ++depth);
    if (++expected < flood)
      fake.socket.Line("CTRL " + std::to_string(expected));
    socket.SendData("ACK");
    --depth;
  };
  Arrive("CTRL 0\r\n");
  Pump(flood);
  EXPECT_EQ(expected, flood);
  EXPECT_LT(deepest, 100); // the stack holds
}

TEST_F(SocketPropTest, APeerThatTalksFasterThanItIsAnsweredDoesNotSlowTheLink) {
  Connect();
  int served = 0;
  socket.dispatch = [&](std::string_view) {
    if (++served < 2500) // two lines for each that is answered
      fake.socket.Deliver(std::string(20000, 'x') + "\r\n" + std::string(20000, 'x') + "\r\n");
    socket.SendData("ACK");
  };
  const std::clock_t before = std::clock(); // of the processor: a busy machine takes its time, but no more work
  Arrive("CTRL ARM\r\n");
  Pump(2500);
  EXPECT_EQ(served, 1 + 2 * 2499);
  EXPECT_LT(std::clock() - before, 3 * CLOCKS_PER_SEC) << "each line moves the whole backlog";
}

TEST_F(SocketPropTest, ALineWithoutAnEndIsDroppedUpToItsEnd) {
  Connect();
  Arrive("DMI 1\r\nDMI ");
  for (int i = 0; i <= 256; ++i)
    Arrive(std::string(65535, 'x') + (i % 2 ? "\n" : "\r"));
  Arrive("\n DMI 2\r\n");
  EXPECT_EQ(TakeHeard(), (Lines{"DMI 1", "DMI 2"}));
  Arrive(std::string(3'000'000, ' ') + "\r\nDMI 3\r\n"); // too long, although it came at once
  EXPECT_EQ(TakeHeard(), Lines{"DMI 3"});
}

TEST_F(SocketPropTest, AClosedSocketDropsWhatIsSent) {
  socket.SendData("EVENT CLICK");
  Connect();
  fake.socket.state = SocketState::PeerClosing;
  socket.SendData("EVENT CLICK");
  fake.socket.state = SocketState::Connected;
  EXPECT_EQ(Sent(), Lines{});
  const int pumps = fake.pump.count;
  socket.SendData("FILE NAME A\r\nFILE OPEN");
  EXPECT_EQ(Sent(), (Lines{"FILE NAME A", "FILE OPEN"}));
  EXPECT_EQ(fake.pump.count, pumps + 1);
}

TEST_F(SocketPropTest, TheWatchdogBringsBackAllButAPeersClose) {
  fake.socket.accepts = false;
  Connect();
  EXPECT_EQ(socket.form.txtError.Text(), "10061");
  EXPECT_EQ(socket.form.WDT.Interval(), 5000);
  fake.socket.accepts = true;
  socket.form.WDT.Fire();
  EXPECT_EQ(socket.form.txtState.Text(), "Closed");
  Pump();
  EXPECT_EQ(Sent().size(), 4U); // the whole greeting once more
  socket.form.WDT.Fire();
  EXPECT_EQ(socket.form.txtState.Text(), "Connected");
  for (const SocketState stuck : {SocketState::Error, SocketState::Open}) {
    fake.socket.state = stuck;
    socket.form.WDT.Fire();
    EXPECT_EQ(fake.socket.state, SocketState::Closed);
  }

  socket.form.WDT.Fire();
  Pump();
  fake.socket.PeerClose();
  const int connects = fake.socket.connects;
  for (int i = 0; i < 3; ++i)
    socket.form.WDT.Fire();
  EXPECT_EQ(socket.form.txtState.Text(), "Peer Closing");
  EXPECT_EQ(fake.socket.connects, connects);
  socket.form.cmdConnect.OnClick(); // only the operator's Connect helps
  EXPECT_EQ(fake.socket.connects, connects + 1);
}

TEST_F(SocketPropTest, HalfALineSurvivesAReconnection) {
  Connect();
  Arrive("DMI ");
  fake.socket.Fail(10054);
  socket.form.WDT.Fire();
  Pump();
  Arrive("5\r\n");
  EXPECT_EQ(TakeHeard(), Lines{"DMI 5"});
}

TEST_F(SocketPropTest, DisconnectSaysGoodbyeAndTheWatchdogComesBack) {
  Connect();
  socket.form.cmdDisConnect.Click();
  EXPECT_EQ(Sent(), Lines{"CTRL QUIT"});
  EXPECT_EQ(fake.socket.state, SocketState::Closed);
  EXPECT_TRUE(socket.form.cmdConnect.Enabled());
  EXPECT_FALSE(socket.form.cmdDisConnect.Enabled());
  socket.form.WDT.Fire();
  Pump();
  EXPECT_EQ(fake.socket.state, SocketState::Connected);
}

TEST_F(SocketPropTest, TheWindowOnlyHides) {
  Connect();
  fake.shell.Show(socket.form);
  EXPECT_TRUE(socket.form.OnKeyDown(keys::Esc, 0));
  EXPECT_FALSE(socket.form.Shown);
  fake.shell.Show(socket.form);
  EXPECT_FALSE(socket.form.OnQueryUnload());
  EXPECT_FALSE(socket.form.Shown);
  EXPECT_EQ(fake.socket.state, SocketState::Connected);
}

TEST_F(SocketPropTest, UnloadingSaysExitWaitsAndHearsNothingMore) {
  Connect();
  socket.dispatch = [this](std::string_view line) {
    heard.emplace_back(line);
    if (line == "CTRL EXIT")
      socket.Unload();
  };
  fake.socket.Line("DMI 2");
  const double before = fake.clock.Milliseconds();
  Arrive("CTRL EXIT\r\nDMI 1\r\n"); // what comes behind the exit is not carried out
  EXPECT_GE(fake.clock.Milliseconds(), before + 1000);
  EXPECT_GE(fake.pump.sleeps, 990); // the second, but for what the sends pump
  EXPECT_EQ(TakeHeard(), Lines{"CTRL EXIT"});
  EXPECT_EQ(Sent(), Lines{"CTRL EXIT"});
  EXPECT_EQ(fake.socket.state, SocketState::Closed);
}

TEST_F(SocketPropTest, TheFirstConnectionIsAwaitedForAShortWhile) {
  socket.Load();
  socket.WaitForFirstConnection();
  EXPECT_EQ(Sent().size(), 4U);
  socket.Unload();

  SocketProp refused(state, fake.platform, texts, mainForm);
  fake.socket.accepts = false;
  refused.Load();
  const double before = fake.clock.Milliseconds();
  refused.WaitForFirstConnection();
  EXPECT_LT(fake.clock.Milliseconds(), before + 100);

  SocketProp silent(state, fake.platform, texts, mainForm);
  silent.Load();
  fake.socket.state = SocketState::ResolvingHost; // and nothing ever comes of it
  fake.pump.sleeps = 0;
  silent.WaitForFirstConnection();
  EXPECT_LT(fake.clock.Milliseconds(), before + 5000);
  EXPECT_GE(fake.pump.sleeps, 1990);
}

TEST(SplitMessageTest, QuotesHoldWordsTogether) {
  const struct {
    const char* message;
    Lines words;
  } cases[] = {
      {"", {}},
      {"  ", {}},
      {R"(a "b c" d)", {"a", "b c", "d"}},
      {R"("")", {""}},
      {R"("abc)", {"abc"}},
      {R"(")", {""}},
      {R"(a"b c"d)", {"a\"b", "c\"d"}}, // inside a plain word a quote is a character
      {R"("a"bc d)", {"a", "c", "d"}},  // the character behind a closing quote is skipped
      {R"("a"""b)", {"a", "b"}},
      {"SI   STNFEET ", {"SI", "STNFEET"}},
  };
  for (const auto& c : cases) {
    const auto [words, count] = SocketProp::Split_Message(c.message);
    EXPECT_EQ(Lines(words.begin() + 1, words.begin() + 1 + count), c.words) << c.message;
    EXPECT_EQ(words[0], "");
  }
}

TEST(SplitMessageTest, TheWord33EndsTheScan) {
  std::string message;
  for (int i = 1; i <= 40; ++i)
    message += std::to_string(i) + " ";
  const auto [words, count] = SocketProp::Split_Message(message);
  EXPECT_EQ(count, 33);
  EXPECT_EQ(words[32], "32");
}

} // namespace
} // namespace trekor::tests
