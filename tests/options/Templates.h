// The released databases that options and sections open, and the machine they stand on.
#pragma once

#include "core/ProgramState.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "support/FakePlatform.h"

#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace trekor::tests {

class WithTemplates : public ::testing::Test {
protected:
  WithTemplates() {
    for (const char* folder : {"C:\\Trekor", "C:\\Veldmark\\Trekor\\MDB", "C:\\Veldmark\\Parcels\\MDB"}) {
      machine.drives.MakeFolders(folder);
    }
    state.folders.AppPath = "C:\\Trekor";
    state.folders.RootFolder = "C:\\Veldmark\\Trekor";
    state.folders.MdbFolder = "C:\\Veldmark\\Trekor\\MDB";
    state.folders.SharedMdbFolder = "C:\\Veldmark\\Parcels\\MDB";
  }
  static std::string TemplateText(const std::string& name) {
    std::ifstream file(std::string(TREKOR_SOURCE_DIR) + "/templates/" + name + ".sql");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  void Make(const std::string& path, const std::string& sql) {
    const std::string native = machine.drives.NativePath(path);
    ASSERT_TRUE(Database::Create(native, ";LANGID=0x0409;CP=1252;COUNTRY=0"));
    const auto made = Database::Open(native, OpenMode::Shared);
    ASSERT_TRUE(made && made->Begin() && made->Execute(sql) && made->Commit());
  }
  void Ship(const std::string& name) { Make("C:\\Trekor\\" + name + ".vdb", TemplateText(name)); }
  std::unique_ptr<Database> Open(const std::string& path) {
    return Database::Open(machine.drives.NativePath(path), OpenMode::Shared);
  }

  FakePlatform machine;
  ProgramState state;
};

} // namespace trekor::tests
