// Drives as folders, on systems without drive letters.
#include "platform_os/FileDrives.h"

#include "values/Text.h"

#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace trekor::native {

namespace fs = std::filesystem;

namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

// A service may start us without the variable; a relative path would put the drives into whatever folder is current.
fs::path Home() {
  const std::string given = Variable("HOME");
  const passwd* const user = given.starts_with('/') ? nullptr : ::getpwuid(::getuid());
  return user ? user->pw_dir : given;
}

bool Sync(const fs::path& path, int flags) {
  const int file = ::open(path.c_str(), flags | O_CLOEXEC);
  if (file < 0)
    return false;
  const bool done = ::fsync(file) == 0;
  ::close(file);
  return done;
}

// The entry of this name whatever its case; the name as given when there is none, so that it can be made. Empty when
// the folder could not be read to its end: the entry may be there in another case, and a second one would hide it.
fs::path Entry(const fs::path& folder, const std::string& name) {
  std::error_code failed;
  fs::path exact = folder / PathFromText(name);
  if (fs::exists(fs::symlink_status(exact, failed)))
    return exact;
  for (fs::directory_iterator i(folder, failed), end; !failed && i != end; i.increment(failed))
    if (SameText(TextFromPath(i->path().filename()), name))
      return i->path();
  const bool none = !failed || failed == std::errc::no_such_file_or_directory || failed == std::errc::not_a_directory;
  return none ? exact : fs::path();
}

bool HasLetter(const std::string& path) {
  return path.size() > 1 && path[1] == ':';
}

struct Parts {
  std::string letter;
  std::vector<std::string> names;
};

void AddNames(Parts& parts, const std::string& path) {
  std::string name;
  const auto take = [&] {
    if (name == ".." && !parts.names.empty())
      parts.names.pop_back();
    else if (!name.empty() && name != "." && name != "..")
      parts.names.push_back(name);
    name.clear();
  };
  for (const char c : path)
    if (c == '\\' || c == '/')
      take();
    else
      name += c;
  take();
}

Parts Split(const std::string& path, const std::string& current) {
  Parts parts;
  const std::string& lettered = HasLetter(path) ? path : current;
  parts.letter = lettered.substr(0, 1);
  const std::string rest = HasLetter(path) ? path.substr(2) : path;
  if (!HasLetter(path) && !path.starts_with('\\') && !path.starts_with('/'))
    AddNames(parts, current.substr(2));
  AddNames(parts, rest);
  return parts;
}

} // namespace

fs::path DrivesRoot() {
  const std::string given = Variable("TREKOR_DRIVES"), data = Variable("XDG_DATA_HOME");
  if (!given.empty())
    return fs::absolute(given).lexically_normal();
  return (data.starts_with('/') ? fs::path(data) : Home() / ".local" / "share") / "trekor" / "drives";
}

// A NUL would cut the name that the system sees, so that another file would be meant: there is no such path.
fs::path PathOf(const fs::path& root, const std::string& path, const std::string& current) {
  if (path.empty() || path.find('\0') != std::string::npos || path.starts_with("\\\\"))
    return {};
  const Parts parts = Split(path, current);
  fs::path native = Entry(root, parts.letter);
  for (const std::string& name : parts.names)
    if (!native.empty())
      native = Entry(native, name);
  return native;
}

bool DriveExists(const fs::path& root, char letter) {
  std::error_code failed;
  return fs::is_directory(Entry(root, std::string(1, letter)), failed);
}

std::string RemoteName(char) {
  return {};
}

bool SyncFile(const fs::path& file) {
  return Sync(file, O_RDONLY);
}
bool SyncFolder(const fs::path& folder) {
  return Sync(folder, O_RDONLY | O_DIRECTORY);
}

void SyncAll(const fs::path& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0)
    return;
  ::syncfs(file);
  ::close(file);
}

bool Replace(const fs::path& from, const fs::path& to) {
  std::error_code failed;
  fs::rename(from, to, failed);
  return !failed;
}

} // namespace trekor::native
