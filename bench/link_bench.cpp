// A burst of link lines through the program's own transport and dispatcher, beside its floors: the same bytes received
// over a loopback connection, or lying in memory, and walked line by line with memchr alone. Median of five rounds
// each.
#include "program/Program.h"
#include "support/FakePlatform.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace trekor::bench {
namespace {

constexpr std::size_t Piece = 65536; // what one read of the system brings at most

// Positions, and a fix with every tenth of them, as a vehicle sends them.
std::string Burst(int lines) {
  std::string bytes;
  for (int i = 0; i < lines; ++i) {
    const std::string thousandths = std::to_string(1000 + i % 1000).substr(1);
    const std::string station = std::to_string(i / 1000) + "." + thousandths;
    bytes += i % 10 ? "DMI " + station : "GPS 143015.2 55.6761" + thousandths + " 12.5683" + thousandths + " 14.2 1 9";
    bytes += "\r\n";
  }
  return bytes;
}

// One loopback connection; the other end is fed by a thread of its own.
class Loopback {
public:
  Loopback() {
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    near = ::socket(AF_INET, SOCK_STREAM, 0);
    ok = ::bind(listener, generic, size) == 0 && ::listen(listener, 1) == 0 &&
         ::getsockname(listener, generic, &size) == 0 && ::connect(near, generic, size) == 0;
    far = ok ? ::accept(listener, nullptr, nullptr) : -1;
    ::close(listener);
  }
  ~Loopback() {
    ::close(near);
    ::close(far);
  }
  Loopback(const Loopback&) = delete;
  Loopback& operator=(const Loopback&) = delete;
  void Feed(const std::string& bytes) const {
    for (std::size_t at = 0; at < bytes.size();) {
      const ssize_t sent = ::send(far, bytes.data() + at, bytes.size() - at, MSG_NOSIGNAL);
      if (sent <= 0)
        return;
      at += static_cast<std::size_t>(sent);
    }
  }
  bool ok = false;
  int near = -1;

private:
  int far = -1;
};

// Hands the program the bytes of a burst a piece at a time.
class BurstSocket : public Socket {
public:
  void SetEvents(SocketEvents* e) override { events = e; }
  SocketState State() const override { return SocketState::Connected; }
  void Connect(const std::string&, int) override {}
  void Close() override {}
  void SetNoDelay() override {}
  bool Send(std::string_view) override { return true; }
  std::string ReadAll() override { return std::move(waiting); }
  void Arrive(std::string bytes) {
    waiting = std::move(bytes);
    events->SocketDataArrived();
  }

private:
  SocketEvents* events = nullptr;
  std::string waiting;
};

struct Bench {
  Bench() {
    program.emplace(platform);
    program->ForTests().socket.Load();
  }
  tests::FakePlatform fake;
  BurstSocket socket;
  Platform platform{fake.clock,  fake.pump,    socket,     fake.sound, fake.keyboard,
                    fake.drives, fake.process, fake.shell, fake.screen};
  std::optional<Program> program;
};

// The floor's walk: counts lines, keeps what is unfinished at the front of its buffer.
struct BareWalk {
  std::string buffer;
  long lines = 0;
  void Take(const char* bytes, std::size_t size) {
    buffer.append(bytes, size);
    std::size_t done = 0;
    while (const void* end = std::memchr(buffer.data() + done, '\n', buffer.size() - done)) {
      done = static_cast<std::size_t>(static_cast<const char*>(end) - buffer.data()) + 1;
      ++lines;
    }
    buffer.erase(0, done);
  }
};

using Taker = std::function<void(const char*, std::size_t)>;

void FromMemory(const std::string& bytes, const Taker& take) {
  for (std::size_t at = 0; at < bytes.size(); at += Piece)
    take(bytes.data() + at, std::min(Piece, bytes.size() - at));
}

void FromLoopback(const std::string& bytes, const Taker& take) {
  const Loopback link;
  if (!link.ok)
    return;
  std::thread feeder([&] { link.Feed(bytes); });
  std::string piece(Piece, '\0');
  for (std::size_t got = 0; got < bytes.size();) {
    const ssize_t size = ::recv(link.near, piece.data(), piece.size(), 0);
    if (size <= 0)
      break;
    take(piece.data(), static_cast<std::size_t>(size));
    got += static_cast<std::size_t>(size);
  }
  feeder.join();
}

using Rounds = std::array<double, 9>;

double Seconds(const std::function<void()>& round) {
  const auto start = std::chrono::steady_clock::now();
  round();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(Rounds seconds) {
  std::sort(seconds.begin(), seconds.end());
  return seconds[seconds.size() / 2];
}

using Source = void (*)(const std::string&, const Taker&);

void Ours(Bench& bench, Source source, const std::string& bytes) {
  source(bytes, [&](const char* p, std::size_t n) { bench.socket.Arrive(std::string(p, n)); });
}

void Floor(Source source, const std::string& bytes) {
  BareWalk walk;
  source(bytes, [&](const char* p, std::size_t n) { walk.Take(p, n); });
}

// Round by round in turn, so that a busy machine is busy for both.
void Compare(const char* name, Bench& bench, Source source, const std::string& bytes, int lines) {
  Rounds ours{}, floor{};
  for (std::size_t i = 0; i < ours.size(); ++i) {
    ours[i] = Seconds([&] { Ours(bench, source, bytes); });
    floor[i] = Seconds([&] { Floor(source, bytes); });
  }
  std::printf("%s_lines_per_s %.0f\n%s_floor_lines_per_s %.0f\n%s_ratio %.2f\n", name, lines / Median(ours), name,
              lines / Median(floor), name, Median(ours) / Median(floor));
}

// 1: ten times the lines take ten times the time.
void Linearity(Bench& bench, const std::string& few, const std::string& many) {
  Rounds small{}, large{};
  for (std::size_t i = 0; i < small.size(); ++i) {
    small[i] = Seconds([&] { Ours(bench, FromMemory, few); });
    large[i] = Seconds([&] { Ours(bench, FromMemory, many); });
  }
  std::printf("link_linearity %.2f\n", Median(large) / Median(small) / 10);
}

int Run() {
  constexpr int many = 1'000'000;
  Bench bench;
  const std::string burst = Burst(many);
  Compare("link_loopback", bench, FromLoopback, burst, many);
  Compare("link_memory", bench, FromMemory, burst, many);
  Linearity(bench, Burst(many / 10), burst);
  const bool heard = bench.program->ForTests().state.position.DmiStation.Default() == 999.999;
  if (!heard)
    std::fprintf(stderr, "the last position did not arrive\n");
  return heard ? 0 : 1;
}

} // namespace
} // namespace trekor::bench

int main() {
  return trekor::bench::Run();
}
