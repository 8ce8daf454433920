// What the user of the export wants.
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

// False, with one line in `error`, when the words cannot be understood.
bool ReadArguments(const std::vector<std::string>& words, Arguments& into, std::string& error);
extern const char* const HelpText;

} // namespace trekor
