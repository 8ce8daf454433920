#include "core/CopyDatabase.h"

namespace trekor {

bool CopyDatabase(Drives& drives, const std::string& from, const std::string& to) {
  if (!drives.FileExists(from))
    return false;
  for (const char* tail : {"-wal", "-shm", "-journal"})
    if (drives.FileExists(to + tail) && !drives.DeleteFile(to + tail))
      return false;
  return drives.CopyFile(from, to);
}

} // namespace trekor
