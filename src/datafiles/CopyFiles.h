// The copies that a closed data file leaves on the backup drive.
#pragma once

#include "platform/Drives.h"

#include <string>
#include <vector>

namespace trekor {

// Copies NAME and NAME.* of a folder into another folder, over existing ones; what fails is skipped. Without a name
// nothing is copied. Returns the files whose copies are whole and on the disk; only those may be deleted because they
// were copied. A database with a log beside it is among them only when the log was copied too.
std::vector<std::string> CopyFiles(const std::string& folder, const std::string& name, const std::string& target,
                                   Drives& drives);

} // namespace trekor
