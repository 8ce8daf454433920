#include "Disk.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
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

bool IsFull(int error) {
  return error == ENOSPC || error == EDQUOT || error == EFBIG;
}

} // namespace trekor
