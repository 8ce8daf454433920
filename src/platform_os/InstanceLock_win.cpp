// A named mutex of the machine, as its drives are the same for all users. Only its existence counts; nobody waits for
// it.
#include "platform_os/InstanceLock.h"

#include <windows.h>

namespace trekor {

InstanceLock::InstanceLock(const std::filesystem::path&) {
  const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"Global\\Veldmark Trekor");
  const DWORD error = GetLastError();
  // Another user's mutex may be there without being ours to open.
  another = mutex ? error == ERROR_ALREADY_EXISTS : error == ERROR_ACCESS_DENIED;
  if (mutex)
    handle = reinterpret_cast<std::intptr_t>(mutex);
}

InstanceLock::~InstanceLock() {
  if (handle != None)
    CloseHandle(reinterpret_cast<HANDLE>(handle));
}

} // namespace trekor
