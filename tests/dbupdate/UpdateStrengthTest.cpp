// Whatever fails in an update, and wherever it is killed: the file holds the old content or the new one, there is a
// backup, and the next start completes the update.
#include "FileCalls.h"
#include "UpdateFixture.h"

#include "support/Child.h"

#include <algorithm>
#include <optional>
#include <set>

#include <sys/resource.h>

namespace trekor::tests {

class UpdateStrengthTest : public UpdateFixture {
protected:
  UpdateStrengthTest() {
    Build(backup, 2, 2, "CREATE TABLE Older(A)");
    older = drives.Read(backup);
    Fill(40);
    drives.syncs = true;
  }
  // Both sides have rows of their own, so that the merged file is larger than either.
  void Fill(int rowsOfEach) {
    rows = rowsOfEach;
    const std::string numbers =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" + std::to_string(rows) + ") ";
    BuildBoth(newOptions + "CREATE TABLE Words(Word TEXT(80));" + numbers +
                  "INSERT INTO Words SELECT 'a word of the release ' || i FROM n",
              oldOptions + numbers + "INSERT INTO Options(ID, Units) SELECT i+10, 'site' FROM n");
  }
  void Prepare() {
    drives.Write(working, before);
    drives.Write(backup, older);
  }
  bool IsMerged() {
    const std::string merged = Rows("Options");
    return std::count(merged.begin(), merged.end(), '\n') == rows + 2 &&
           merged.starts_with("3|US|-1|here\n7|SI|1|null\n");
  }
  // What must hold whatever went wrong.
  void ExpectOldOrNew() {
    EXPECT_TRUE(Untouched() || (Updated() && IsMerged()));
    const std::string kept = drives.Read(backup);
    EXPECT_TRUE(kept == before || (kept == older && Untouched()));
  }
  void ExpectTheNextStartCompletesIt() {
    EXPECT_FALSE(Update().programEnds);
    EXPECT_TRUE(Boxes().empty() && Updated() && IsMerged() && drives.Read(backup) == before);
    for (const auto& folder : {mdb, bak})
      for (const auto& entry : std::filesystem::directory_iterator(drives.NativePath(folder)))
        EXPECT_EQ(entry.path().filename(), "Software.mdb");
  }
  void FailAtEachCall(Fault fault) {
    bool reached = true;
    for (int n = 1; reached; ++n) {
      SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " + std::to_string(n));
      Prepare();
      {
        const FileFaults faults(fault, n);
        Update();
        reached = faults.Count() >= n;
      }
      ExpectOldOrNew();
      EXPECT_TRUE(Updated() ? reached || n > 50 : !Boxes().empty()) << "what fails is told";
      EXPECT_TRUE(fakes.shell.notices.empty() || fakes.shell.notices.back().empty());
      ExpectTheNextStartCompletesIt();
    }
  }
  // Updates in another process, which a test lets be killed or fail; true when that happened.
  bool UpdateAside(const std::function<void()>& prepare) {
    return Child([&](Child&) {
             prepare();
             Update();
             _exit(Boxes().empty() ? 0 : 1);
           }).Wait() != 0;
  }
  std::string older;
  int rows = 0;
};

TEST_F(UpdateStrengthTest, EachFileCallMayFail) {
  FailAtEachCall(Fault::FailOnce);
}

TEST_F(UpdateStrengthTest, TheDriveMayBeFullOrGoneFromAnyCallOn) {
  FailAtEachCall(Fault::DiskFull);
  FailAtEachCall(Fault::DriveGone);
}

TEST_F(UpdateStrengthTest, AKillAtEachCallIsMadeGoodByTheNextStart) {
  bool killed = true;
  for (int n = 1; killed; ++n) {
    SCOPED_TRACE("at call " + std::to_string(n));
    Prepare();
    std::optional<FileFaults> faults;
    killed = UpdateAside([&] { faults.emplace(Fault::Kill, n); });
    ExpectOldOrNew();
    EXPECT_TRUE(killed || (Updated() && n > 50));
    ExpectTheNextStartCompletesIt();
  }
}

// Every start asks for each database.
TEST_F(UpdateStrengthTest, AStartWithNothingToDoChangesNothing) {
  Prepare();
  Update();
  const FileFaults calls(Fault::FailOnce, 0);
  Update();
  EXPECT_LT(calls.Count(), 150) << "below 1 ms, looks at the parts of the paths included";
  for (const FileCall& call : std::vector(calls.Made()))
    EXPECT_EQ(call.name, "folder") << call.path << " (one that is there already)";
}

