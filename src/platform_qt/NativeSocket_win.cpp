#include "platform_qt/NativeSocket.h"

#include <algorithm>
#include <array>
#include <climits>
#include <memory>

#include <winsock2.h>
#include <ws2tcpip.h>

namespace trekor {
namespace {

SOCKET Socket(std::intptr_t handle) {
  return static_cast<SOCKET>(handle);
}

// Lengths are int here.
int Length(std::size_t size) {
  return static_cast<int>(std::min<std::size_t>(size, INT_MAX));
}

NativeSocket::Moved Result(int moved) {
  if (moved == SOCKET_ERROR)
    return {0, WSAGetLastError()};
  return {static_cast<std::size_t>(moved), NativeSocket::None};
}

// Winsock must be initialised before its first use.
struct Library {
  Library() {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
  }
};

using Found = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

Found Find(const std::string& host, int port, int flags) {
  static const Library library;
  addrinfo hints{}, *found = nullptr;
  hints.ai_flags = flags;
  hints.ai_socktype = SOCK_STREAM;
  const bool known = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) == 0;
  return {known ? found : nullptr, freeaddrinfo};
}

std::deque<std::string> AddressTexts(const Found& found) {
  std::deque<std::string> texts;
  std::array<char, NI_MAXHOST> text{};
  for (const addrinfo* a = found.get(); a; a = a->ai_next)
    if (getnameinfo(a->ai_addr, static_cast<socklen_t>(a->ai_addrlen), text.data(), NI_MAXHOST, nullptr, 0,
                    NI_NUMERICHOST) == 0)
      texts.emplace_back(text.data());
  return texts;
}

} // namespace

bool NativeSocket::IsNumeric(const std::string& host) {
  return Find(host, 0, AI_NUMERICHOST) != nullptr;
}

std::deque<std::string> NativeSocket::AddressesOf(const std::string& host) {
  return AddressTexts(Find(host, 0, AI_ADDRCONFIG));
}

int NativeSocket::Connect(const std::string& address, int port) {
  Close();
  const Found found = Find(address, port, AI_NUMERICHOST);
  if (!found)
    return HostNotFound;
  handle = static_cast<std::intptr_t>(socket(found->ai_family, SOCK_STREAM, IPPROTO_TCP));
  u_long on = 1;
  if (Socket(handle) != INVALID_SOCKET && ioctlsocket(Socket(handle), static_cast<long>(FIONBIO), &on) == 0 &&
      (connect(Socket(handle), found->ai_addr, static_cast<int>(found->ai_addrlen)) == 0 ||
       WSAGetLastError() == WSAEWOULDBLOCK))
    return None;
  const int error = WSAGetLastError();
  Close();
  return error;
}

int NativeSocket::Outcome() const {
  int error = 0, size = sizeof error;
  if (getsockopt(Socket(handle), SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &size) != 0)
    error = WSAGetLastError();
  return error;
}

void NativeSocket::SetNoDelay() {
  const int on = 1;
  setsockopt(Socket(handle), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on), sizeof on);
}

NativeSocket::Moved NativeSocket::Send(std::string_view bytes) {
  return Result(send(Socket(handle), bytes.data(), Length(bytes.size()), 0));
}

NativeSocket::Moved NativeSocket::Receive(std::span<char> room) {
  return Result(recv(Socket(handle), room.data(), Length(room.size()), 0));
}

void NativeSocket::Close() {
  if (Socket(handle) != INVALID_SOCKET)
    closesocket(Socket(handle));
  handle = -1;
}

} // namespace trekor
