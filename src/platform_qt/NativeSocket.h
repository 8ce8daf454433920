// A TCP socket of the system that never blocks; QtSocket is built on it. One file for POSIX, one for Winsock; no
// toolkit. Errors carry Winsock's numbers on every system, as the link's window shows them; 0 is none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
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

  // "127.0.0.1" or "::1", no name.
  static bool IsNumeric(const std::string& host);
  // The numeric addresses of a host, best first; none when it is not known. May take as long as the system asks others.
  static std::deque<std::string> AddressesOf(const std::string& host);

  // Begins to connect to a numeric address, "127.0.0.1" or "::1". Without an error the attempt is under way: the socket
  // becomes writable when Outcome can tell its result. An earlier connection is closed.
  int Connect(const std::string& address, int port);
  int Outcome() const;
  void SetNoDelay();
  // As much as the system takes at once; WouldBlock when that is nothing.
  Moved Send(std::string_view bytes);
  // What has arrived, as much as `room` holds; WouldBlock when nothing has. No bytes and no error: the peer has ended
  // the stream.
  Moved Receive(std::span<char> room);
  void Close();
  // For the notifier of the event loop, which must be disabled before the socket closes.
  std::intptr_t Handle() const { return handle; }

private:
  std::intptr_t handle = -1;
};

} // namespace trekor
