// Looking into a file that may be anyone's: what is found, and that nobody sees that we have looked.
#include "StoreFixture.h"

#include <map>

namespace trekor::tests {
namespace {

class Untouched : public StoreFixture {
protected:
  // Every name in the folder with its bytes and the time of its last change.
  std::map<std::string, std::pair<std::string, std::filesystem::file_time_type>> Folder() {
    decltype(Folder()) all;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path))
      all[entry.path().filename()] = {BytesOf(entry.path()), std::filesystem::last_write_time(entry.path())};
    return all;
  }
  // The file as a killed program leaves it, its second row in the log alone.
  void Kill() {
    Make("CREATE TABLE Rows(ID INTEGER PRIMARY KEY, Name TEXT(20)); INSERT INTO Rows VALUES (1, 'filed')");
    Reopen(OpenMode::ExclusiveDurable);
    ASSERT_TRUE(database->Execute("INSERT INTO Rows VALUES (2, 'logged')"));
    const std::string bytes = BytesOf(path), log = BytesOf(path + "-wal");
    database.reset();
    WriteBytes(path, bytes);
    WriteBytes(path + "-wal", log);
  }
};

TEST_F(Untouched, RowsAreReadWhereverTheyAreAndNothingIsLeftBehind) {
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"1 filed\n2 logged\n", [] {}},
      {"1 filed\n", [this] { std::filesystem::remove(path + "-wal"); }}, // still marked as having one
      {"1 filed\n", [this] { WriteBytes(path + "-wal", ""); }},
      {"1 filed\n2 logged\n", [this] { Database::Open(path, OpenMode::Shared); }}, // folded: a plain file
  };
  for (const auto& [rows, arrange] : cases) {
    std::filesystem::remove(path);
    Kill();
    arrange();
    const auto before = Folder();
    for (int again = 0; again < 2; ++again) {
      const auto look = Database::Open(path, OpenMode::Untouched);
      ASSERT_TRUE(look) << rows;
      const auto table = look->OpenTable("Rows");
      ASSERT_TRUE(table && table->SetIndex("ID"));
      std::string found;
      for (; !table->Eof(); table->MoveNext())
        found += table->Get("ID").Text() + " " + table->Get("Name").Text() + "\n";
      EXPECT_EQ(found, rows);
      EXPECT_FALSE(look->Execute("INSERT INTO Rows VALUES (3, 'no')"));
    }
    EXPECT_TRUE(Folder() == before) << rows;
  }
}

TEST_F(Untouched, WhatIsNoWholeFreeDatabaseIsNotOpened) {
  std::unique_ptr<Database> other;
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"missing", [this] { std::filesystem::remove(path); }},
      {"empty", [this] { WriteBytes(path, ""); }},
      {"text", [this] { WriteBytes(path, std::string(5000, 'x')); }},
      {"truncated", [this] { WriteBytes(path, BytesOf(path).substr(0, 5000)); }},
      {"a folder",
       [this] {
         std::filesystem::remove(path);
         std::filesystem::create_directory(path);
       }},
      {"being collected in", [&] { other = Database::Open(path, OpenMode::ExclusiveDurable); }},
      {"half changed", [this] { WriteBytes(path + "-journal", std::string(600, 'j')); }},
  };
  for (const auto& [name, arrange] : cases) {
    std::filesystem::remove_all(path);
    Kill();
    database = Database::Open(path, OpenMode::Shared); // folds the log
    database.reset();
    arrange();
    const auto before = Folder();
    EXPECT_FALSE(Database::Open(path, OpenMode::Untouched)) << name;
    EXPECT_TRUE(Folder() == before) << name;
    other.reset();
  }
}

} // namespace
} // namespace trekor::tests
