// A working database and the template of a release on drives that can fail, and the verbs of a test upon them.
#pragma once

#include "dbupdate/UpdateDatabase.h"

#include "store/Database.h"
#include "store/Recordset.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <unistd.h>

namespace trekor {

inline constexpr char templateFile[] = "C:\\Trekor\\Software.vdb";
inline constexpr char working[] = "C:\\Root\\MDB\\Software.mdb";
inline constexpr char backup[] = "C:\\Root\\BAK\\Software.mdb";

enum class Fault { None, FailOnce, FailFromThen, KillBefore, KillAfter };

// Counts the acts that change a file, and has one of them go wrong.
class TrialDrives : public tests::FakeDrives {
public:
  bool MakeFolder(const std::string& path) override {
    return Act([&] { return FakeDrives::MakeFolder(path); });
  }
  bool CopyFile(const std::string& from, const std::string& to) override {
    return Act([&] { return from != refused && FakeDrives::CopyFile(from, to); });
  }
  bool ReplaceFile(const std::string& work, const std::string& path) override {
    return Act([&] { return FakeDrives::ReplaceFile(work, path); });
  }
  bool SyncFile(const std::string& path) override {
    return Act([&] { return FakeDrives::SyncFile(path); });
  }
  bool DeleteFile(const std::string& path) override {
    return Act([&] { return FakeDrives::DeleteFile(path); });
  }
  void Arm(Fault newFault, int n) {
    fault = newFault;
    faultyAct = n;
    acts = 0;
  }

  std::string refused; // no copy is made from here
  int acts = 0;

private:
  template <class Doing> bool Act(Doing doing) {
    ++acts;
    const bool now = acts == faultyAct;
    if (now && fault == Fault::KillBefore)
      _exit(killed);
    if ((now && fault == Fault::FailOnce) || (acts >= faultyAct && fault == Fault::FailFromThen))
      return false;
    const bool done = doing();
    if (now && fault == Fault::KillAfter)
      _exit(killed);
    return done;
  }
  static constexpr int killed = 99;
  Fault fault = Fault::None;
  int faultyAct = 0;
};

class UpdateDatabaseTest : public testing::Test {
protected:
  UpdateDatabaseTest() {
    folders.AppPath = "C:\\Trekor";
    folders.RootFolder = "C:\\Root";
    folders.ProgramName = "Trekor";
    drives.MakeFolders("C:\\Trekor");
    drives.MakeFolders("C:\\Root");
  }
  void Build(const std::string& path, int major, int minor, const std::string& sql = "") {
    drives.MakeFolder("C:\\Root\\MDB");
    const std::string native = drives.NativePath(path);
    std::filesystem::remove(native);
    ASSERT_TRUE(Database::Create(native, ""));
    ASSERT_TRUE(Open(path)->Execute("CREATE TABLE Version(Major SMALLINT, Minor INTEGER);"
                                    "INSERT INTO Version VALUES(9, 9), (" +
                                    std::to_string(major) + ", " + std::to_string(minor) + ");" + sql));
  }
  std::unique_ptr<Database> Open(const std::string& path) {
    auto database = Database::Open(drives.NativePath(path), OpenMode::Shared);
    if (database)
      database->Execute("PRAGMA synchronous=OFF");
    return database;
  }
  UpdateResult Update(const std::string& name = "") {
    return UpdateDatabase(folders, platform, "Software", "C:\\Root\\MDB", name);
  }
  // All rows of a table as one text: "1;a|2;b".
  std::string Rows(const std::string& table, const std::string& path = working) {
    const auto database = Open(path);
    const auto rows = database->OpenTable(table);
    std::string text;
    for (; rows && !rows->Eof(); rows->MoveNext()) {
      text += text.empty() ? "" : "|";
      for (int i = 0; i < rows->FieldCount(); ++i)
        text += (i == 0 ? "" : ";") + rows->Get(i).Text();
    }
    return text;
  }
  std::vector<std::string> Boxes() { return fakes.shell.boxes; }
  using Words = std::vector<std::string>;

  tests::FakePlatform fakes;
  TrialDrives drives;
  Platform platform{fakes.clock,    fakes.pump, fakes.socket,  fakes.sound,
                    fakes.keyboard, drives,     fakes.process, fakes.shell};
  FolderPaths folders;
};

inline constexpr char oldOptions[] =
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10), Site TEXT(5));"
    "INSERT INTO Options VALUES (3,'US','here'),(7,NULL,NULL);"
    "CREATE TABLE SiteOnly(A INTEGER);";
inline constexpr char newOptions[] =
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT(10) DEFAULT 'SI',"
    " Side SMALLINT DEFAULT 1); INSERT INTO Options VALUES (3,'shipped',-1);"
    "CREATE INDEX Options_ID ON Options(ID DESC);";

} // namespace trekor
