// A vehicle's drives as the first start of a release finds them, and all that a job has left on them.
// For rooms that stand on store.
#pragma once

#include "platform/Drives.h"
#include "store/Recordset.h"
#include "values/Text.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace trekor::tests {

// `shared` is the folder with what a release ships (templates, sample vocabulary, tones). Drive D is there for backups.
inline void InstallRelease(Drives& drives, const std::string& shared) {
  namespace fs = std::filesystem;
  for (const char* folder :
       {"C:\\Veldmark\\Trekor\\VDB", "C:\\Veldmark\\Trekor\\MDB", "C:\\Veldmark\\Parcels\\MDB", "C:\\Roads", "D:\\"})
    fs::create_directories(drives.NativePath(folder));
  const fs::path to = drives.NativePath("C:\\Trekor");
  fs::copy(shared, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  fs::copy(to / "HardWare.vdb", fs::path(drives.NativePath("C:\\Veldmark\\Trekor\\VDB")) / "Hardware.vdb");
  fs::copy(to / "sample" / "Observations.mdb", drives.NativePath("C:\\Veldmark\\Trekor\\MDB\\Observations.mdb"));
}

// The rows of a table, a line each, the fields in their order; bytes show as their number.
inline std::string RowsOf(Database& database, const std::string& table) {
  std::string text = "[" + table + "]\n";
  const auto rows = database.OpenTable(table);
  for (; rows && !rows->Eof(); rows->MoveNext()) {
    for (int i = 0; i < rows->FieldCount(); ++i) {
      const FieldValue value = rows->Get(i);
      text += (i ? "|" : "") + (value.IsNull()    ? "null"
                                : value.IsBytes() ? std::to_string(value.Blob().size()) + " bytes"
                                                  : value.Text());
    }
    text += "\n";
  }
  return text;
}

// Every data file and comma file on the data drive and on the backup drive, as one text.
inline std::string FilesLeft(Drives& drives) {
  std::string text;
  for (const std::string folder : {"C:\\Roads", "D:\\Roads"})
    for (const auto& name : drives.Files(folder, "*.*")) {
      const std::string path = folder + "\\" + name;
      text += "== " + path + "\n";
      if (SameText(name.substr(name.size() - 4), ".TKR")) {
        std::ostringstream bytes;
        bytes << std::ifstream(drives.NativePath(path), std::ios::binary).rdbuf();
        text += FromWindows1252(bytes.str());
        continue;
      }
      const auto database = Database::Open(drives.NativePath(path), OpenMode::ReadOnly);
      for (const char* table : {"Sessions", "Observations", "Stations", "Registrations"})
        text += database ? RowsOf(*database, table) : "not a database\n";
    }
  return text;
}

} // namespace trekor::tests
