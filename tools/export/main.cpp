// trekor-export: comma files from closed data files in bulk, for the office.
#include "Exporter.h"
#include "Version.h"

#include <cstdio>

int main(int argc, char** argv) {
  using namespace trekor;
  Arguments wishes;
  std::string error;
  if (!ReadArguments({argv + 1, argv + argc}, wishes, error)) {
    std::fprintf(stderr, "trekor-export: %s\n", error.c_str());
    return 2;
  }
  if (wishes.help)
    return std::fputs(HelpText, stdout) < 0 ? 1 : 0;
  if (wishes.version)
    return std::printf("trekor-export %d.%d.%d\n", VersionMajor, VersionMinor, VersionRevision) < 0 ? 1 : 0;
  Exporter exporter(wishes);
  int code = 0;
  for (const std::string& file : wishes.files) {
    std::string written, told;
    if (!exporter.Export(file, written, told))
      code = 1;
    std::fputs(written.c_str(), stdout);
    std::fputs(told.c_str(), stderr);
  }
  return code;
}
