// trekor-bench NAME ...: runs one measurement.
#include "Bench.h"
#include "state/Version.h"

#include <cstdio>
#include <string_view>

namespace {

struct Measurement {
  std::string_view name;
  int (*run)(int argc, char** argv);
  const char* words;
};

using namespace trekor::bench;

constexpr Measurement Measurements[] = {
    {"store", RunStore, "FILE ROWS"},
    {"storefloor", RunStoreFloor, "FILE ROWS"},
    {"storeratio", RunStoreRatio, "ROWS"},
    {"makefile", RunMakeFile, "FILE STATIONS REGISTRATIONS_PER_STATION"},
    {"export", RunExport, "DATAFILE OUT"},
    {"exportfloor", RunExportFloor, "DATAFILE OUT"},
    {"exportratio", RunExportRatio, "STATIONS"},
    {"updates", RunUpdates, "TIMES"},
};

void Usage(std::FILE* out) {
  std::fputs("usage:\n", out);
  for (const Measurement& each : Measurements)
    std::fprintf(out, "  trekor-bench %s %s\n", each.name.data(), each.words);
}

} // namespace

int main(int argc, char** argv) {
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  if (wanted == "--version") {
    std::printf("trekor-bench %d.%d.%d\n", trekor::VersionMajor, trekor::VersionMinor, trekor::VersionRevision);
    return 0;
  }
  if (wanted == "--help") {
    Usage(stdout);
    return 0;
  }
  for (const Measurement& each : Measurements)
    if (each.name == wanted)
      return each.run(argc - 2, argv + 2);
  Usage(stderr);
  return 2;
}
