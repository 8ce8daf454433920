// All measurements, each beside its floor: what the bare library does on the same machine in the same run. Each takes
// the words behind its name and gives the exit code.
#pragma once

#include "ExportBench.h"

namespace trekor::bench {

int RunStore(int argc, char** argv);      // FILE ROWS: grid rows through the program's own storing code
int RunStoreFloor(int argc, char** argv); // FILE ROWS: the same rows by bare prepared inserts
int RunStoreRatio(int argc, char** argv); // ROWS: both in turn
int RunUpdates(int argc, char** argv);    // TIMES: the update check of all databases at a start, below 30 ms

} // namespace trekor::bench
