#include "WorkFolder.h"

#include <random>
#include <string>

namespace trekor {

namespace fs = std::filesystem;

// Another export may be at work in the same place: a name that is taken is left alone.
WorkFolder::WorkFolder(const fs::path& in) {
  std::random_device number;
  do
    path = in / (".trekor-export-" + std::to_string(number()));
  while (!fs::create_directory(path, error) && !error);
}

WorkFolder::~WorkFolder() {
  if (!error)
    fs::remove_all(path, error);
}

} // namespace trekor
