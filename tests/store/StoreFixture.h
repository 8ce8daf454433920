// A folder of its own for each test, and a small database in it.
#pragma once

#include "store/Database.h"
#include "store/Recordset.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

namespace trekor {

inline void PrintTo(const FieldValue& value, std::ostream* out) {
  *out << (value.IsNull() ? "null" : value.Text());
}

class StoreFixture : public testing::Test {
protected:
  StoreFixture() {
    std::string name = (std::filesystem::temp_directory_path() / "trekor-store-XXXXXX").string();
    folder = mkdtemp(name.data());
    path = folder + "/Road.mdb";
  }
  ~StoreFixture() override {
    database.reset();
    std::filesystem::remove_all(folder);
  }

  void Make(const std::string& sql) {
    ASSERT_TRUE(Database::Create(path, ";LANGID=0x0409"));
    Reopen(OpenMode::Shared);
    ASSERT_TRUE(database != nullptr);
    ASSERT_TRUE(database->Execute(sql));
  }
  void Reopen(OpenMode mode) {
    database.reset();
    database = Database::Open(path, mode);
    ASSERT_TRUE(database);
    if (mode != OpenMode::ExclusiveDurable)
      database->Execute("PRAGMA synchronous=OFF"); // the disk is of no interest to these tests
  }
  // All values of one field, in the order of the rows.
  static std::vector<std::string> Walk(Recordset& rows, const std::string& field) {
    std::vector<std::string> all;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
      all.push_back(rows.Get(field).Text());
    return all;
  }
  std::vector<std::string> WalkTable(const std::string& table, const std::string& field) {
    const auto rows = database->OpenTable(table);
    return rows ? Walk(*rows, field) : std::vector<std::string>{"no table"};
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(folder + "/" + name); }
  static void WriteFile(const std::string& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
  }

  std::string folder, path;
  std::unique_ptr<Database> database;
};

using Texts = std::vector<std::string>;

} // namespace trekor
