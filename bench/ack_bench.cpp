// "CTRL" to its "ACK" over the real link: the program answers on its event loop; the floor is a bare process that
// receives, finds the line's end with memchr and answers. Both are asked in turn in the same run.
//
//   trekor_ack_bench TREKOR [ROUNDS]
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::uint16_t LinkPort = 15959;
constexpr std::string_view Question = "CTRL ARM\r\n", Answer = "ACK Trekor CTRL ARM\r\n";

int Listen(std::uint16_t port) {
  const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const int on = 1;
  setsockopt(server, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 || listen(server, 1) != 0) {
    std::perror("trekor_ack_bench");
    std::exit(1);
  }
  return server;
}

int Accept(int server) {
  const int peer = accept4(server, nullptr, nullptr, SOCK_CLOEXEC);
  const int on = 1;
  setsockopt(peer, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  return peer;
}

// The floor's process: connects and answers each line.
pid_t StartBareAnswerer(int server) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(server, reinterpret_cast<sockaddr*>(&address), &size);
  const pid_t child = fork();
  if (child != 0)
    return child;
  const int link = socket(AF_INET, SOCK_STREAM, 0);
  const int on = 1;
  setsockopt(link, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  if (connect(link, reinterpret_cast<sockaddr*>(&address), size) != 0)
    _exit(1);
  std::array<char, 4096> bytes{};
  for (ssize_t n = 0; (n = recv(link, bytes.data(), bytes.size(), 0)) > 0;)
    if (std::memchr(bytes.data(), '\n', static_cast<std::size_t>(n)))
      send(link, Answer.data(), Answer.size(), 0);
  _exit(0);
}

pid_t StartProgram(const char* path) {
  const pid_t child = fork();
  if (child != 0)
    return child;
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("SDL_AUDIODRIVER", "dummy", 1);
  execl(path, path, "7707-104", "/US", static_cast<char*>(nullptr));
  _exit(127);
}

// Reads until the text has come whole.
void Await(int peer, std::string_view text) {
  std::string heard;
  std::array<char, 4096> bytes{};
  while (heard.find(text) == std::string::npos) {
    const ssize_t n = recv(peer, bytes.data(), bytes.size(), 0);
    if (n <= 0) {
      std::fputs("trekor_ack_bench: the other side has gone\n", stderr);
      std::exit(1);
    }
    heard.append(bytes.data(), static_cast<std::size_t>(n));
  }
}

double AskOnce(int peer) {
  const auto begin = std::chrono::steady_clock::now();
  send(peer, Question.data(), Question.size(), 0);
  Await(peer, Answer);
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count();
}

double At(std::vector<double>& times, double part) {
  std::sort(times.begin(), times.end());
  return times[static_cast<std::size_t>(static_cast<double>(times.size() - 1) * part)];
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: trekor_ack_bench TREKOR [ROUNDS]\n", stderr);
    return 2;
  }
  const int rounds = argc > 2 ? std::atoi(argv[2]) : 5000;
  const int linkServer = Listen(LinkPort), floorServer = Listen(0);
  const pid_t bare = StartBareAnswerer(floorServer), program = StartProgram(argv[1]);
  const int floorPeer = Accept(floorServer), peer = Accept(linkServer);
  Await(peer, "SET SYSTEM ");
  std::vector<double> ours, floors;
  for (int i = 0; i < rounds; ++i) {
    floors.push_back(AskOnce(floorPeer));
    ours.push_back(AskOnce(peer));
    usleep(200); // a line now and then, as the link has it
  }
  std::printf("CTRL to ACK   ours p50 %.1f p99 %.1f us   floor p50 %.1f p99 %.1f us   ratio p50 %.2f p99 %.2f\n",
              At(ours, 0.5), At(ours, 0.99), At(floors, 0.5), At(floors, 0.99), At(ours, 0.5) / At(floors, 0.5),
              At(ours, 0.99) / At(floors, 0.99));
  send(peer, "CTRL EXIT\r\n", 11, 0);
  waitpid(program, nullptr, 0);
  kill(bare, SIGTERM);
  waitpid(bare, nullptr, 0);
  return 0;
}
