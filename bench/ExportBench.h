// Measurements of the comma file, beside their floor: one bare walk over the same two tables that writes with snprintf.
// Each takes the command line and reads its last words.
#pragma once

namespace trekor::bench {

int RunExport(int argc, char** argv); // ... DATAFILE OUT: all stations of the file through the program's own writer
int RunExportFloor(int argc, char** argv); // ... DATAFILE OUT
int RunMakeFile(int argc, char** argv);    // ... FILE STATIONS REGISTRATIONS_PER_STATION
int RunExportRatio(int argc, char** argv); // ... STATIONS: both in turn, as processes of their own, with their memory

} // namespace trekor::bench
