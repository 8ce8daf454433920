// The tree share/trekor as the build has made it.
#pragma once

#include "store/Database.h"
#include "store/Recordset.h"

#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>

namespace trekor::tests {

inline std::string Share(const std::string& file) {
  return TREKOR_BINARY_DIR "/share/trekor/" + file;
}

inline std::unique_ptr<Database> OpenShared(const std::string& file) {
  return Database::Open(Share(file), OpenMode::ReadOnly);
}

// A copy that a test may write to; gone with the object.
class WritableCopy {
public:
  explicit WritableCopy(const std::string& file)
      : folder(std::filesystem::temp_directory_path() / ("trekor-templates-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(Share(file), folder / "copy.mdb", std::filesystem::copy_options::overwrite_existing);
    database = Database::Open((folder / "copy.mdb").string(), OpenMode::Shared);
  }
  ~WritableCopy() {
    database.reset();
    std::filesystem::remove_all(folder);
  }
  std::unique_ptr<Database> database;

private:
  std::filesystem::path folder;
};

} // namespace trekor::tests
