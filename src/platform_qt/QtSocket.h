// The link's TCP client: a socket of the system with the toolkit's notifier. Events reach the owner in the turn of the
// event loop that finds them, so an answer leaves in that turn too. A handler may pump, send, close or connect again,
// and is told what arrives meanwhile: the toolkit's own socket can't do that.
#pragma once

#include "platform/Socket.h"
#include "platform_qt/NativeSocket.h"

#include <QSocketNotifier>
#include <QTimer>

#include <array>
#include <deque>
#include <memory>

namespace trekor {

class QtSocket : public QObject, public Socket {
public:
  QtSocket();
  ~QtSocket() override;

  void SetEvents(SocketEvents* e) override { events = e; }
  SocketState State() const override { return state; }
  void Connect(const std::string& host, int port) override;
  void Close() override;
  void SetNoDelay() override { native.SetNoDelay(); }
  bool Send(std::string_view bytes) override;
  std::string ReadAll() override;

  // How long each address of the host is tried, milliseconds. The error is then TimedOut.
  int connectLimit = 21000;

protected:
  // Calls Found, at once or later. Not called for a numeric address. Tests override it.
  virtual void LookUp(const std::string& host);
  void Found(std::deque<std::string> addressesOfHost);

private:
  struct Asker;

  void Drop();
  void TryNext();
  void OnWritable();
  bool Hear();
  void Fail(int number);
  void Settle(unsigned of);
  void End(int number);

  std::shared_ptr<Asker> asker; // shared with the searches that are still under way
  SocketEvents* events = nullptr;
  NativeSocket native;
  QSocketNotifier readable{QSocketNotifier::Read}, writable{QSocketNotifier::Write};
  QTimer limit;
  SocketState state = SocketState::Closed;
  unsigned connection = 0; // counts connections: events of an older one are dropped
  int port = 0;
  std::deque<std::string> addresses; // of the host, not yet tried
  int lastError = 0;                 // of the address that was tried last
  int failure = 0;                   // an error that waits until the bytes before it were handed over
  std::string received;              // not yet read by the owner
  std::string waiting;               // sent, not yet taken by the system
  std::array<char, 1 << 16> room{};  // for one read
};

} // namespace trekor
