#include "platform_os/FileDrives.h"

#include "values/Text.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string_view>
#include <system_error>

namespace trekor {

namespace fs = std::filesystem;

namespace {

bool ReadOnly(const fs::path& file) {
  std::error_code failed;
  const fs::file_status s = fs::status(file, failed);
  return fs::is_regular_file(s) && (s.permissions() & fs::perms::owner_write) == fs::perms::none;
}

// For certain: a drive that does not answer says nothing of its files. A name that is too long names none.
bool IsGone(const fs::path& file) {
  std::error_code failed;
  return fs::symlink_status(file, failed).type() == fs::file_type::not_found || failed == std::errc::filename_too_long;
}

constexpr std::string_view WorkBegin = ".trekor-", WorkEnd = ".part";

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// A work file, or the log that a database left beside one.
bool IsWorkName(std::string_view name) {
  const std::size_t end = name.rfind('.');
  return name.starts_with(WorkBegin) && end != std::string_view::npos && name.substr(end).starts_with(WorkEnd);
}

// Each copy has a work name of its own: another vehicle may be writing into the same folder of a share. Work files that
// are there already are removed as left by killed programs; when one was alive, that copy fails.
fs::path NewWorkFile(const fs::path& folder) {
  std::error_code failed;
  for (fs::directory_iterator i(folder, failed), end; !failed && i != end; i.increment(failed)) {
    std::error_code stays;
    if (IsWorkName(TextFromPath(i->path().filename())))
      fs::remove(i->path(), stays);
  }
  return folder / (std::string(WorkBegin) + std::to_string(std::random_device{}()) + std::string(WorkEnd));
}

// The whole content under a work name in the target's folder; an empty path when it could not be written.
fs::path CopyBeside(const fs::path& source, const fs::path& target) {
  std::error_code failed, unmarked;
  if (target.empty() || !fs::is_regular_file(source, failed) || fs::equivalent(source, target, failed))
    return {};
  fs::path work = NewWorkFile(target.parent_path());
  const bool whole = fs::copy_file(source, work, failed);
  fs::permissions(work, fs::perms::owner_write, fs::perm_options::add, unmarked);
  if (whole)
    return work;
  fs::remove(work, failed);
  return {};
}

// "*" stands for any characters, "?" for one, whatever its bytes. Both texts in one case.
bool Matches(std::string_view n, std::string_view p) {
  std::size_t i = 0, j = 0, star = std::string::npos, resume = 0;
  while (i < n.size())
    if (j < p.size() && p[j] == '*') {
      star = j++;
      resume = i;
    } else if (j < p.size() && (p[j] == n[i] || p[j] == '?')) {
      i += p[j] == '?' ? CutView(n.substr(i), 1).size() : 1;
      ++j;
    } else if (star != std::string::npos) {
      j = star + 1;
      i = ++resume;
    } else
      return false;
  return p.find_first_not_of('*', j) == std::string::npos;
}

// A name without an extension has an empty one: "A.*" matches it.
bool MatchesPattern(const std::string& name, const std::string& pattern) {
  const std::string n = Lower(name), p = Lower(pattern);
  return Matches(n, p) || (p.ends_with(".*") && Matches(n, std::string_view(p).substr(0, p.size() - 2)));
}

} // namespace

fs::path PathFromText(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string TextFromPath(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

FileDrives::FileDrives(fs::path drives, std::string folder)
    : root(std::move(drives)), programFolder(std::move(folder)) {
  std::error_code failed;
  if (!root.empty() && !native::DriveExists(root, 'C'))
    fs::create_directories(root / "C", failed);
}

fs::path FileDrives::Path(const std::string& path) {
  const bool hasDrive = path.size() > 1 && path[1] == ':';
  return hasDrive && !IsLetter(path[0]) ? fs::path() : native::PathOf(root, path, CurrentFolder());
}

std::string FileDrives::NativePath(const std::string& path) {
  return TextFromPath(Path(path));
}
bool FileDrives::DriveExists(char letter) {
  return IsLetter(letter) && native::DriveExists(root, letter);
}
std::string FileDrives::RemoteName(char letter) {
  return native::RemoteName(letter);
}

// The variable TREKOR_CONTROL_SHARE; set to nothing it lets every share be a backup drive.
std::string FileDrives::ControlCentreShare() {
  const char* const given = std::getenv("TREKOR_CONTROL_SHARE");
  return given ? given : "\\\\VCC";
}

bool FileDrives::FileExists(const std::string& path) {
  std::error_code failed;
  return fs::is_regular_file(Path(path), failed);
}

// The folder is read to its end: a name in another case is found by that alone.
bool FileDrives::FileMissing(const std::string& path) {
  const fs::path file = Path(path);
  if (file.empty() || !IsGone(file))
    return false;
  const std::string name = TextFromPath(file.filename());
  std::error_code failed;
  for (fs::directory_iterator i(file.parent_path(), failed), end; !failed && i != end; i.increment(failed))
    if (SameText(TextFromPath(i->path().filename()), name))
      return false;
  return !failed;
}

bool FileDrives::FolderExists(const std::string& path) {
  std::error_code failed;
  return fs::is_directory(Path(path), failed);
}

bool FileDrives::MakeFolder(const std::string& path) {
  std::error_code failed;
  const fs::path folder = Path(path);
  // What lies directly in the folder of the drives is a drive: a medium that is not in the machine must not become a
  // folder.
  const bool drive = fs::equivalent(folder.parent_path(), root, failed); // however the root is written
  if (!folder.empty() && !drive && fs::create_directory(folder, failed))
    OnDisk(folder.parent_path());
  return fs::is_directory(folder, failed);
}

// A read-only target refuses, as it does everywhere else in the system.
bool FileDrives::PutInPlace(const fs::path& work, const fs::path& target) {
  std::error_code failed;
  if (target.empty() || ReadOnly(target) || fs::is_directory(target, failed) || !OnDisk(work))
    return false;
  for (const char* tail : {"-wal", "-shm", "-journal"}) {
    fs::path log = target;
    fs::remove(log += tail, failed);
    if (!IsGone(log)) // the engine would play it into the successor
      return false;
  }
  return native::Replace(work, target) && OnDisk(target.parent_path());
}

bool FileDrives::CopyFile(const std::string& from, const std::string& to) {
  std::error_code failed;
  const fs::path target = Path(to), work = CopyBeside(Path(from), target);
  const bool done = !work.empty() && PutInPlace(work, target);
  if (!done)
    fs::remove(work, failed);
  return done;
}

bool FileDrives::ReplaceFile(const std::string& work, const std::string& path) {
  return PutInPlace(Path(work), Path(path));
}

bool FileDrives::Install(const fs::path& source, const std::string& to) {
  for (std::size_t end = to.find('\\', 3); end != std::string::npos; end = to.find('\\', end + 1))
    MakeFolder(to.substr(0, end));
  const fs::path target = Path(to), work = CopyBeside(source, target);
  const bool done = !work.empty() && native::Replace(work, target);
  std::error_code failed;
  if (!done)
    fs::remove(work, failed);
  return done;
}

bool FileDrives::OnDisk(const fs::path& path) {
  std::error_code failed;
  return fs::is_directory(path, failed) ? native::SyncFolder(path) : native::SyncFile(path);
}

bool FileDrives::SyncFile(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  return fs::is_regular_file(file, failed) && OnDisk(file) && OnDisk(file.parent_path());
}

bool FileDrives::DeleteFile(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  return fs::is_regular_file(file, failed) && !ReadOnly(file) && fs::remove(file, failed);
}

void FileDrives::ClearReadOnly(const std::string& path) {
  std::error_code failed;
  const fs::path file = Path(path);
  if (ReadOnly(file))
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add, failed);
}

std::vector<std::string> FileDrives::Names(const std::string& folder, const std::string& pattern, bool folders) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator i(Path(folder), failed), end; !failed && i != end; i.increment(failed)) {
    std::error_code lost; // an entry that goes while we look is no longer an entry
    const std::string name = TextFromPath(i->path().filename());
    const bool wanted =
        folders ? i->is_directory(lost) && name.front() != '.' : i->is_regular_file(lost) && !IsWorkName(name);
    if (wanted && MatchesPattern(name, pattern))
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
