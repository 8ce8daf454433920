// The released databases that options and sections open, and the machine they stand on.
#pragma once

#include "store/Recordset.h"
#include "support/Databases.h"

#include <gtest/gtest.h>

namespace trekor::tests {

class WithTemplates : public ::testing::Test {
protected:
  WithTemplates() { FillFolders(machine, state.folders); }
  void Make(const std::string& path, const std::string& sql) { MakeDatabase(machine.drives, path, sql); }
  void Ship(const std::string& name) { Make("C:\\Trekor\\" + name + ".vdb", TemplateText(name)); }
  std::unique_ptr<Database> Open(const std::string& path) {
    return Database::Open(machine.drives.NativePath(path), OpenMode::Shared);
  }

  FakePlatform machine;
  ProgramState state;
};

} // namespace trekor::tests
