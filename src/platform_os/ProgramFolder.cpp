#include "platform_os/ProgramFolder.h"

#include "values/Text.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <system_error>

namespace trekor {

namespace fs = std::filesystem;

namespace {

// In the order of making: one level each.
constexpr const char* DataFolders[] = {"C:\\Veldmark", "C:\\Veldmark\\Trekor", "C:\\Veldmark\\Trekor\\VDB",
                                       "C:\\Veldmark\\Parcels", "C:\\Veldmark\\Parcels\\MDB"};
constexpr const char* TemplateFolder = "C:\\Veldmark\\Trekor\\VDB";
constexpr const char* StampName = ".release";

// False when they could not all be found.
bool FilesBelow(const fs::path& folder, std::vector<fs::path>& files) {
  std::error_code failed;
  for (fs::recursive_directory_iterator i(folder, failed), end; !failed && i != end; i.increment(failed))
    if (i->is_regular_file(failed) && !failed)
      files.push_back(i->path());
  std::sort(files.begin(), files.end());
  return !failed;
}

// One line a file, so that any change of what is shipped shows.
std::string StampOf(const fs::path& shipped, const std::vector<fs::path>& files, const std::string& release) {
  std::string stamp = release + "\n";
  std::error_code failed;
  for (const fs::path& f : files)
    stamp += TextFromPath(f.lexically_relative(shipped)) + " " + std::to_string(fs::file_size(f, failed)) + " " +
             std::to_string(fs::last_write_time(f, failed).time_since_epoch().count()) + "\n";
  return stamp;
}

std::string ReadAll(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool IsTemplate(const fs::path& file) {
  return SameText(TextFromPath(file.extension()), ".vdb");
}

std::string TargetOf(FileDrives& drives, const fs::path& relative) {
  std::string target = drives.CurrentFolder();
  if (IsTemplate(relative))
    return target + "\\" + TextFromPath(relative.filename());
  for (const fs::path& part : relative)
    target += "\\" + TextFromPath(part);
  return target;
}

bool InstallAll(FileDrives& drives, const fs::path& shipped, const std::vector<fs::path>& files) {
  bool done = true;
  for (const fs::path& f : files) {
    done &= drives.Install(f, TargetOf(drives, f.lexically_relative(shipped)));
    if (SameText(TextFromPath(f.filename()), "Hardware.vdb"))
      done &= drives.Install(f, TemplateFolder + std::string("\\Hardware.vdb"));
  }
  return done;
}

} // namespace

fs::path ShippedFolder(const fs::path& executable) {
  std::error_code failed;
  const fs::path folder = fs::weakly_canonical(executable, failed).parent_path().parent_path() / "share" / "trekor";
  return fs::is_directory(folder, failed) ? folder : fs::path();
}

bool FillProgramFolder(FileDrives& drives, const fs::path& shipped, const std::string& release) {
  std::vector<fs::path> files;
  if (!shipped.empty() && !FilesBelow(shipped, files))
    return false;
  const fs::path stampFile = PathFromText(drives.NativePath(drives.CurrentFolder() + "\\" + StampName));
  const std::string stamp = StampOf(shipped, files, release);
  if (!files.empty() && ReadAll(stampFile) == stamp)
    return true;
  bool done = drives.MakeFolder(drives.CurrentFolder());
  for (const char* folder : DataFolders)
    done &= drives.MakeFolder(folder);
  if (files.empty() || !done || !InstallAll(drives, shipped, files))
    return done && files.empty();
  // The stamp says that all of it is there, so all of it must be on the disk before.
  native::SyncAll(stampFile.parent_path());
  std::ofstream(stampFile, std::ios::binary) << stamp;
  return true;
}

} // namespace trekor
