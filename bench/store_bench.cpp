// A grid row of 1 station and 20 registrations, stored with one synchronisation: through the program's own code, and by
// bare prepared inserts into the same layout with the same promises to the disk.
#include "Bench.h"
#include "QuietPlatform.h"
#include "SyncCounter.h"
#include "datafiles/DataFiles.h"
#include "state/ProgramState.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace trekor::bench {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int RegistrationsPerRow = 20;
constexpr LocalTime RowTime = {2024, 5, 6, 7, 8, 9};

// A file that is there gets the rows behind its own; a missing one is made from the released layout.
bool MakeDataFile(const std::string& path) {
  std::error_code error;
  return fs::exists(path, error) || fs::copy_file(TREKOR_SHARE "/DataFile.vdb", path, error);
}

double KilometresOfRow(int row) {
  return row * 0.01;
}

class Storing {
public:
  Storing() = default;
  virtual ~Storing() = default;
  Storing(const Storing&) = delete;
  Storing& operator=(const Storing&) = delete;
  virtual bool Open(const std::string& path) = 0;
  virtual bool StoreRow(int row) = 0;
};

class OwnStoring : public Storing {
public:
  bool Open(const std::string& path) override {
    machine.drives.dataFile = path;
    state.file.DataFilePath = "data.mdb";
    state.facility.Lane = "Right";
    state.facility.LaneNumber = "1";
    return MakeDataFile(path) && files.OpenDataFile();
  }
  bool StoreRow(int row) override {
    NewStation station;
    station.FileStation = KilometresOfRow(row);
    station.Time = RowTime;
    station.fix = {.GpsTime = 123456,
                   .GpsLatitude = 55.5 + row * 1e-6,
                   .GpsLongitude = 12.25 + row * 1e-6,
                   .GpsHeight = 17.5F,
                   .GpsStatus = 1,
                   .GpsSVs = 9};
    files.BeginRow();
    const std::int32_t from = last;
    last = files.AddStation(station);
    for (int i = 0; i < RegistrationsPerRow; ++i)
      files.AddRegistration(from, last, i + 1, 0, "3");
    return files.EndRow();
  }

private:
  QuietPlatform machine;
  ProgramState state;
  DataFiles files{state, machine.platform};
  std::int32_t last = 0;
};

