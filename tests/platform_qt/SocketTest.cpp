// The link's socket against a real peer on this machine.
#include "Peer.h"
#include "WaitUntil.h"

#include "platform_qt/QtPump.h"
#include "platform_qt/QtSocket.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace trekor::tests {
namespace {

struct Listener : SocketEvents {
  void Socket_Connect() override { story += "connect "; }
  void Socket_DataArrival() override {
    story += "data ";
    if (onData)
      onData();
  }
  void Socket_Close() override { story += "close "; }
  void Socket_Error(int number) override { story += "error " + std::to_string(number) + " "; }
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
  Connect();
  EXPECT_EQ(socket.State(), SocketState::Connected);
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

TEST_F(SocketTest, AnOrderlyEndIsNoErrorAndStays) {
  Connect();
  peer.Says("last words");
  peer.Closes();
  ASSERT_TRUE(Tells("connect data close "));
  EXPECT_EQ(socket.ReadAll(), "last words");
  EXPECT_EQ(socket.State(), SocketState::PeerClosing);
  EXPECT_FALSE(socket.Send("nobody there"));
  Connect(); // a fresh attempt is all that ends the state
  EXPECT_EQ(socket.State(), SocketState::Connected);

  peer.Closes();
  for (int i = 0; i < 3; ++i) // a send that meets the end does not make an error of it
    socket.Send("CTRL PAUSE\r\n");
  EXPECT_TRUE(Tells("connect close "));
}

TEST_F(SocketTest, AResetIsAnErrorBehindTheBytesBeforeIt) {
  const struct {
    const char* when;
    std::function<void()> reset;
    const char* story;
  } cases[] = {
      {"while reading",
       [&] {
         peer.Says("last words");
         peer.Resets();
       },
       "connect data error 10054 "},
      {"at a send, which meets it first",
       [&] {
         peer.Says("last words");
         peer.Resets();
         EXPECT_FALSE(socket.Send("DMI 1\r\n"));
         EXPECT_FALSE(socket.Send("DMI 2\r\n"));
         EXPECT_EQ(heard.story, "connect "); // not from inside the owner's call
       },
       "connect data error 10054 "},
      {"while lines wait to go out",
       [&] {
         SendUnread();
         peer.Resets();
       },
       "connect error 10054 "},
      {"an end with bytes unread over there",
       [&] {
         socket.Send("DMI 1\r\n");
         Until([&] { return peer.HasUnread(); });
         peer.Closes();
       },
       "connect error 10054 "},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.when);
    ASSERT_NO_FATAL_FAILURE(Connect());
    c.reset();
    Tells(c.story);
    EXPECT_EQ(socket.ReadAll(), std::string(c.story).find("data") == std::string::npos ? "" : "last words");
    EXPECT_EQ(socket.State(), SocketState::Error);
    socket.Close();
    EXPECT_EQ(socket.State(), SocketState::Closed);
  }
  Attempt(); // which the peer never takes out of its backlog
  ASSERT_TRUE(Tells("connect "));
  socket.Send("IDENTITY\r\n");
  peer.StopsListening();
  EXPECT_TRUE(Tells("connect error 10054 "));
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
  Attempt(); // whoever has given up the look-up hears no more of it
  NamedSocket later;
  later.Connect("localhost", peer.Port());
  EXPECT_TRUE(Until([&] { return later.State() == SocketState::Connected; }));
  EXPECT_EQ(heard.story, "connect ");
}

TEST_F(SocketTest, NothingOfAConnectionReachesTheNextOne) {
  const std::pair<const char*, std::function<void()>> ends[] = {
      {"closed with bytes unread in the system", [&] { socket.Close(); }},
      {"closed with bytes unread by the owner",
       [&] {
         Tells("connect data ");
         socket.Close();
       }},
      {"closed with lines that the system has not taken yet",
       [&] {
         SendUnread();
         socket.Close();
       }},
      {"closed by the owner who hears them",
       [&] {
         heard.onData = [&] { socket.Close(); };
         Tells("connect data ");
       }},
      {"closed by the peer behind them",
       [&] {
         peer.Closes();
         Tells("connect data close ");
       }},
      {"reset", [&] {
         peer.Resets();
         Tells("connect data error 10054 ");
       }}};
  for (const auto& [how, end] : ends) {
    SCOPED_TRACE(how);
    ASSERT_NO_FATAL_FAILURE(Connect());
    peer.Says("DMI 7\r\nDMI ");
    end();
    heard.onData = nullptr;
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

  bool taken = true; // and one that never reads again is an error before it fills the memory
  for (int i = 0; taken && i < 1000; ++i)
    taken = socket.Send(std::string(65536, 'x'));
  EXPECT_FALSE(taken);
  EXPECT_EQ(heard.story, "connect ");
  EXPECT_TRUE(Tells("connect error 10055 "));
}

} // namespace
} // namespace trekor::tests
