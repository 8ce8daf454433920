#include "dbupdate/UpdateDatabase.h"

#include "dbupdate/MergeDatabase.h"
#include "platform/WaitSeconds.h"
#include "store/Cursor.h"
#include "store/InUse.h"

#include <memory>
#include <optional>

namespace trekor {

namespace {

constexpr char Locale[] = ";LANGID=0x0409;CP=1252;COUNTRY=0";
constexpr double CopyPauseSeconds = 0.5; // until a virus scanner or a slow share has closed the file

// The files of one update, as paths of the program.
struct Files {
  std::string templateFile, working, lock, backup;
  std::string successor = Drives::WorkPath(working);
};

// The last row of the table counts.
std::optional<DbVersion> VersionOf(Database* database) {
  std::optional<DbVersion> version;
  if (!database)
    return version;
  Cursor rows(*database, "SELECT Major, Minor FROM Version ORDER BY rowid DESC LIMIT 1");
  if (rows.Step())
    version = {static_cast<int>(rows.Integer(0)), static_cast<int>(rows.Integer(1))};
  return version;
}

class Update {
public:
  Update(const FolderPaths& f, Platform& p, Files files) : folders(f), platform(p), names(std::move(files)) {}

  UpdateResult Run();

private:
  void BringUp(const std::optional<DbVersion>& released);
  std::unique_ptr<Database> Open(const std::string& path, OpenMode mode);
  void InstallMissing();
  void Replace(int oldMajor);
  bool IsWhole();
  std::unique_ptr<Database> OpenAlone();
  bool BackUp();
  bool Build(int oldMajor);
  bool Merge(Database& old);
  bool IsSound(const std::string& path);
  bool Install();
  bool Cancel(const std::string& path, const std::string& why);
  void Refuse(const std::string& text, const std::string& path);
  void Box(const std::string& text) { platform.shell.MsgBox(text, folders.programName, BoxIcon::None); }
  void OpenWorking();

