// The folder of the drives is itself what is locked: there is no file to be left behind, and none to be deleted under a
// running program. Whoever names the folder by another path locks the same one.
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
