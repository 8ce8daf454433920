// Another process that does part of a test, signals how far it is, and may be killed in the middle.
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace trekor::tests {

class Child {
public:
  explicit Child(const std::function<void(Child&)>& doing) {
    EXPECT_EQ(pipe(ends), 0);
    if (pid = fork(); pid == 0) {
      doing(*this);
      _exit(0);
    }
    close(ends[1]);
  }
  ~Child() {
    Kill();
    close(ends[0]);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  // Called in the child; ends it when the parent no longer listens.
  void Sign() {
    if (write(ends[1], "s", 1) != 1)
      _exit(1);
  }
  // Waits for its next sign; false when it has ended.
  bool Signed() {
    char sign = 0;
    return read(ends[0], &sign, 1) == 1;
  }
  // Waits for its end; its status.
  int Wait() {
    waitpid(pid, &status, 0);
    pid = -1;
    return status;
  }
  bool Ended() { return pid == -1 || (waitpid(pid, &status, WNOHANG) == pid && (pid = -1) == -1); }
  void Kill() {
    if (pid > 0 && kill(pid, SIGKILL) == 0)
      Wait();
  }

private:
  int ends[2] = {};
  pid_t pid = -1;
  int status = 0;
};

} // namespace trekor::tests
