#include "platform_qt/QtPump.h"
#include "platform_qt/QtSocket.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTimer>

#include <functional>
#include <memory>

namespace trekor {
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

class SocketTest : public testing::Test {
protected:
  SocketTest() {
    socket.SetEvents(&heard);
    server.listen(QHostAddress::LocalHost);
  }
  bool Until(const std::function<bool()>& done) {
    QElapsedTimer clock;
    for (clock.start(); !done() && clock.elapsed() < 5000;)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    return done();
  }
  void Connect() {
    socket.Connect("127.0.0.1", server.serverPort());
    ASSERT_TRUE(Until([&] { return heard.story == "connect " && server.hasPendingConnections(); }));
    peer.reset(server.nextPendingConnection());
    socket.SetNoDelay();
  }
  void PeerSays(const char* bytes) {
    peer->write(bytes);
    peer->flush();
  }
  QTcpServer server;
  std::unique_ptr<QTcpSocket> peer;
  Listener heard;
  QtSocket socket;
  QtPump pump;
};

TEST_F(SocketTest, LinesGoBothWays) {
  EXPECT_FALSE(socket.Send("too early"));
  Connect();
  EXPECT_EQ(socket.State(), SocketState::Connected);
  EXPECT_TRUE(socket.Send("IDENTITY\r\n"));
  EXPECT_TRUE(Until([&] { return peer->bytesAvailable() == 10; }));
  PeerSays("DMI 1\r\n");
  EXPECT_TRUE(Until([&] { return heard.story == "connect data "; }));
  EXPECT_EQ(socket.ReadAll(), "DMI 1\r\n");
}

TEST_F(SocketTest, NothingGoesOutBeforeTheOwnerHasHeardOfTheConnection) {
  bool early = false;
  QTimer tick; // gets its turn between the toolkit's signal and the owner's event
  QObject::connect(&tick, &QTimer::timeout, [&] { early |= heard.story.empty() && socket.Send("DMI 1\r\n"); });
  tick.start(0);
  socket.Connect("127.0.0.1", server.serverPort());
  EXPECT_TRUE(Until([&] { return !heard.story.empty(); }));
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
      PeerSays("second");
      Until([&] { return got == "firstsecond"; });
    }
    --depth;
  };
  PeerSays("first");
  EXPECT_TRUE(Until([&] { return got == "firstsecond"; }));
  EXPECT_EQ(deepest, 2);
}

TEST_F(SocketTest, APeersCloseIsNoErrorAndStays) {
  Connect();
  PeerSays("last words");
  peer->disconnectFromHost();
  ASSERT_TRUE(Until([&] { return heard.story.ends_with("close "); }));
  EXPECT_EQ(heard.story, "connect data close ");
  EXPECT_EQ(socket.ReadAll(), "last words");
  EXPECT_EQ(socket.State(), SocketState::PeerClosing);
  EXPECT_FALSE(socket.Send("nobody there"));
  heard.story.clear();
  Connect(); // a fresh attempt is all that ends the state
  EXPECT_EQ(socket.State(), SocketState::Connected);
}

TEST_F(SocketTest, ARefusedConnectionIsTheError10061) {
  const quint16 port = server.serverPort();
  server.close();
  socket.Connect("127.0.0.1", port);
  EXPECT_TRUE(Until([&] { return heard.story == "error 10061 "; })) << heard.story;
  EXPECT_EQ(socket.State(), SocketState::Error);
  socket.Close();
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(SocketTest, NewsOfAClosedConnectionIsDropped) {
  Connect();
  heard.onData = [&] { socket.Close(); }; // while the peer's close is already on its way to us
  PeerSays("CTRL QUIT\r\n");
  peer->disconnectFromHost();
  ASSERT_TRUE(Until([&] { return socket.State() == SocketState::Closed; }));
  for (int i = 0; i < 20; ++i)
    pump.ProcessEvents();
  EXPECT_EQ(heard.story, "connect data ");
  EXPECT_EQ(socket.State(), SocketState::Closed);
  EXPECT_EQ(socket.ReadAll(), "");
}

} // namespace
} // namespace trekor
