#include "WorkFolder.h"

#include "Disk.h"

#include <chrono>
#include <random>
#include <string>
#include <vector>

namespace trekor {

namespace fs = std::filesystem;

namespace {

constexpr char NameBegin[] = ".trekor-export-";
constexpr std::chrono::hours LongestUse(24); // for one data file, on whatever machine

std::string OwnBegin() {
  return NameBegin + MachineName() + "-";
}

bool BeginsWith(const fs::path& name, const std::string& begin) {
  return name.u8string().starts_with(fs::path(begin).u8string());
}

bool IsOld(const fs::path& folder) {
  std::error_code failed;
  const auto written = fs::last_write_time(folder, failed);
  return !failed && written < fs::file_time_type::clock::now() - LongestUse;
}

// Held while it is removed, so that no other export takes it for free.
void ClearIfLeft(const fs::path& folder) {
  const int held = BeginsWith(folder.filename(), OwnBegin()) ? HoldFolder(folder.string()) : -1;
  std::error_code stays;
  if (held >= 0 || IsOld(folder))
    fs::remove_all(folder, stays);
  LetGo(held);
}

} // namespace

void ClearLeftWorkFolders(const fs::path& in) {
  std::error_code failed;
  std::vector<fs::path> ours;
  for (fs::directory_iterator i(in, failed), end; !failed && i != end; i.increment(failed)) {
    std::error_code gone;
    if (BeginsWith(i->path().filename(), NameBegin) && i->symlink_status(gone).type() == fs::file_type::directory)
      ours.push_back(i->path());
  }
  for (const fs::path& folder : ours)
    ClearIfLeft(folder);
}

// Another export may be at work in the same place: a name that is taken is left alone. It may also take ours for left
// before we hold it; then there is no such folder any more, and the next name is tried.
WorkFolder::WorkFolder(const fs::path& in) {
  std::random_device number;
  std::error_code unknown;
  do {
    LetGo(held);
    do
      path = in / (OwnBegin() + std::to_string(number()));
    while (!fs::create_directory(path, error) && !error);
    held = error ? -1 : HoldFolder(path.string());
  } while (!error && fs::status(path, unknown).type() == fs::file_type::not_found);
}

WorkFolder::~WorkFolder() {
  if (!error)
    fs::remove_all(path, error);
  LetGo(held);
}

} // namespace trekor
