#include "platform_qt/EndRequests.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace trekor {

namespace {

constexpr int EndSignals[] = {SIGTERM, SIGINT, SIGHUP};
// A signal's handler may do no more than write: the loop hears the other end.
int signalPipe[2] = {-1, -1};

void Tell(int) {
  const int before = errno;
  [[maybe_unused]] const auto written = write(signalPipe[1], "", 1); // a full pipe tells as much
  errno = before;
}

} // namespace

void EndRequests::WatchSignals() {
  if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
    return;
  auto* heard = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
  connect(heard, &QSocketNotifier::activated, this, [this] {
    char bytes[16];
    while (read(signalPipe[0], bytes, sizeof bytes) > 0) {
    }
    end();
  });
  struct sigaction action = {};
  action.sa_handler = Tell;
  action.sa_flags = SA_RESTART;
  for (const int signal : EndSignals)
    sigaction(signal, &action, nullptr);
}

void EndRequests::ForgetSignals() {
  if (signalPipe[0] < 0)
    return;
  for (const int signal : EndSignals)
    std::signal(signal, SIG_DFL);
  for (int& side : signalPipe)
    close(std::exchange(side, -1));
}

} // namespace trekor
