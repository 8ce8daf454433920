// The link's socket against a real peer on this machine.
#include "Peer.h"

#include "platform_qt/QtPump.h"
#include "platform_qt/QtSocket.h"

#include <QTimer>

namespace trekor::tests {
namespace {

struct Listener : SocketEvents {
  void SocketConnected() override { story += "connect "; }
  void SocketDataArrived() override {
    story += "data ";
    if (onData)
      onData();
  }
  void SocketClosed() override { story += "close "; }
  void SocketFailed(int number) override { story += "error " + std::to_string(number) + " "; }
  std::string story;
  std::function<void()> onData;
};

// Knows the addresses of "van" by itself; asks the system for every other name.
class NamedSocket : public QtSocket {
public:
  std::deque<std::string> van;

protected:
  void LookUp(const std::string& host) override {
    if (host == "van")
      Found(van);
    else
      QtSocket::LookUp(host);
  }
};

class SocketTest : public testing::Test {
protected:
  SocketTest() { socket.SetEvents(&heard); }
  bool Until(const std::function<bool()>& done) { return WaitUntil(pump, done); }
  bool Tells(const std::string& story) {
    const bool told = Until([&] { return heard.story == story; });
    EXPECT_EQ(heard.story, story);
    return told;
  }
  void Attempt(const std::string& host = "127.0.0.1") {
    heard.story.clear();
    socket.Connect(host, peer.Port());
  }
  void Connect() {
    Attempt();
    ASSERT_TRUE(Tells("connect "));
    ASSERT_TRUE(peer.Accepts());
    socket.SetNoDelay();
  }
  // More than the system takes, so that some of it waits with us.
  void SendUnread() {
    for (int i = 0; i < 200; ++i)
      ASSERT_TRUE(socket.Send(std::string(65536, 'x')));
  }
  Peer peer;
  Listener heard;
  NamedSocket socket;
  QtPump pump;
};

TEST_F(SocketTest, LinesGoBothWaysInTheTurnThatHearsThem) {
  EXPECT_FALSE(socket.Send("too early"));
  socket.connectLimit = 300; // of an attempt, not of what has become of it
  bool later = false;
  Connect();
  QTimer::singleShot(400, [&] { later = true; });
  ASSERT_TRUE(Until([&] { return later; }));
  ASSERT_EQ(socket.State(), SocketState::Connected); // else the peer below would wait for ever
  heard.onData = [&] {
    EXPECT_EQ(socket.ReadAll(), "CTRL ARM\r\n");
    EXPECT_TRUE(socket.Send("ACK\r\n"));
  };
  peer.Says("CTRL ARM\r\n");
  pump.ProcessEvents(); // one turn
  EXPECT_EQ(heard.story, "connect data ");
  EXPECT_TRUE(Until([&] { return peer.HasUnread(); }));
  EXPECT_EQ(peer.Hears(), "ACK\r\n");
}

TEST_F(SocketTest, NothingGoesOutBeforeTheOwnerHasHeardOfTheConnection) {
  bool early = false;
  QTimer tick; // gets its turn between the connection and the owner's event
  QObject::connect(&tick, &QTimer::timeout, [&] { early |= heard.story.empty() && socket.Send("DMI 1\r\n"); });
  tick.start(0);
  Attempt();
  EXPECT_EQ(heard.story, ""); // never from inside the owner's own call
  EXPECT_TRUE(Tells("connect "));
  EXPECT_FALSE(early);
  EXPECT_TRUE(socket.Send("IDENTITY\r\n"));
}

TEST_F(SocketTest, AHandlerThatPumpsHearsWhatArrivesMeanwhile) {
  Connect();
  std::string got;
  int depth = 0, deepest = 0;
  heard.onData = [&] {
    deepest = std::max(deepest, ++depth);
    got += socket.ReadAll();
    if (depth == 1) {
      peer.Says("second");
      Until([&] { return got == "firstsecond"; });
    }
    --depth;
  };
  peer.Says("first");
  EXPECT_TRUE(Until([&] { return got == "firstsecond"; }));
  EXPECT_EQ(deepest, 2);
}

// However a connection ends: what its owner is told, after the bytes before it, and that nothing of it reaches the next
// connection.
TEST_F(SocketTest, EachEndIsToldAsItIsAndStaysBehind) {
  const std::string reset = "connect data error 10054 ";
  const std::tuple<const char*, std::string, std::function<void()>> ends[] = {
      {"closed with bytes unread in the system", "connect ", [&] { socket.Close(); }},
      {"closed with bytes unread by the owner", "connect data ",
       [&] {
         Tells("connect data ");
         socket.Close();
       }},
      {"closed with lines that the system has not taken yet", "connect ",
       [&] {
         SendUnread();
         socket.Close();
       }},
      {"closed by the owner who hears them", "connect data ",
       [&] {
         heard.onData = [&] { socket.Close(); };
         Tells("connect data ");
       }},
      {"closed by the peer", "connect data close ", [&] { peer.Closes(); }},
      {"closed by the peer, whom lines still meet", "connect data close ",
       [&] {
         peer.Closes();
         for (int i = 0; i < 3; ++i) // a send that meets the end does not make an error of it
           socket.Send("CTRL PAUSE\r\n");
       }},
      {"reset", reset, [&] { peer.Resets(); }},
      {"reset, met first by a send", reset,
       [&] {
         peer.Resets();
         EXPECT_FALSE(socket.Send("DMI 1\r\n"));
         EXPECT_FALSE(socket.Send("DMI 2\r\n"));
         EXPECT_EQ(heard.story, "connect "); // not from inside the owner's call
       }},
      {"reset while lines wait to go out", reset,
       [&] {
         SendUnread();
         peer.Resets();
       }},
      {"closed by the peer with bytes unread over there", reset, [&] {
         socket.Send("DMI 1\r\n");
         Until([&] { return peer.HasUnread(); });
         peer.Closes();
       }}};
  for (const bool reads : {true, false})
    for (const auto& [how, told, end] : ends) {
      SCOPED_TRACE(how);
      ASSERT_NO_FATAL_FAILURE(Connect());
      peer.Says("DMI 7\r\nDMI ");
      end();
      heard.onData = nullptr;
      Tells(told);
      const bool byPeer = told.ends_with("close "), byReset = told == reset;
      EXPECT_EQ(socket.State(), byPeer ? SocketState::PeerClosing : byReset ? SocketState::Error : SocketState::Closed);
      EXPECT_FALSE(socket.Send("nobody there"));
      EXPECT_TRUE(!reads || socket.ReadAll() == (byPeer || byReset ? "DMI 7\r\nDMI " : ""));
      ASSERT_NO_FATAL_FAILURE(Connect());
      EXPECT_EQ(socket.ReadAll(), "");
      peer.Says("CTRL ARM\r\n");
      EXPECT_TRUE(Tells("connect data "));
      EXPECT_EQ(socket.ReadAll(), "CTRL ARM\r\n");
      EXPECT_TRUE(socket.Send("ACK\r\n"));
      EXPECT_TRUE(Until([&] { return peer.HasUnread(); }));
      EXPECT_EQ(peer.Hears(), "ACK\r\n");
    }
}

TEST_F(SocketTest, AFailedAttemptShowsItsOwnNumber) {
  Attempt("127.255.255.255"); // a broadcast address: no way leads there
  EXPECT_TRUE(Tells("error 10051 "));
  EXPECT_EQ(socket.State(), SocketState::Error);
  Attempt("van"); // nowhere
  EXPECT_TRUE(Tells("error 11001 "));
  Peer silent(0);
  NamedSocket inFront; // fills the backlog, so that the next one's call is not answered
  inFront.Connect("127.0.0.1", silent.Port());
  ASSERT_TRUE(Until([&] { return inFront.State() == SocketState::Connected; }));
  heard.story.clear();
  socket.connectLimit = 50;
  socket.Connect("127.0.0.1", silent.Port());
  EXPECT_TRUE(Tells("error 10060 "));
  socket.van = {"127.0.0.1", "127.255.255.255"}; // the next one is tried, however the first has failed
  heard.story.clear();
  socket.Connect("van", silent.Port());
  EXPECT_TRUE(Tells("error 10051 "));
  heard.story.clear();
  socket.Connect("127.0.0.1", peer.Port() + 65536); // no port at all
  EXPECT_TRUE(Tells("error 10061 "));
  peer.StopsListening();
  Attempt();
  EXPECT_EQ(heard.story, "");
  EXPECT_TRUE(Tells("error 10061 "));
  socket.Close();
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(SocketTest, EachAddressOfANameIsTried) {
  socket.van = {"127.255.255.255", "127.0.0.2", "127.0.0.1"}; // no way, nobody, the peer
  Attempt("van");
  EXPECT_TRUE(Tells("connect "));
  socket.van = {"127.255.255.255", "127.0.0.2"};
  Attempt("van");
  EXPECT_TRUE(Tells("error 10061 ")); // once, of the last
  Attempt("localhost");
  EXPECT_EQ(socket.State(), SocketState::ResolvingHost);
  EXPECT_TRUE(Tells("connect "));
  Attempt("localhost");
  Attempt(); // the result of a cancelled look-up is dropped
  NamedSocket later;
  later.Connect("localhost", peer.Port());
  EXPECT_TRUE(Until([&] { return later.State() == SocketState::Connected; }));
  EXPECT_EQ(heard.story, "connect ");
}

TEST_F(SocketTest, APeerThatDoesNotReadHoldsNobodyUpAndLosesNothing) {
  Connect();
  std::string sent, got;
  for (int i = 0; i < 100000; ++i) { // some 8 MB: more than the system takes
    const std::string line = "STATUS " + std::to_string(i) + std::string(70, '.') + "\r\n";
    ASSERT_TRUE(socket.Send(line));
    sent += line;
  }
  EXPECT_TRUE(Until([&] {
    got += peer.Hears();
    return got.size() >= sent.size();
  }));
  EXPECT_TRUE(got == sent);
  SendUnread();
  while (peer.HasUnread())
    peer.Hears();
  socket.Close(); // with what the system takes by now
  EXPECT_TRUE(Until([&] { return peer.HasUnread(); }));
  ASSERT_NO_FATAL_FAILURE(Connect());

  bool taken = true; // and one that never reads again is an error before it fills the memory
  for (int i = 0; taken && i < 1000; ++i)
    taken = socket.Send(std::string(65536, 'x'));
  EXPECT_FALSE(taken);
  EXPECT_EQ(heard.story, "connect ");
  EXPECT_TRUE(Tells("connect error 10055 "));
}

} // namespace
} // namespace trekor::tests
