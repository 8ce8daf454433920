// Whether this program already runs. The lock is the operating system's own and dies with its process, however that
// ends: no file that was left behind says anything.
#pragma once

#include <cstdint>
#include <filesystem>

namespace trekor {

class InstanceLock {
public:
  // Takes the lock for as long as the object lives. Where drives are folders, `folder` holds them all, and programs
  // over two different ones may run side by side; where drives are real, there is one lock for the machine.
  explicit InstanceLock(const std::filesystem::path& folder);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // True when another process held the lock. A lock that could not even be asked is no sign of another process.
  bool HeldByAnother() const { return another; }

private:
  std::intptr_t handle = None; // as the system gives it
  bool another = false;
  static constexpr std::intptr_t None = -1;
};

} // namespace trekor
