// A hidden folder beside the files that are made, so that none is ever half written under its own name. Removed with
// the object; what a killed program leaves goes at the next run.
#pragma once

#include <filesystem>
#include <system_error>

namespace trekor {

// Removes work folders left by killed programs: of this machine, those that no living process holds; of others on the
// same share, and where that can't be told, those that were not written into for a day.
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
  int held = -1;
};

} // namespace trekor