// What takes a name is on the disk before, and the name before the next file takes one: a power cut may keep any part
// of what was not synced.
TEST_F(UpdateStrengthTest, EachStepIsOnTheDiskBeforeTheNext) {
  Prepare();
  const FileFaults calls;
  Update();
  std::set<std::string> unsynced;
  const auto isFolder = [](const std::string& path) { return std::filesystem::is_directory(path); };
  int taken = 0;
  for (const FileCall& call : std::vector(calls.Made())) {
    if (call.name == "write")
      unsynced.insert(call.path);
    else if (call.name == "sync")
      unsynced.erase(call.path);
    else if (call.name == "rename") {
      EXPECT_FALSE(unsynced.contains(call.path)) << call.path;
      EXPECT_EQ(std::count_if(unsynced.begin(), unsynced.end(), isFolder), 0) << call.to;
      unsynced.insert(std::filesystem::path(call.to).parent_path().string());
      ++taken;
    }
  }
  EXPECT_EQ(taken, 4) << "copy, backup, successor and the working file";
  for (const std::string& path : unsynced)
    EXPECT_FALSE(std::filesystem::exists(path)) << path << " is not on the disk";
}

// No file may grow beyond some length: the copies fail, then the merge at one page after the other.
TEST_F(UpdateStrengthTest, TheDiskMayBeFullAtAnyPage) {
  Fill(800);
  bool failed = true;
  int failures = 0;
  for (rlim_t pages = 1; failed; ++pages) {
    SCOPED_TRACE(std::to_string(pages) + " pages");
    Prepare();
    failed = UpdateAside([&] {
      const rlimit longest{pages * 4096, pages * 4096};
      signal(SIGXFSZ, SIG_IGN);
      setrlimit(RLIMIT_FSIZE, &longest);
    });
    EXPECT_EQ(Updated(), !failed);
    failures += failed ? 1 : 0;
    ExpectOldOrNew();
    ExpectTheNextStartCompletesIt();
  }
  const auto size = [&](const std::string& path) { return std::filesystem::file_size(drives.NativePath(path)); };
  EXPECT_GT(failures * 4096ULL, std::max(size(templateFile), size(backup))) << "the merge has met it too";
}

// What the other program holds is not yet in the file, or may change under the copy: the older backup stays, too.
TEST_F(UpdateStrengthTest, AFileThatOthersUseIsNotReplaced) {
  for (const auto& [mode, sql] : {std::pair(OpenMode::ReadOnly, "BEGIN; SELECT * FROM Options"),
                                  {OpenMode::Shared, "BEGIN IMMEDIATE; INSERT INTO Options(ID) VALUES (500)"},
                                  {OpenMode::Shared, "SELECT * FROM Options"}, // could write
                                  {OpenMode::Shared, "PRAGMA journal_mode=WAL; CREATE TABLE More(A)"}}) {
    SCOPED_TRACE(sql);
    Prepare();
    {
      std::unique_ptr<Database> open;
      Child other([&, m = mode, s = sql](Child& me) {
        open = Database::Open(drives.NativePath(working), m);
        open->Execute(s);
        me.Sign();
        pause();
      });
      EXPECT_TRUE(other.Signed());
      const std::string used = drives.Read(working);
      Update();
      EXPECT_EQ(Boxes(), Words{working + " could not be removed! Update cancelled"});
      EXPECT_TRUE(drives.Read(working) == used && drives.Read(backup) == older);
    }
    Update();
    EXPECT_TRUE(Boxes().empty() && Updated() && IsMerged());
    const bool withItsLog = Open(backup)->HasTable("More");
    EXPECT_TRUE(withItsLog || drives.Read(backup) == before);
    EXPECT_EQ(withItsLog, std::string(sql).starts_with("PRAGMA"));
  }
}

// An unreadable file is not taken for an empty one.
TEST_F(UpdateStrengthTest, ADamagedFileIsNotReplacedByHalfOfItsRows) {
  Prepare();
  std::string bytes = before;
  drives.Write(working, bytes.replace(bytes.rfind("site") / 4096 * 4096, 4096, 4096, '\x7f'));
  before = bytes;
  Update();
  EXPECT_EQ(Boxes(), Words{working + " could not be installed! Update cancelled"});
  EXPECT_TRUE(Untouched() && drives.Read(backup) == before);
}

// A file that was cut on its way to the vehicle, at any page, the empty one included.
TEST_F(UpdateStrengthTest, ACutFileIsNeverLostNorPutInPlace) {
  for (const std::string& path : {working, templateFile})
    for (const int newMajor : {0, 1}) {
      Prepare();
      Build(templateFile, 2 + newMajor, 4,
            newOptions + "CREATE TABLE Words(Word TEXT(80)); INSERT INTO Words VALUES(1)");
      const std::string whole = drives.Read(path), release = drives.Read(templateFile);
      for (std::size_t size = 0; size < whole.size(); size += 4096) {
        SCOPED_TRACE(path + " of " + std::to_string(size) + " bytes");
        Prepare();
        drives.Write(templateFile, release);
        drives.Write(path, whole.substr(0, size));
        const std::string old = drives.Read(working);
        Update();
        const bool kept = drives.Read(working) == old;
        EXPECT_TRUE(kept || (drives.Read(backup) == old && path == working));
        EXPECT_TRUE(!kept || !Boxes().empty());
        if (path == templateFile && drives.DeleteFile(working)) {
          Update();
          EXPECT_FALSE(drives.FileExists(working)) << "where nothing was";
        }
      }
    }
}

} // namespace trekor::tests
