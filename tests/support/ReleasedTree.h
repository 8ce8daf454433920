// A vehicle's drives as the first start of a release finds them, and what a job has left on them. For tests of rooms
// that use store.
#pragma once

#include "support/Databases.h"
#include "values/CodePage.h"
#include "values/Text.h"

#include <filesystem>
#include <string>

namespace trekor::tests {

// `shared` is the folder with what a release ships (templates, sample vocabulary, tones); its
// voices are left out. Drive D is there for backups.
inline void InstallRelease(Drives& drives, const std::string& shared) {
  namespace fs = std::filesystem;
  for (const char* folder :
       {"C:\\Veldmark\\Trekor\\VDB", "C:\\Veldmark\\Trekor\\MDB", "C:\\Veldmark\\Parcels\\MDB", "C:\\Roads", "D:\\"})
    fs::create_directories(drives.NativePath(folder));
  const fs::path to = drives.NativePath("C:\\Trekor");
  fs::copy(shared, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  for (const char* language : {"English", "Danish", "Korean", "Chinese", "Russian"})
    fs::remove_all(to / "Audio" / language); // what a test sees must not hang on the synthesizer of the build machine
  fs::copy(to / "HardWare.vdb", fs::path(drives.NativePath("C:\\Veldmark\\Trekor\\VDB")) / "Hardware.vdb");
  fs::copy(to / "sample" / "Observations.mdb", drives.NativePath("C:\\Veldmark\\Trekor\\MDB\\Observations.mdb"));
}

// Every data file and comma file on the data drive and on the backup drive, as one text.
inline std::string FilesLeft(Drives& drives) {
  std::string text;
  for (const std::string folder : {"C:\\Roads", "D:\\Roads"})
    for (const auto& name : drives.Files(folder, "*.*")) {
      const std::string path = folder + "\\" + name;
      text += "== " + path + "\n";
      if (SameText(name.substr(name.size() - 4), ".TKR")) {
        text += FromWindows1252(BytesOf(drives.NativePath(path)));
        continue;
      }
      const auto database = Database::Open(drives.NativePath(path), OpenMode::ReadOnly);
      for (const char* table : {"Sessions", "Observations", "Stations", "Registrations"})
        text += database ? std::string("[") + table + "]\n" + RowsOf(*database, table) : "not a database\n";
    }
  return text;
}

} // namespace trekor::tests
