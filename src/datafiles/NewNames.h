// What a new data file is called: the next free name of a series, and an identity of its own.
#pragma once

#include "platform/Drives.h"
#include "platform/Process.h"

#include <string>

namespace trekor {

// A GUID as 32 capital hexadecimal digits, with dashes in four parts (8-4-4-16); "" when the system gives none.
std::string NewGuid(bool withDashes, Process& process);
// The path itself when it is free, else the next free one of its series: ROAD09.MDB with ROAD10.MDB beside it gives
// ROAD11.MDB, ROAD.MDB gives ROAD1.MDB.
std::string NextFreeName(const std::string& path, Drives& drives);

// A data file's name as it stands in its folder, without the ".MDB" in any case.
std::string DataNameOf(const std::string& fileName);

} // namespace trekor
