// The control program's end of a real connection, in plain system calls that need no event loop. After a call here a
// test lets the loop run to see its effect.
#pragma once

#include "platform/Pump.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

#include <arpa/inet.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace trekor::tests {

// Lets events run until it is done, five seconds at most. True when it is.
inline bool WaitUntil(Pump& pump, const std::function<bool()>& done) {
  QElapsedTimer clock;
  clock.start();
  bool is = done();
  for (; !is && clock.elapsed() < 5000; is = done())
    pump.WaitForEvents(20);
  return is;
}

class Peer {
public:
  explicit Peer(int backlog = 16) {
    listener = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(listener, backlog), 0);
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    port = ntohs(address.sin_port);
  }
  ~Peer() {
    Closes();
    StopsListening();
  }
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  int Port() const { return port; }
  // False when nobody has come.
  bool Accepts() {
    Closes();
    link = accept4(listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    return link >= 0;
  }
  // The bytes stand on the other side when it returns.
  void Says(std::string_view bytes) {
    ASSERT_EQ(send(link, bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
    for (int under = 1; under > 0;)
      ioctl(link, SIOCOUTQ, &under);
  }
  // What has come since the last call.
  std::string Hears() {
    std::string all(1 << 20, 0);
    const ssize_t n = recv(link, all.data(), all.size(), 0);
    all.resize(n > 0 ? static_cast<std::size_t>(n) : 0);
    return all;
  }
  bool HasUnread() {
    int bytes = 0;
    ioctl(link, FIONREAD, &bytes);
    return bytes > 0;
  }
  // With bytes unread this is a reset.
  void Closes() { Close(link); }
  void Resets() {
    const linger at = {1, 0};
    setsockopt(link, SOL_SOCKET, SO_LINGER, &at, sizeof at);
    Close(link);
  }
  // Who waits to be accepted is thrown out.
  void StopsListening() { Close(listener); }

private:
  static void Close(int& end) {
    if (end >= 0)
      close(end);
    end = -1;
  }
  int listener = -1, link = -1, port = 0;
};

} // namespace trekor::tests
