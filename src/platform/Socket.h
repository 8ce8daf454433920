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

// What a socket tells its owner. An adapter raises these from the pump only, never from inside a call of the owner's,
// and a handler that pumps again hears what comes meanwhile.
class SocketEvents {
public:
  virtual ~SocketEvents() = default;
  virtual void SocketConnected() = 0;
  // Bytes wait to be read with ReadAll.
  virtual void SocketDataArrived() = 0;
  // The peer has ended the stream in good order, and all bytes before the end have been told; the state is PeerClosing.
  virtual void SocketClosed() = 0;
  // An attempt has failed or the connection is lost, a reset included; the bytes that came before it have been told.
  // The state is Error, the number Winsock's.
  virtual void SocketFailed(int number) = 0;
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
  // Hands all bytes to the system or its own queue; never blocks. False when the connection is not up, or is lost with
  // this call: by an error of the system, or by a peer that has not read for so long that the queue is full. The loss
  // is told as an error.
  virtual bool Send(std::string_view bytes) = 0;
  // All bytes that have arrived since the last call.
  virtual std::string ReadAll() = 0;
};

} // namespace trekor
