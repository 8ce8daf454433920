// Whatever fails in an update, and wherever it is killed: the file holds the old content or the new one, there is a
// backup, and the next start completes the update.
#include "UpdateFixture.h"

#include "support/Child.h"

#include <algorithm>

#include <sys/resource.h>

namespace trekor::tests {

class UpdateStrengthTest : public UpdateFixture {
protected:
  // Both sides have rows of their own, so that the merged file is larger than either.
  UpdateStrengthTest() {
    const std::string numbers = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<800) ";
    BuildBoth(newOptions + "CREATE TABLE Words(Word TEXT(80));" + numbers +
                  "INSERT INTO Words SELECT 'a word of the release ' || i FROM n",
              oldOptions + numbers + "INSERT INTO Options(ID, Units) SELECT i+10, 'site' FROM n");
    Build(backup, 2, 2, "CREATE TABLE Older(A)");
    older = drives.Read(backup);
  }
  void Prepare() {
    drives.Arm(Fault::None, 0);
    drives.Write(working, before);
    drives.Write(backup, older);
  }
  bool IsMerged() {
    const std::string rows = Rows("Options");
    return std::count(rows.begin(), rows.end(), '\n') == 802 && rows.starts_with("3|US|-1|here\n7|SI|1|null\n");
  }
  // What must hold whatever went wrong.
  void ExpectOldOrNew() {
    EXPECT_TRUE(Updated() ? IsMerged() : Untouched());
    const auto kept = Open(backup);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->HasTable("Older") || kept->HasTable("SiteOnly"));
    EXPECT_TRUE(!Updated() || kept->HasTable("SiteOnly"));
  }
  void ExpectTheNextStartCompletesIt() {
    drives.Arm(Fault::None, 0);
    EXPECT_FALSE(Update().programEnds);
    EXPECT_TRUE(Boxes().empty() && Updated() && IsMerged() && drives.Read(backup) == before);
    for (const auto& folder : {mdb, bak})
      for (const auto& entry : std::filesystem::directory_iterator(drives.NativePath(folder)))
        EXPECT_EQ(entry.path().filename(), "Software.mdb");
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
};

TEST_F(UpdateStrengthTest, EachFileOperationMayFail) {
  for (const Fault fault : {Fault::FailOnce, Fault::FailFromThen}) {
    int acts = 1;
    for (int n = 1; n <= acts; ++n) {
      SCOPED_TRACE(std::to_string(static_cast<int>(fault)) + " at act " + std::to_string(n));
      Prepare();
      drives.Arm(fault, n);
      EXPECT_FALSE(Update().programEnds);
      acts = std::max(acts, drives.acts);
      ExpectOldOrNew();
      EXPECT_EQ(Updated(), Boxes().empty()) << "what fails is told";
      EXPECT_EQ(fakes.shell.notices.back(), "");
      ExpectTheNextStartCompletesIt();
    }
    EXPECT_GT(acts, 6);
  }
}

TEST_F(UpdateStrengthTest, AKillAtEachStepIsMadeGoodByTheNextStart) {
  for (const Fault fault : {Fault::KillBefore, Fault::KillAfter}) {
    bool killed = true;
    for (int n = 1; killed; ++n) {
      SCOPED_TRACE(std::to_string(static_cast<int>(fault)) + " at act " + std::to_string(n));
      Prepare();
      killed = UpdateAside([&] { drives.Arm(fault, n); });
      ExpectOldOrNew();
      EXPECT_TRUE(killed || (Updated() && n > 6));
      ExpectTheNextStartCompletesIt();
    }
  }
}

// No file may grow beyond some length: the copies fail, then the merge at one page after the other. The signal kills
// the process at that very write; without it the write fails.
TEST_F(UpdateStrengthTest, TheDiskMayBeFullAtAnyPage) {
  for (const auto handler : {SIG_IGN, SIG_DFL}) {
    bool failed = true;
    int failures = 0;
    for (rlim_t pages = 1; failed; ++pages) {
      SCOPED_TRACE(std::to_string(pages) + " pages, killed: " + std::to_string(handler == SIG_DFL));
      Prepare();
      failed = UpdateAside([&] {
        const rlimit none{0, 0}, longest{pages * 4096, pages * 4096};
        setrlimit(RLIMIT_CORE, &none);
        signal(SIGXFSZ, handler);
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
}

TEST_F(UpdateStrengthTest, AFileThatOthersUseIsNotReplaced) {
  for (const auto& [mode, sql] : {std::pair(OpenMode::ReadOnly, "BEGIN; SELECT * FROM Options"),
                                  {OpenMode::Shared, "BEGIN IMMEDIATE; INSERT INTO Options(ID) VALUES (500)"},
                                  {OpenMode::Shared, "SELECT * FROM Options"}}) { // reads, writes, could write
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
      Update();
      EXPECT_EQ(Boxes(), Words{working + " could not be removed! Update cancelled"});
      EXPECT_TRUE(Untouched() && drives.Read(backup) == before);
    }
    ExpectTheNextStartCompletesIt();
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

} // namespace trekor::tests
