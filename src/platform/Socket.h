// The client end of one TCP connection, with the state numbers that the window shows and the watchdog reads.
#pragma once

#include <string>
#include <string_view>

namespace trekor {

enum class SocketState : int {
  Closed = 0,
  Open = 1,
  Listening = 2,
  ConnectionPending = 3,
  ResolvingHost = 4,
  HostResolved = 5,
  Connecting = 6,
  Connected = 7,
  PeerClosing = 8,
  Error = 9,
};

// What a socket tells its owner. An adapter raises these from the pump only, never from inside its own call into the
// toolkit, so that a handler may pump again.
class SocketEvents {
public:
  virtual ~SocketEvents() = default;
  virtual void Socket_Connect() = 0;
  // Bytes wait to be read with ReadAll.
  virtual void Socket_DataArrival() = 0;
  // The peer has closed; the state is PeerClosing.
  virtual void Socket_Close() = 0;
  virtual void Socket_Error(int number) = 0;
};

class Socket {
public:
  virtual ~Socket() = default;
  virtual void SetEvents(SocketEvents* events) = 0;
  virtual SocketState State() const = 0;
  // Begins a connection attempt and returns at once; the result comes as an event.
  virtual void Connect(const std::string& host, int port) = 0;
  virtual void Close() = 0;
  // TCP_NODELAY; without it a short answer waits for the peer's delayed acknowledgement (40 ms and more).
  virtual void SetNoDelay() = 0;
  // Hands all bytes to the system or its own queue; never blocks. False when the connection is not up.
  virtual bool Send(std::string_view bytes) = 0;
  // All bytes that have arrived since the last call.
  virtual std::string ReadAll() = 0;
};

} // namespace trekor
