// A working database and the template of a release on drives that can fail, and the verbs of a test upon them.
#pragma once

#include "dbupdate/UpdateDatabase.h"

#include "support/Databases.h"

#include <gtest/gtest.h>

#include <vector>

namespace trekor::tests {

inline const std::string templateFile = "C:\\Trekor\\Software.vdb", mdb = "C:\\Veldmark\\Trekor\\MDB",
                         working = mdb + "\\Software.mdb", bak = "C:\\Veldmark\\Trekor\\BAK",
                         backup = bak + "\\Software.mdb";

class UpdateFixture : public testing::Test {
protected:
  UpdateFixture() { FillFolders(fakes, folders); }
  void Build(const std::string& path, int major, int minor, const std::string& sql = "") {
    MakeDatabase(drives, path,
                 "CREATE TABLE Version(Major SMALLINT, Minor INTEGER); INSERT INTO Version VALUES(9, 9), (" +
                     std::to_string(major) + ", " + std::to_string(minor) + ");" + sql);
  }
  // A working file of release 2.3 and the template of 2.4.
  void BuildBoth(const std::string& shipped, const std::string& site) {
    Build(templateFile, 2, 4, shipped);
    Build(working, 2, 3, site);
    before = drives.Read(working);
  }
  std::unique_ptr<Database> Open(const std::string& path) {
    return Database::Open(drives.NativePath(path), OpenMode::Shared);
  }
  UpdateResult Update(const std::string& name = "") {
    fakes.shell.boxes.clear();
    return UpdateDatabase(folders, fakes.platform, "Software", mdb, name);
  }
  std::string Rows(const std::string& table, const std::string& path = working) { return RowsOf(*Open(path), table); }
  bool Updated() { return Rows("Version") == "9|9\n2|4\n"; }
  bool Untouched() { return drives.Read(working) == before; }
  using Words = std::vector<std::string>;
  const Words& Boxes() { return fakes.shell.boxes; }

  FakePlatform fakes;
  FakeDrives& drives = fakes.drives;
  FolderPaths folders;
  std::string before; // the bytes of the working file as it was built
};

inline const std::string oldOptions =
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10), Site TEXT(5));"
    "INSERT INTO Options VALUES (3,'US','here'),(7,NULL,NULL);"
    "CREATE TABLE SiteOnly(A INTEGER);";
inline const std::string newOptions =
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10) DEFAULT 'SI',"
    " Side SMALLINT DEFAULT 1); INSERT INTO Options VALUES (3,'shipped',-1);"
    "CREATE INDEX Options_ID ON Options(ID DESC);";

} // namespace trekor::tests
