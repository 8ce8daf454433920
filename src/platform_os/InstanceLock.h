// Whether this program is running already. The lock belongs to the operating system and goes with the process, however
// that ends, so no left-over file can lock the program out.
#pragma once

#include <cstdint>
#include <filesystem>

namespace trekor {

class InstanceLock {
public:
  // Takes the lock for the life of the object. Where drives are folders, `folder` holds them all, and programs over two
  // different ones may run side by side; where drives are real, there is one lock for the machine.
  explicit InstanceLock(const std::filesystem::path& folder);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // True when another process held the lock. When the lock could not be tried at all, false.
  bool HeldByAnother() const { return another; }

private:
  std::intptr_t handle = None; // as the system gives it
  bool another = false;
  static constexpr std::intptr_t None = -1;
};

} // namespace trekor
