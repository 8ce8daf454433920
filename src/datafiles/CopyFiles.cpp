#include "datafiles/CopyFiles.h"

#include "values/Text.h"

#include <algorithm>

namespace trekor {
namespace {

auto Count(const std::vector<std::string>& names, const std::string& name) {
  return std::count_if(names.begin(), names.end(), [&](const std::string& n) { return SameText(n, name); });
}

// NAME and NAME.*, compared as text: a name from the link may hold "*" or "?".
std::vector<std::string> FilesOf(const std::string& folder, const std::string& name, Drives& drives) {
  std::vector<std::string> names;
  for (const std::string& file : drives.Files(folder, "*.*"))
    if (SameText(CutText(file, CharCount(name) + 1), name + ".") || SameText(file, name))
      names.push_back(file);
  return names;
}

} // namespace

std::vector<std::string> CopyFiles(const std::string& folder, const std::string& name, const std::string& target,
                                   Drives& drives) {
  if (name.empty() || target.empty())
    return {};
  const std::vector<std::string> names = FilesOf(folder, name, drives);
  std::vector<std::string> whole;
  for (const std::string& file : names)
    if (drives.CopyFile(folder + "\\" + file, target + "\\" + file)) // a drive that was pulled out is not reported
      whole.push_back(file);
  const std::vector<std::string> copied = whole;
  std::erase_if(whole, [&](const std::string& file) {
    return Count(names, file) > 1 || // of two that differ in case alone, the later copy went over the first
           Count(names, file + "-wal") > Count(copied, file + "-wal") ||
           Count(names, file + "-journal") > Count(copied, file + "-journal");
  });
  return whole;
}

} // namespace trekor
