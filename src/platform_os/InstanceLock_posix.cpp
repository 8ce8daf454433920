// Locks the folder of the drives itself: no file is left behind, and none can be deleted under a running program.
// Another path of the same folder gives the same lock.
#include "platform_os/InstanceLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace trekor {

InstanceLock::InstanceLock(const std::filesystem::path& folder)
    : handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (handle != None)
    another = ::flock(static_cast<int>(handle), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
  if (handle != None)
    ::close(static_cast<int>(handle));
}

} // namespace trekor
