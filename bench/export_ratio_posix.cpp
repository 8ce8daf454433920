// The comma file against its floor. Each runs as a process of its own, in turn, so that its peak of memory is its own
// and a busy machine hits both.
#include "ExportBench.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace trekor::bench {
namespace {

namespace fs = std::filesystem;

struct Measure {
  double seconds = 0; // of processor time, the system's share included
  double wall = 0;
  long kilobytes = 0; // peak
};

Measure Run(std::vector<std::string> words) {
  words.insert(words.begin(), "trekor-bench");
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words)
    argv.push_back(word.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, 1, "/dev/null", 1 /* O_WRONLY */, 0);
  const auto begin = std::chrono::steady_clock::now();
  pid_t child = 0;
  rusage used{};
  int status = -1;
  if (posix_spawn(&child, "/proc/self/exe", &quiet, nullptr, argv.data(), environ) == 0)
    wait4(child, &status, 0, &used);
  posix_spawn_file_actions_destroy(&quiet);
  if (status != 0)
    std::fprintf(stderr, "trekor-bench: %s failed\n", words[1].c_str());
  const auto seconds = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6;
  };
  return {seconds(used.ru_utime) + seconds(used.ru_stime),
          std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count(), used.ru_maxrss};
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

} // namespace

int RunExportRatio(int argc, char** argv) {
  const int stations = argc > 0 ? std::atoi(argv[argc - 1]) : 0;
  if (stations < 100) {
    std::fprintf(stderr, "usage: trekor-bench exportratio STATIONS\n");
    return 2;
  }
  std::string pattern = (fs::temp_directory_path() / "trekor-bench-XXXXXX").string();
  const fs::path folder = mkdtemp(pattern.data());
  const std::string large = folder / "large.mdb", small = folder / "small.mdb", out = folder / "out.TKR";
  Run({"makefile", large, std::to_string(stations), "5"});
  Run({"makefile", small, std::to_string(stations / 10), "5"});
  std::vector<double> floor, ours, floorWall, oursWall;
  long peak = 0;
  Run({"export", large, out}); // brings the file into memory
  for (int i = 0; i < 5; ++i) {
    const Measure bare = Run({"exportfloor", large, out}), own = Run({"export", large, out});
    floor.push_back(bare.seconds);
    ours.push_back(own.seconds);
    floorWall.push_back(bare.wall);
    oursWall.push_back(own.wall);
    peak = std::max(peak, own.kilobytes);
  }
  const long peakSmall = Run({"export", small, out}).kilobytes;
  std::printf("stations %d\nexport_floor_s %.3f\nexport_s %.3f\nexport_ratio %.3f\nexport_wall_ratio %.3f\n", stations,
              Median(floor), Median(ours), Median(ours) / Median(floor), Median(oursWall) / Median(floorWall));
  std::printf("export_peak_kb %ld\nexport_peak_kb_tenth %ld\nexport_memory_ratio %.3f\n", peak, peakSmall,
              static_cast<double>(peak) / static_cast<double>(peakSmall));
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return 0;
}

} // namespace trekor::bench
