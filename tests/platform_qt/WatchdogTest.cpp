// The whole transport over the real socket: how a connection ends decides whether it comes back by itself.
#include "Peer.h"

#include "link/SocketProp.h"
#include "platform_qt/QtPump.h"
#include "platform_qt/QtSocket.h"
#include "support/FakePlatform.h"

namespace trekor::tests {
namespace {

class WatchdogTest : public testing::Test {
protected:
  WatchdogTest() {
    link.dispatch = [this](std::string_view line) { heard.emplace_back(line); };
    link.form.RemotePort.SetText(std::to_string(peer.Port()));
  }
  ~WatchdogTest() override { socket.SetEvents(nullptr); }
  bool Until(const std::function<bool()>& done) { return WaitUntil(pump, done); }
  bool Greets() {
    return Until([&] { return peer.Accepts(); }) && Until([&] {
             greeting += peer.Hears();
             return greeting.ends_with(" EVENT\r\n");
           });
  }
  void Watch() { link.form.WDT.Fire(); } // its five seconds
  Peer peer;
  QtSocket socket;
  QtPump pump;
  FakePlatform fake;
  Platform platform{fake.clock,  pump,         socket,     fake.sound, fake.keyboard,
                    fake.drives, fake.process, fake.shell, fake.screen};
  ProgramState state;
  TextDatabase texts{state, platform};
  Form mainForm{"Measurements"};
  SocketProp link{state, platform, texts, mainForm};
  std::vector<std::string> heard;
  std::string greeting;
};

TEST_F(WatchdogTest, AResetComesBackAndAnOrderlyEndStays) {
  link.Load();
  ASSERT_TRUE(Greets());
  const std::function<void()> resets[] = {[&] { peer.Resets(); },
                                          [&] { // a crash with our line unread
                                            link.SendData("EVENT CLICK");
                                            Until([&] { return peer.HasUnread(); });
                                            peer.Closes();
                                          }};
  for (const auto& reset : resets) {
    peer.Says("CTRL ARM\r\nDMI ");
    reset();
    ASSERT_TRUE(Until([&] { return socket.State() == SocketState::Closed; }));
    EXPECT_EQ(link.form.txtError.Text(), "10054");
    Watch();
    greeting.clear();
    ASSERT_TRUE(Greets());
    peer.Says("5\r\n"); // half a line waits for the rest of it
    EXPECT_TRUE(Until([&] { return heard.size() == 2; }));
    EXPECT_EQ(std::exchange(heard, {}), (std::vector<std::string>{"CTRL ARM", "DMI 5"}));
  }
  peer.Closes();
  ASSERT_TRUE(Until([&] { return socket.State() == SocketState::PeerClosing; }));
  Watch();
  EXPECT_EQ(link.form.txtState.Text(), "Peer Closing");
  Watch();
  EXPECT_FALSE(peer.Accepts());
  link.form.cmdConnect.OnClick();
  EXPECT_TRUE(Greets());
}

TEST_F(WatchdogTest, AControlProgramThatDiesBeforeItAcceptsIsFoundAgain) {
  link.Load();
  ASSERT_TRUE(Until([&] { return socket.State() == SocketState::Connected; }));
  peer.StopsListening();
  ASSERT_TRUE(Until([&] { return socket.State() == SocketState::Closed; }));
  EXPECT_EQ(link.form.txtError.Text(), "10054");
  Watch();
  ASSERT_TRUE(Until([&] { return link.form.txtError.Text() == "10061"; })); // not yet back
  Watch();
  EXPECT_EQ(link.form.txtState.Text(), "Closed");
}

} // namespace
} // namespace trekor::tests
