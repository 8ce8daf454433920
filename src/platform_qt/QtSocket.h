// The link's TCP client: a socket of the system over the toolkit's notifier. The owner hears of everything straight
// from the loop's turn that finds it, so an answer leaves in that same turn; and as nothing here is closed to a second
// entry, a handler may pump, send, close or connect again, and hears what comes meanwhile.
#pragma once

#include "platform/Socket.h"
#include "platform_qt/NativeSocket.h"

#include <QSocketNotifier>
#include <QTimer>

#include <array>
#include <deque>

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

  // Of each address of the host, in milliseconds; the error is then that of a connection that timed out.
  int connectLimit = 21000;

protected:
  // Ends in Found, at once or later. None is needed for an address in figures.
  virtual void LookUp(const std::string& host);
  void Found(std::deque<std::string> addressesOfHost);

private:
  void Drop();
  void TryNext();
  void OnWritable();
  bool Hear();
  void Fail(int number);
  void Settle(unsigned of);
  void End(int number);

  SocketEvents* events = nullptr;
  NativeSocket native;
  QSocketNotifier readable{QSocketNotifier::Read}, writable{QSocketNotifier::Write};
  QTimer limit;
  SocketState state = SocketState::Closed;
  unsigned connection = 0; // number of the present connection, so that news of older ones can be told
  int port = 0;
  std::deque<std::string> addresses; // of the host, not yet tried
  int lastError = 0;                 // of the address that was tried last
  int failure = 0;                   // an error that waits until the bytes before it were handed over
  std::string received;              // not yet read by the owner
  std::string waiting;               // sent, not yet taken by the system
  std::array<char, 1 << 16> room{};  // one helping
};

} // namespace trekor