  const FolderPaths& folders;
  Platform& platform;
  const Files names;
  UpdateResult result;
};

std::unique_ptr<Database> Update::Open(const std::string& path, OpenMode mode) {
  return Database::Open(platform.drives.NativePath(path), mode);
}

// Only when the file is missing for certain: one that can't be read, or not even be looked at for a moment, may be the
// only copy of a site's work. A template that was cut on its way here is left out: nothing would ever replace it again.
void Update::InstallMissing() {
  if (!platform.drives.FileMissing(names.working))
    return;
  if (!platform.drives.FileExists(names.templateFile))
    Database::Create(platform.drives.NativePath(names.working), Locale);
  else if (IsSound(names.templateFile))
    platform.drives.CopyFile(names.templateFile, names.working);
}

void Update::Refuse(const std::string& text, const std::string& path) {
  result.database.reset();
  Box(text + path);
  result.programEnds = platform.drives.FileExists(path);
}

// The notice is removed first: it lies above every window and would hide this box and its button.
bool Update::Cancel(const std::string& path, const std::string& why) {
  platform.shell.ShowNotice("");
  Box(path + why + " Update cancelled");
  return false;
}

// A failed step leaves the old file and, from the second on, its backup.
void Update::Replace(int oldMajor) {
  platform.shell.ShowNotice("Updating " + names.working + ", Please wait...");
  if (IsWhole() && BackUp() && Build(oldMajor))
    Install();
  platform.drives.DeleteFile(names.successor);
  platform.drives.DeleteFile(names.successor + "-journal");
}

// A copy of the file alone is whole when this program can have it for itself: nobody is writing, and what a killed
// program has left in a log is folded in. Otherwise the older backup is not touched either.
bool Update::IsWhole() {
  return OpenAlone() || Cancel(names.working, " could not be removed!");
}

std::unique_ptr<Database> Update::OpenAlone() {
  return InUse(platform.drives.NativePath(names.working)) ? nullptr : Open(names.working, OpenMode::Exclusive);
}

// The one older backup is replaced only when the new one is whole.
bool Update::BackUp() {
  Drives& drives = platform.drives;
  const std::string copy = Drives::WorkPath(names.backup);
  drives.MakeFolder(folders.RootFolder + "\\BAK");
  if (!drives.CopyFile(names.working, copy)) {
    WaitSeconds(CopyPauseSeconds, platform.clock, platform.pump);
    if (!drives.CopyFile(names.working, copy))
      return Cancel(names.working, " could not be backed up!");
  }
  if (drives.ReplaceFile(copy, names.backup))
    return true;
  drives.DeleteFile(copy);
  return drives.FileExists(names.backup) ? Cancel(names.backup, " could not be removed!")
                                         : Cancel(names.working, " could not be backed up!");
}

// The old file is locked meanwhile, so that nothing can change it while it is merged. A new major version replaces the
// database; the old content is then in the backup only.
bool Update::Build(int oldMajor) {
  auto old = OpenAlone();
  if (!old)
    return Cancel(names.working, " could not be removed!");
  const bool built = platform.drives.CopyFile(names.templateFile, names.successor) &&
                     (result.version.Major != oldMajor || Merge(*old)) && IsSound(names.successor);
  old.reset();
  return built || Cancel(names.working, " could not be installed!");
}

bool Update::Merge(Database& old) {
  platform.drives.ClearReadOnly(names.successor); // a medium's template
  const auto fresh = Open(names.successor, OpenMode::Exclusive);
  return fresh && MergeDatabase(old, *fresh);
}

// A template may have been cut on its way here, in a table that the merge does not touch.
bool Update::IsSound(const std::string& path) {
  const auto fresh = Open(path, OpenMode::ReadOnly);
  if (!fresh)
    return false;
  Cursor check(*fresh, "PRAGMA quick_check(1)");
  return check.Step() && check.TextView(0) == "ok";
}

bool Update::Install() {
  return platform.drives.ReplaceFile(names.successor, names.working) || Cancel(names.working, " could not be removed!");
}

// Major and minor are compared separately, so 2.1 over 3.0 updates too. Kept: it lets a site go back to an older major
// release.
bool IsCurrent(const DbVersion& released, const DbVersion& working) {
  return released.Major <= working.Major && released.Minor <= working.Minor;
}

// Copying from a medium can leave the read-only attribute set, and the database would then be opened for reading alone.
void Update::OpenWorking() {
  platform.drives.ClearReadOnly(names.working);
  result.database = Open(names.working, OpenMode::Shared);
}

// The working file is there and no older than the template's when all goes well; otherwise the operator has been told.
void Update::BringUp(const std::optional<DbVersion>& released) {
  if (!released)
    return Refuse("Cannot open ", names.templateFile);
  InstallMissing();
  result.version = *released;
  OpenWorking();
  if (released->Major == 1 && released->Minor == 1) // never updates anything
    return;
  const auto working = VersionOf(result.database.get());
  if (!working)
    return Refuse("Cannot open ", names.working);
  if (IsCurrent(*released, *working))
    return;
  result.database.reset();
  Replace(working->Major);
  platform.shell.ShowNotice("");
  OpenWorking();
}

UpdateResult Update::Run() {
  result.path = names.working;
  auto released = Open(names.templateFile, OpenMode::ReadOnly);
  if (!released) {
    Box("Error:\r\nCannot open " + names.templateFile);
    result.programEnds = true;
    return std::move(result);
  }
  const auto version = VersionOf(released.get());
  released.reset();
  platform.drives.MakeFolder(folders.RootFolder + "\\MDB");
  platform.drives.DeleteFile(names.lock); // a lock left by a crash would block the update
  BringUp(version);
  return std::move(result);
}

} // namespace

UpdateResult UpdateDatabase(const FolderPaths& folders, Platform& platform, const std::string& templateName,
                            const std::string& folder, const std::string& name) {
  const std::string file = name.empty() ? templateName : name;
  Files files{folders.AppPath + "\\" + templateName + ".vdb", folder + "\\" + file + ".mdb",
              folder + "\\" + file + ".ldb", folders.RootFolder + "\\BAK\\" + file + ".mdb"};
  return Update(folders, platform, std::move(files)).Run();
}

} // namespace trekor
