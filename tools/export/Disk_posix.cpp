#include "Disk.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace trekor {

void PrepareDisk() {
  std::signal(SIGXFSZ, SIG_IGN);
}

int SyncFile(const std::string& nativePath) {
  const int file = ::open(nativePath.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0)
    return errno;
  const int error = ::fsync(file) == 0 ? 0 : errno;
  ::close(file);
  return error;
}

bool IsTerminal(std::FILE* stream) {
  return ::isatty(::fileno(stream)) == 1;
}

int HoldFolder(const std::string& nativePath) {
  const int folder = ::open(nativePath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder >= 0 && ::flock(folder, LOCK_EX | LOCK_NB) == 0)
    return folder;
  LetGo(folder);
  return -1;
}

void LetGo(int held) {
  if (held >= 0)
    ::close(held);
}

std::string MachineName() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

bool IsFull(int error) {
  return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

} // namespace trekor
