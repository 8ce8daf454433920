// The command line of the export.
#pragma once

#include <string>
#include <vector>

namespace trekor {

struct Arguments {
  bool join = true;
  int stationUnit = 0; // 0 to 5
  bool us = false;
  std::string operatorName, setup;
  std::string out; // empty: beside each data file
  std::vector<std::string> files;
  bool help = false, version = false;
};

// The program's exit code; of several files the highest.
enum class Exit {
  Done = 0,
  NotOpened = 1, // a file is missing, no data file, not readable, or in use
  Words = 2,     // the command line is wrong, or two files would become one
  Damaged = 3,   // a data file could not be read to its end
  Refused = 4,   // the comma file can't be put where it should be
  DiskFull = 5
};

// False, with one line in `error`, when the words are wrong.
bool ReadArguments(const std::vector<std::string>& words, Arguments& into, std::string& error);
extern const char* const HelpText;

} // namespace trekor
