// Files and folders of a test, by their native paths.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

namespace trekor::tests {

inline std::string BytesOf(const std::filesystem::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

// Makes the folders above it as well.
inline void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::error_code none;
  std::filesystem::create_directories(file.parent_path(), none);
  std::ofstream(file, std::ios::binary) << bytes;
}

// A folder that goes with the object.
class TestFolder {
public:
  TestFolder() { mkdtemp(path.data()); }
  ~TestFolder() {
    std::error_code none;
    std::filesystem::remove_all(path, none);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  std::string File(const std::string& name) const { return path + "/" + name; }

  std::string path = (std::filesystem::temp_directory_path() / "trekor-XXXXXX").string();
};

} // namespace trekor::tests
