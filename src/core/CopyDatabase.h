// Copying a database as a file.
#pragma once

#include "platform/Drives.h"

#include <string>

namespace trekor {

// Copies a closed database over another one or to a new name. A program that was killed may have left its log beside a
// file of that name: the log belongs to rows that are replaced here, and the first opening would play it into the fresh
// copy. So it goes first, and when it can't go nothing is copied.
bool CopyDatabase(Drives& drives, const std::string& from, const std::string& to);

} // namespace trekor
