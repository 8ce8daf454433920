#include "platform_qt/NativeSocket.h"

#include <array>
#include <cerrno>
#include <memory>

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace trekor {
namespace {

int Descriptor(std::intptr_t handle) {
  return static_cast<int>(handle);
}

// The Winsock number of a system error; an error without one counts as 10053, a connection that was lost here.
int Number(int error) {
  constexpr struct {
    int error, number;
  } known[] = {{EACCES, 10013},      {EPERM, 10013},         {EINVAL, 10022},       {EMFILE, 10024},
               {ENFILE, 10024},      {EAGAIN, 10035},        {EINTR, 10035},        {EAFNOSUPPORT, 10047},
               {EADDRINUSE, 10048},  {EADDRNOTAVAIL, 10049}, {ENETDOWN, 10050},     {ENETUNREACH, 10051},
               {ENETRESET, 10052},   {ECONNABORTED, 10053},  {ECONNRESET, 10054},   {ENOBUFS, 10055},
               {ENOMEM, 10055},      {ETIMEDOUT, 10060},     {ECONNREFUSED, 10061}, {EHOSTDOWN, 10064},
               {EHOSTUNREACH, 10065}};
  for (const auto& k : known)
    if (k.error == error)
      return k.number;
  return 10053;
}

NativeSocket::Moved Result(ssize_t moved) {
  if (moved < 0)
    return {0, Number(errno)};
  return {static_cast<std::size_t>(moved), NativeSocket::None};
}

using Found = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

Found Find(const std::string& host, int port, int flags) {
  addrinfo hints{}, *found = nullptr;
  hints.ai_flags = flags | AI_NUMERICSERV;
  hints.ai_socktype = SOCK_STREAM;
  const bool known = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) == 0;
  return {known ? found : nullptr, freeaddrinfo};
}

std::deque<std::string> AddressTexts(const Found& found) {
  std::deque<std::string> texts;
  std::array<char, NI_MAXHOST> text{};
  for (const addrinfo* a = found.get(); a; a = a->ai_next)
    if (getnameinfo(a->ai_addr, a->ai_addrlen, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST) == 0)
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
  handle = socket(found->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (handle >= 0 && (connect(Descriptor(handle), found->ai_addr, found->ai_addrlen) == 0 || errno == EINPROGRESS))
    return None;
  const int error = Number(errno);
  Close();
  return error;
}

int NativeSocket::Outcome() const {
  int error = 0;
  socklen_t size = sizeof error;
  if (getsockopt(Descriptor(handle), SOL_SOCKET, SO_ERROR, &error, &size) != 0)
    error = errno;
  return error == 0 ? None : Number(error);
}

void NativeSocket::SetNoDelay() {
  const int on = 1;
  setsockopt(Descriptor(handle), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

// A broken pipe says only that the stream has ended: how, an orderly end or an error, the next Receive tells.
NativeSocket::Moved NativeSocket::Send(std::string_view bytes) {
  const Moved moved = Result(send(Descriptor(handle), bytes.data(), bytes.size(), MSG_NOSIGNAL));
  return moved.error != None && errno == EPIPE ? Moved{0, WouldBlock} : moved;
}

NativeSocket::Moved NativeSocket::Receive(std::span<char> room) {
  return Result(recv(Descriptor(handle), room.data(), room.size(), 0));
}

void NativeSocket::Close() {
  if (handle >= 0)
    close(Descriptor(handle));
  handle = -1;
}

} // namespace trekor
