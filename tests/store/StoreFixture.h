// A folder of its own for each test, and a small database in it.
#pragma once

#include "support/Databases.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>
#include <vector>

namespace trekor {

inline void PrintTo(const FieldValue& value, std::ostream* out) {
  *out << (value.IsNull() ? "null" : value.Text());
}

namespace tests {

using Texts = std::vector<std::string>;

class StoreFixture : public testing::Test {
protected:
  void Make(const std::string& sql) {
    ASSERT_TRUE(Database::Create(path, ";LANGID=0x0409"));
    Reopen(OpenMode::Shared);
    ASSERT_TRUE(database->Execute(sql));
  }
  void Reopen(OpenMode mode) {
    database.reset();
    database = Database::Open(path, mode);
    ASSERT_TRUE(database);
    if (mode != OpenMode::ExclusiveDurable)
      database->Execute("PRAGMA synchronous=OFF"); // the disk is of no interest to these tests
  }
  std::unique_ptr<Recordset> Table(const std::string& name) { return database->OpenTable(name); }
  using Fields = std::initializer_list<std::pair<const char*, FieldValue>>;
  static bool Put(Recordset& rows, Fields fields) {
    for (const auto& [name, value] : fields)
      if (!rows.Set(name, value))
        return false;
    return rows.Update();
  }
  static bool Add(Recordset& rows, Fields fields = {}) { return rows.AddNew() && Put(rows, fields); }
  static bool Edit(Recordset& rows, Fields fields) { return rows.Edit() && Put(rows, fields); }
  // All values of one field, in the order of the rows.
  static Texts Walk(Recordset& rows, const std::string& field) {
    Texts all;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
      all.push_back(rows.Get(field).Text());
    return all;
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(folder.File(name)); }
  // The file has grown as large as it may.
  void FillDisk() { database->Execute("PRAGMA max_page_count=" + RowsOf(*database, "PRAGMA page_count")); }

  const TestFolder folder;
  const std::string path = folder.File("Road.mdb");
  std::unique_ptr<Database> database;
};

} // namespace tests
} // namespace trekor