class BareStoring : public Storing {
public:
  ~BareStoring() override {
    for (sqlite3_stmt* each : {begin, commit, station, registration})
      sqlite3_finalize(each);
    sqlite3_close(db);
  }
  bool Open(const std::string& path) override {
    if (!MakeDataFile(path) || sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
      return false;
    sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL", nullptr,
                 nullptr, nullptr);
    begin = Prepare("BEGIN IMMEDIATE");
    commit = Prepare("COMMIT");
    station = Prepare("INSERT INTO Stations(SessionID, Station, StationUnit, StationDirection, StationType, Lane,"
                      " LaneNumber, Time, GPSStatus, GPSTime, Latitude, Longitude, Height, GPSSVs)"
                      " VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    registration = Prepare("INSERT INTO Registrations(FromID, ToID, ObsCode, ParCode, RegData) VALUES (?,?,?,?,?)");
    return begin && commit && station && registration;
  }
  bool StoreRow(int row) override {
    bool stored = Run(begin);
    stored = StoreStation(row) && stored;
    const sqlite3_int64 from = last;
    last = sqlite3_last_insert_rowid(db);
    for (int i = 0; i < RegistrationsPerRow; ++i)
      stored = StoreRegistration(from, i + 1) && stored;
    return Run(commit) && stored;
  }

private:
  sqlite3_stmt* Prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v3(db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    return statement;
  }
  static bool Run(sqlite3_stmt* statement) {
    const int result = sqlite3_step(statement);
    sqlite3_reset(statement);
    return result == SQLITE_DONE;
  }
  bool StoreStation(int row) {
    sqlite3_bind_int(station, 1, 0);
    sqlite3_bind_double(station, 2, KilometresOfRow(row));
    sqlite3_bind_int(station, 3, 0);
    sqlite3_bind_int(station, 4, 1);
    sqlite3_bind_int(station, 5, 0);
    sqlite3_bind_text(station, 6, "Right", -1, SQLITE_STATIC);
    sqlite3_bind_text(station, 7, "1", -1, SQLITE_STATIC);
    sqlite3_bind_text(station, 8, "2024-05-06 07:08:09", -1, SQLITE_STATIC);
    sqlite3_bind_int(station, 9, 1);
    sqlite3_bind_double(station, 10, 123456);
    sqlite3_bind_double(station, 11, 55.5 + row * 1e-6);
    sqlite3_bind_double(station, 12, 12.25 + row * 1e-6);
    sqlite3_bind_double(station, 13, 17.5);
    sqlite3_bind_int(station, 14, 9);
    return Run(station);
  }
  bool StoreRegistration(sqlite3_int64 from, int obsCode) {
    sqlite3_bind_int64(registration, 1, from);
    sqlite3_bind_int64(registration, 2, last);
    sqlite3_bind_int(registration, 3, obsCode);
    sqlite3_bind_int(registration, 4, 0);
    sqlite3_bind_text(registration, 5, "3", -1, SQLITE_STATIC);
    return Run(registration);
  }

  sqlite3* db = nullptr;
  sqlite3_stmt *begin = nullptr, *commit = nullptr, *station = nullptr, *registration = nullptr;
  sqlite3_int64 last = 0;
};

// Microseconds of each row.
class Times {
public:
  bool Take(Storing& storing, int row) {
    const auto begin = Clock::now();
    const bool stored = storing.StoreRow(row);
    all.push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    return stored;
  }
  double At(double share) {
    std::sort(all.begin(), all.end());
    const auto place = static_cast<std::size_t>(share * static_cast<double>(all.size()));
    return all.empty() ? 0 : all[std::min(place, all.size() - 1)];
  }
  double Sum() const {
    double sum = 0;
    for (const double each : all)
      sum += each;
    return sum;
  }

private:
  std::vector<double> all;
};

int Refuse(const char* path) {
  std::fprintf(stderr, "trekor-bench: %s can't be made, opened or written as a data file\n", path);
  return 1;
}

int Measure(Storing& storing, int argc, char** argv) {
  const int rows = argc == 2 ? std::atoi(argv[1]) : 0;
  if (rows < 1) {
    std::fputs("usage: trekor-bench store|storefloor FILE ROWS\n", stderr);
    return 2;
  }
  if (!CountSyncs() || !storing.Open(argv[0]))
    return Refuse(argv[0]);
  Times times;
  const long before = SyncCount();
  for (int row = 0; row < rows; ++row)
    if (!times.Take(storing, row))
      return Refuse(argv[0]);
  const double syncs = static_cast<double>(SyncCount() - before) / rows;
  std::printf(
      "rows_per_s %.1f\ngridrow_p50_us %.1f\ngridrow_p99_us %.1f\ngridrow_max_us %.1f\nsyncs_per_gridrow %.3f\n",
      rows / times.Sum() * 1e6, times.At(0.5), times.At(0.99), times.At(1), syncs);
  return 0;
}

// Short runs in turn, so that other load on the machine hits both.
int CompareIn(const fs::path& folder, int rows) {
  constexpr int spell = 10;
  OwnStoring own;
  BareStoring bare;
  Times ownTimes, bareTimes;
  bool stored = own.Open(folder / "own.mdb") && bare.Open(folder / "bare.mdb");
  for (int first = 0; stored && first < rows; first += spell) {
    for (int row = first; row < first + spell; ++row)
      stored = ownTimes.Take(own, row) && stored;
    for (int row = first; row < first + spell; ++row)
      stored = bareTimes.Take(bare, row) && stored;
  }
  if (!stored)
    return Refuse(folder.c_str());
  for (const auto& [name, share] : {std::pair{"p50", 0.5}, std::pair{"p99", 0.99}})
    std::printf("gridrow_%s_us %.1f floor %.1f ratio %.3f\n", name, ownTimes.At(share), bareTimes.At(share),
                ownTimes.At(share) / bareTimes.At(share));
  return 0;
}

} // namespace

int RunStore(int argc, char** argv) {
  OwnStoring storing;
  return Measure(storing, argc, argv);
}

int RunStoreFloor(int argc, char** argv) {
  BareStoring storing;
  return Measure(storing, argc, argv);
}

int RunStoreRatio(int argc, char** argv) {
  const int rows = argc == 1 ? std::atoi(argv[0]) : 0;
  if (rows < 1) {
    std::fputs("usage: trekor-bench storeratio ROWS\n", stderr);
    return 2;
  }
  // Beside the executables and not among the temporary files: those may lie in memory, where a sync costs nothing.
  const fs::path folder =
      fs::current_path() / ("trekor-bench-" + std::to_string(Clock::now().time_since_epoch().count()));
  std::error_code error;
  fs::create_directory(folder, error);
  const int result = CompareIn(folder, rows);
  fs::remove_all(folder, error);
  return result;
}

} // namespace trekor::bench
