// trekor-export: comma files from closed data files in bulk, for the office.
#include "Disk.h"
#include "Exporter.h"
#include "state/Version.h"

#include <algorithm>
#include <cstdio>

namespace {

using namespace trekor;

Exit Run(const Arguments& wishes) {
  if (wishes.help) {
    std::fputs(HelpText, stdout);
    return Exit::Done;
  }
  if (wishes.version) {
    std::printf("trekor-export %d.%d.%d\n", VersionMajor, VersionMinor, VersionRevision);
    return Exit::Done;
  }
  Exporter exporter(wishes);
  Exit worst = Exit::Done;
  for (const std::string& file : wishes.files) {
    std::string written, told;
    worst = std::max(worst, exporter.Export(file, written, told));
    std::fputs(written.c_str(), stdout);
    std::fputs(told.c_str(), stderr);
  }
  return worst;
}

} // namespace

int main(int argc, char** argv) {
  Arguments wishes;
  std::string error;
  if (!ReadArguments({argv + 1, argv + argc}, wishes, error)) {
    std::fprintf(stderr, "trekor-export: %s\n", error.c_str());
    return static_cast<int>(Exit::Words);
  }
  PrepareDisk();
  const Exit code = Run(wishes);
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
    return static_cast<int>(code);
  std::fprintf(stderr, "trekor-export: the list of the files could not be written\n");
  return static_cast<int>(std::max(code, Exit::Refused));
}
