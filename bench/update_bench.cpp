// What a start asks of the databases when nothing is to do: each one with its template, from the released files. The
// floor opens the same files and reads their versions by the bare library.
#include "Bench.h"

#include "QuietPlatform.h"
#include "dbupdate/UpdateDatabase.h"
#include "platform_os/FileDrives.h"
#include "platform_os/ProgramFolder.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <sqlite3.h>

namespace trekor::bench {
namespace {

constexpr const char* Names[] = {"Trekor", "Software", "Messages", "Observations", "DataFile", "HardWare", "Sections"};

void ReadVersion(const std::string& nativePath, int flags) {
  sqlite3* db = nullptr;
  sqlite3_open_v2(nativePath.c_str(), &db, flags, nullptr);
  sqlite3_exec(db, "SELECT Major, Minor FROM Version ORDER BY rowid DESC LIMIT 1", nullptr, nullptr, nullptr);
  sqlite3_close(db);
}

template <typename Doing> double MedianMilliseconds(int times, Doing doing) {
  std::vector<double> all;
  for (int i = 0; i < times; ++i) {
    const auto begin = std::chrono::steady_clock::now();
    doing();
    all.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  std::sort(all.begin(), all.end());
  return all[all.size() / 2];
}

} // namespace

int RunUpdates(int argc, char** argv) {
  const int times = argc > 0 ? std::max(std::atoi(argv[0]), 1) : 100;
  const std::filesystem::path place = std::filesystem::temp_directory_path() / "trekor-updates";
  FileDrives drives(place);
  if (!FillProgramFolder(drives, TREKOR_SHARE, "bench"))
    return 1;
  QuietPlatform quiet;
  Platform& q = quiet.platform;
  Platform platform{q.clock, q.pump, q.socket, q.sound, q.keyboard, drives, q.process, q.shell, q.screen};
  FolderPaths folders;
  folders.AppPath = "C:\\Trekor";
  folders.RootFolder = "C:\\Veldmark\\Trekor";
  const std::string mdb = folders.RootFolder + "\\MDB";
  const auto check = [&] {
    for (const char* name : Names)
      UpdateDatabase(folders, platform, name, mdb, "");
  };
  check(); // installs them
  const double ours = MedianMilliseconds(times, check),
               floor = MedianMilliseconds(times, [&] {
                 for (const std::string name : Names) {
                   ReadVersion(drives.NativePath("C:\\Trekor\\" + name + ".vdb"), SQLITE_OPEN_READONLY);
                   ReadVersion(drives.NativePath(mdb + "\\" + name + ".mdb"), SQLITE_OPEN_READWRITE);
                 }
               });
  std::printf("updates_ms %.3f floor_ms %.3f ratio %.2f\n", ours, floor, ours / floor);
  std::error_code stays;
  std::filesystem::remove_all(place, stays);
  return ours < 30 ? 0 : 1;
}

} // namespace trekor::bench
