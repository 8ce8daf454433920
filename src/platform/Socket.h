// The client end of one TCP connection. The state numbers are those that the link's window shows.
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

// What a socket tells its owner. An adapter calls these from the pump only, never from inside a call of the owner's; a
// handler may pump again and is told what arrives then.
class SocketEvents {
public:
  virtual ~SocketEvents() = default;
  virtual void SocketConnected() = 0;
  // Bytes wait to be read with ReadAll.
  virtual void SocketDataArrived() = 0;
  // The peer has ended the stream in good order; all bytes before the end were told before. The state is PeerClosing.
  virtual void SocketClosed() = 0;
  // An attempt has failed or the connection is lost, by a reset too; the bytes that came before were told before. The
  // state is Error, the number is that of Winsock on every system.
  virtual void SocketFailed(int number) = 0;
};

class Socket {
public:
  virtual ~Socket() = default;
  // One listener, borrowed; nullptr for none.
  virtual void SetEvents(SocketEvents* events) = 0;
  virtual SocketState State() const = 0;
  // Drops the connection that there is, begins an attempt and returns at once; the result comes as an event.
  virtual void Connect(const std::string& host, int port) = 0;
  // Closes without an event; bytes not yet read are gone. The state is Closed.
  virtual void Close() = 0;
  // TCP_NODELAY; without it a short answer waits for the peer's delayed acknowledgement (40 ms and more).
  virtual void SetNoDelay() = 0;
  // Passes all bytes to the system or to the adapter's queue; never blocks. False when the connection is not up or is
  // lost with this call: by an error of the system, or because the peer has not read for so long that the queue is
  // full. The loss comes as an error event.
  virtual bool Send(std::string_view bytes) = 0;
  // All bytes that have arrived since the last call.
  virtual std::string ReadAll() = 0;
};

} // namespace trekor
