#include "ExportBench.h"

#include "datafiles/CommaFile.h"
#include "datafiles/DataFiles.h"
#include "state/ProgramState.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <sqlite3.h>

namespace trekor::bench {
namespace {

double Now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

int Usage(const char* words) {
  std::fprintf(stderr, "usage: trekor-bench %s\n", words);
  return 2;
}

struct Statement {
  Statement(sqlite3* db, const char* sql) { sqlite3_prepare_v2(db, sql, -1, &handle, nullptr); }
  ~Statement() { sqlite3_finalize(handle); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  sqlite3_stmt* handle = nullptr;
};

// The floor. No head, no limits, no rules: what a programmer in a hurry would write, as fast as that gets with
// snprintf.
struct FloorRow {
  double station, gpsTime, latitude, longitude, height;
  int status, satellites;
};

FloorRow ReadRow(sqlite3_stmt* s) {
  return {sqlite3_column_double(s, 1), sqlite3_column_double(s, 3), sqlite3_column_double(s, 4),
          sqlite3_column_double(s, 5), sqlite3_column_double(s, 6), sqlite3_column_int(s, 2),
          sqlite3_column_int(s, 7)};
}

void WriteFloorStretch(std::FILE* out, const FloorRow& from, const FloorRow& to, const char (&digits)[16]) {
  char line[256];
  int size = std::snprintf(line, sizeof line, "5280,%d,%06.0f,%11.7f,%12.7f,%6.1f,%d,%2d,    ,   \r\n", from.status < 1,
                           from.gpsTime, from.latitude, from.longitude, from.height, from.status, from.satellites);
  size += std::snprintf(line + size, sizeof line - static_cast<std::size_t>(size), "5301,%8.3f,%8.3f", from.station,
                        to.station);
  for (const char digit : digits) {
    line[size++] = ',';
    line[size++] = digit ? digit : '0';
  }
  line[size++] = '\r';
  line[size++] = '\n';
  std::fwrite(line, 1, static_cast<std::size_t>(size), out);
}

void WalkFloor(sqlite3* db, std::FILE* out) {
  Statement stations(db, "SELECT StationID, Station, GPSStatus, GPSTime, Latitude, Longitude, Height, GPSSVs"
                         " FROM Stations ORDER BY StationID");
  Statement registrations(db, "SELECT FromID, ToID, ObsCode, RegData FROM Registrations ORDER BY RegID");
  sqlite3_stmt *s = stations.handle, *r = registrations.handle;
  if (sqlite3_step(s) != SQLITE_ROW)
    return;
  FloorRow prior = ReadRow(s);
  bool more = sqlite3_step(r) == SQLITE_ROW;
  while (more && sqlite3_step(s) == SQLITE_ROW) {
    const std::int64_t id = sqlite3_column_int64(s, 0);
    const FloorRow here = ReadRow(s);
    char digits[16] = {};
    while (more && sqlite3_column_int64(r, 1) == id) {
      const int code = sqlite3_column_int(r, 2);
      if (code >= 1 && code <= 16)
        digits[code - 1] = static_cast<char>(sqlite3_column_text(r, 3)[0]);
      more = sqlite3_step(r) == SQLITE_ROW;
    }
    WriteFloorStretch(out, prior, here, digits);
    prior = here;
  }
}

bool Execute(sqlite3* db, const std::string& sql) {
  return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::string ReadText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void FillFile(sqlite3* db, int stations, int perStation) {
  Statement station(db, "INSERT INTO Stations(SessionID, Station, StationUnit, StationDirection, StationType, Lane,"
                        " LaneNumber, Time, GPSStatus, GPSTime, Latitude, Longitude, Height, GPSSVs)"
                        " VALUES (1, ?1, 0, 1, 0, 'Right', '1', '2024-05-06 07:08:09', 4, ?2, ?3, ?4, ?5, 9)");
  Statement registration(db, "INSERT INTO Registrations(FromID, ToID, ObsCode, ParCode, RegData)"
                             " VALUES (?1, ?2, ?3, 0, ?4)");
  for (int i = 0; i < stations; ++i) {
    sqlite3_bind_double(station.handle, 1, i % 900000 / 100.0);
    sqlite3_bind_double(station.handle, 2, 70000 + i % 9999);
    sqlite3_bind_double(station.handle, 3, 55 + i * 1.000003e-6);
    sqlite3_bind_double(station.handle, 4, 12 + i * 0.700001e-6);
    sqlite3_bind_double(station.handle, 5, i % 2000 / 8.0);
    sqlite3_step(station.handle);
    sqlite3_reset(station.handle);
    for (int k = 1; k <= perStation && i > 0; ++k) {
      const char digit = static_cast<char>('0' + (i + k) % 10);
      sqlite3_bind_int(registration.handle, 1, i);
      sqlite3_bind_int(registration.handle, 2, i + 1);
      sqlite3_bind_int(registration.handle, 3, k);
      sqlite3_bind_text(registration.handle, 4, &digit, 1, SQLITE_TRANSIENT);
      sqlite3_step(registration.handle);
      sqlite3_reset(registration.handle);
    }
  }
}

} // namespace

int RunExport(int argc, char** argv) {
  if (argc < 2)
    return Usage("export DATAFILE OUT");
  struct OnePlace : Paths {
    std::string NativePath(const std::string&) override { return path; }
    std::string path;
  } out;
  out.path = argv[argc - 1];
  ProgramState state;
  DataFile data;
  CommaFile comma(CommaSourcesOf(state), out, data);
  if (!data.Open(argv[argc - 2], OpenMode::ReadOnly)) {
    std::fprintf(stderr, "trekor-bench: %s is no data file\n", argv[argc - 2]);
    return 1;
  }
  const double begin = Now();
  const bool whole = comma.WriteCommaFile(0, true, data.rsObservations->RecordCount());
  std::printf("export_s %.3f\n", Now() - begin);
  return whole ? 0 : 1;
}

int RunExportFloor(int argc, char** argv) {
  if (argc < 2)
    return Usage("exportfloor DATAFILE OUT");
  sqlite3* db = nullptr;
  std::FILE* out = std::fopen(argv[argc - 1], "wb");
  const bool ready = sqlite3_open_v2(argv[argc - 2], &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK && out;
  const double begin = Now();
  if (ready)
    WalkFloor(db, out);
  const bool whole = out && std::fclose(out) == 0 && ready;
  std::printf("exportfloor_s %.3f\n", Now() - begin);
  sqlite3_close(db);
  return whole ? 0 : 1;
}

int RunMakeFile(int argc, char** argv) {
  if (argc < 3)
    return Usage("makefile FILE STATIONS REGISTRATIONS_PER_STATION");
  const char* path = argv[argc - 3];
  const int stations = std::atoi(argv[argc - 2]), perStation = std::atoi(argv[argc - 1]);
  std::remove(path);
  sqlite3* db = nullptr;
  bool made = sqlite3_open(path, &db) == SQLITE_OK && Execute(db, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF") &&
              Execute(db, "BEGIN;" + ReadText(TREKOR_SOURCE_DIR "/templates/DataFile.sql")) &&
              Execute(db, "INSERT INTO Sessions(Operator, Units, Date, SegmentSize)"
                          " VALUES ('bench', 'SI', '2024-05-06 07:08:09', 0.01)");
  for (int k = 1; made && k <= perStation; ++k)
    made = Execute(db,
                   "INSERT INTO Observations(SessionID, ObsCode, ObsName, ObsAbrv, Min, Max, RegModeCode) VALUES (1, " +
                       std::to_string(k) + ", 'Item', 'IT', 0, 9, 1)");
  if (made)
    FillFile(db, stations, perStation);
  made = made && Execute(db, "COMMIT");
  sqlite3_close(db);
  return made ? 0 : 1;
}

} // namespace trekor::bench
