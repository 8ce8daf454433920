// A hidden folder beside the files that are being made, so that nothing half-written ever stands under a file's own
// name and each is put in its place in one step. It goes with the object; a killed program leaves it.
#pragma once

#include <filesystem>
#include <system_error>

namespace trekor {

// Clears what killed programs have left in this folder: work folders that nobody has written into for a day.
void ClearLeftWorkFolders(const std::filesystem::path& in);

class WorkFolder {
public:
  explicit WorkFolder(const std::filesystem::path& in);
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  const std::filesystem::path& Path() const { return path; }
  const std::error_code& Error() const { return error; } // why it could not be made

private:
  std::filesystem::path path;
  std::error_code error;
};

} // namespace trekor
