// A lease for reading is given only while nobody has the file open for writing.
#include "store/InUse.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace trekor {

bool OpenForWriting(const std::string& nativePath) {
  const int file = ::open(nativePath.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0)
    return false;
  // When another program opens the file while we hold the lease, the system signals us; the usual signal would end the
  // program.
  const bool quiet = ::fcntl(file, F_SETSIG, SIGURG) == 0;
  const bool refused = quiet && ::fcntl(file, F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN;
  ::close(file); // which gives the lease back
  return refused;
}

} // namespace trekor
