// The tree share/trekor as the build has made it.
#pragma once

#include "store/Database.h"
#include "store/Recordset.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace trekor::tests {

inline std::string Share(const std::string& file) {
  return TREKOR_BINARY_DIR "/share/trekor/" + file;
}

inline std::unique_ptr<Database> OpenShared(const std::string& file) {
  return Database::Open(Share(file), OpenMode::ReadOnly);
}

// A folder of the running test's own, below the build so that two builds can test at once.
class TestFolder {
public:
  TestFolder()
      : path(std::filesystem::path(TREKOR_BINARY_DIR) / "tests" /
             testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~TestFolder() { std::filesystem::remove_all(path); }
  std::string File(const std::string& name) const { return (path / name).string(); }
  const std::filesystem::path path;
};

} // namespace trekor::tests
