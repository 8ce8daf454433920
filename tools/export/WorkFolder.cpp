#include "WorkFolder.h"

#include <chrono>
#include <random>
#include <string>

namespace trekor {

namespace fs = std::filesystem;

namespace {

constexpr char NameBegin[] = ".trekor-export-";
constexpr std::chrono::hours LongestUse(24); // for one data file, on whatever machine

} // namespace

void ClearLeftWorkFolders(const fs::path& in) {
  std::error_code failed;
  const auto left = fs::file_time_type::clock::now() - LongestUse;
  for (fs::directory_iterator i(in, failed), end; !failed && i != end; i.increment(failed)) {
    std::error_code stays;
    const bool ours = i->path().filename().u8string().starts_with(fs::path(NameBegin).u8string());
    if (ours && i->symlink_status(stays).type() == fs::file_type::directory && i->last_write_time(stays) < left &&
        !stays)
      fs::remove_all(i->path(), stays);
  }
}

// Another export may be at work in the same place: a name that is taken is left alone.
WorkFolder::WorkFolder(const fs::path& in) {
  std::random_device number;
  do
    path = in / (NameBegin + std::to_string(number()));
  while (!fs::create_directory(path, error) && !error);
}

WorkFolder::~WorkFolder() {
  if (!error)
    fs::remove_all(path, error);
}

} // namespace trekor
