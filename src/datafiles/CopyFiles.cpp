// The copies that a closed data file leaves on the backup drive.
#include "datafiles/DataFiles.h"

namespace trekor {

void CopyFiles(const std::string& folder, const std::string& pattern, const std::string& target, Drives& drives) {
  for (const std::string& name : drives.Files(folder, pattern))
    drives.CopyFile(folder + "\\" + name, target + "\\" + name); // a drive that was pulled out says nothing at a close
}

} // namespace trekor
