// A TCP socket of the system that never blocks: what the link's adapter stands on. Twins by suffix, POSIX and Winsock;
// no toolkit in here. Errors carry Winsock's numbers on every system, as the window of the link shows them; 0 is none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace trekor {

class NativeSocket {
public:
  enum Errors : int { None = 0, WouldBlock = 10035, NoBuffers = 10055, TimedOut = 10060, HostNotFound = 11001 };
  struct Moved {
    std::size_t bytes = 0;
    int error = None;
  };

  NativeSocket() = default;
  ~NativeSocket() { Close(); }
  NativeSocket(const NativeSocket&) = delete;
  NativeSocket& operator=(const NativeSocket&) = delete;

  // Begins to connect to an address in figures, "127.0.0.1" or "::1". Without an error it is under way: the socket
  // turns writable when Outcome can tell how it went. A connection that stood before is closed.
  int Connect(const std::string& address, int port);
  int Outcome() const;
  void SetNoDelay();
  // As much as the system takes at once; WouldBlock when that is nothing.
  Moved Send(std::string_view bytes);
  // What has come, as much as there is room for; WouldBlock when nothing has. Neither bytes nor an error: the peer has
  // ended the stream.
  Moved Receive(std::span<char> room);
  void Close();
  // For the loop's notifier. It must be disabled before the socket closes.
  std::intptr_t Handle() const { return handle; }

private:
  std::intptr_t handle = -1;
};

} // namespace trekor
