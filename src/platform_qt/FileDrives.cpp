#include "platform_qt/FileDrives.h"

#include "values/Text.h"

#include <algorithm>
#include <system_error>

namespace trekor {

namespace fs = std::filesystem;

namespace {

bool ReadOnly(const fs::path& file) {
  std::error_code failed;
  const fs::file_status s = fs::status(file, failed);
  return fs::is_regular_file(s) && (s.permissions() & fs::perms::owner_write) == fs::perms::none;
}

// A name beside the target that no listing shows.
fs::path Beside(const fs::path& target) {
  return target.parent_path() / PathFromText("." + TextFromPath(target.filename()) + ".part");
}

} // namespace

fs::path PathFromText(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string TextFromPath(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool MatchesPattern(const std::string& name, const std::string& pattern) {
  if (pattern == "*.*" || pattern == "*")
    return true;
  const std::string n = Lower(name), p = Lower(pattern);
  std::size_t i = 0, j = 0, star = std::string::npos, resume = 0;
  while (i < n.size()) {
    if (j < p.size() && p[j] == '*') {
      star = j++;
      resume = i;
    } else if (j < p.size() && (p[j] == n[i] || p[j] == '?')) {
      // "?" stands for a whole character: its trailing bytes go with it.
      for (++i; p[j] == '?' && i < n.size() && (static_cast<unsigned char>(n[i]) & 0xC0) == 0x80;)
        ++i;
      ++j;
    } else if (star != std::string::npos) {
      j = star + 1;
      i = ++resume;
    } else
      return false;
  }
  return p.find_first_not_of('*', j) == std::string::npos;
}

FileDrives::FileDrives(fs::path drives, std::string folder)
    : root(std::move(drives)), programFolder(std::move(folder)) {
  std::error_code failed;
  if (!root.empty() && !native::DriveExists(root, 'C'))
    fs::create_directories(root / "C", failed);
}

fs::path FileDrives::Path(const std::string& path) {
  return native::PathOf(root, path, programFolder);
}

std::string FileDrives::NativePath(const std::string& path) {
  return TextFromPath(Path(path));
}
bool FileDrives::DriveExists(char letter) {
  return native::DriveExists(root, letter);
}
std::string FileDrives::RemoteName(char letter) {
  return native::RemoteName(letter);
}

bool FileDrives::FileExists(const std::string& path) {
  std::error_code failed;
  return fs::is_regular_file(Path(path), failed);
}

bool FileDrives::FolderExists(const std::string& path) {
  std::error_code failed;
  return fs::is_directory(Path(path), failed);
}

bool FileDrives::MakeFolder(const std::string& path) {
  std::error_code failed;
  const fs::path folder = Path(path);
  if (folder.empty())
    return false;
  if (fs::create_directory(folder, failed))
    native::SyncFolder(folder.parent_path());
  return fs::is_directory(folder, failed);
}

// The content goes to a name beside the target and onto the disk before it takes the target's place, so that no instant
// of the copying leaves a half file. A read-only target refuses, as it does everywhere else in the system.
bool FileDrives::CopyFile(const std::string& from, const std::string& to) {
  std::error_code failed;
  const fs::path source = Path(from), target = Path(to), part = Beside(target);
  if (!fs::is_regular_file(source, failed) || ReadOnly(target) || fs::equivalent(source, target, failed) ||
      fs::is_directory(target, failed))
    return false;
  fs::remove(part, failed);
  bool done = fs::copy_file(source, part, failed);
  fs::permissions(part, fs::perms::owner_write, fs::perm_options::add, failed);
  done = done && native::SyncFile(part) && native::Replace(part, target);
  if (!done)
    fs::remove(part, failed);
  else
    native::SyncFolder(target.parent_path());
  return done;
}

bool FileDrives::SyncFile(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  return fs::is_regular_file(file, failed) && native::SyncFile(file) && native::SyncFolder(file.parent_path());
}

bool FileDrives::DeleteFile(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  return fs::is_regular_file(file, failed) && !ReadOnly(file) && fs::remove(file, failed);
}

void FileDrives::ClearReadOnly(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  if (fs::is_regular_file(file, failed))
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add, failed);
}

std::vector<std::string> FileDrives::Names(const std::string& folder, const std::string& pattern, bool folders) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator i(Path(folder), failed), end; !failed && i != end; i.increment(failed)) {
    std::error_code lost; // an entry that goes while we look is no longer an entry
    const std::string name = TextFromPath(i->path().filename());
    const bool wanted = folders ? i->is_directory(lost) : i->is_regular_file(lost);
    if (wanted && name.front() != '.' && MatchesPattern(name, pattern))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const std::string upperA = Upper(a), upperB = Upper(b);
    return upperA == upperB ? a < b : upperA < upperB;
  });
  return names;
}

std::vector<std::string> FileDrives::Files(const std::string& folder, const std::string& pattern) {
  return Names(folder, pattern, false);
}

std::vector<std::string> FileDrives::Folders(const std::string& folder) {
  return Names(folder, "*", true);
}

} // namespace trekor
