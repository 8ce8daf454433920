#include "platform_os/FileDrives.h"
#include "platform_os/ProgramFolder.h"
#include "support/Case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace trekor {
namespace {

namespace fs = std::filesystem;

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

class DrivesTest : public testing::Test {
protected:
  DrivesTest() {
    fs::remove_all(folder);
    drives.emplace(folder / "drives");
  }
  ~DrivesTest() override {
    drives.reset();
    fs::remove_all(folder);
  }
  fs::path Native(const std::string& below) const { return folder / "drives" / below; }
  // Everything below the drives, so that a stray file shows.
  std::vector<std::string> Everything() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      if (entry.is_regular_file())
        names.push_back(entry.path().lexically_relative(folder).string());
    std::sort(names.begin(), names.end());
    return names;
  }
  fs::path folder = fs::temp_directory_path() / ("trekor-" + std::to_string(::getpid()) +
                                                 testing::UnitTest::GetInstance()->current_test_info()->name());
  std::optional<FileDrives> drives;
};

TEST_F(DrivesTest, NamesAreFoundWhateverTheirCaseAndNeverLeadOutOfTheirDrive) {
  Write(Native("C/Data/Road.MDB"), "x");
  Write(folder / "outside.txt", "secret");
  for (const tests::Case c : {"C:\\Data\\Road.MDB -> C/Data/Road.MDB", "c:\\DATA\\road.mdb -> C/Data/Road.MDB",
                              "C:/data/ROAD.mdb -> C/Data/Road.MDB", "C:\\data\\New Name.Txt -> C/Data/New Name.Txt",
                              "C:\\.\\data\\\\x\\..\\road.mdb -> C/Data/Road.MDB",
                              "C:\\..\\..\\outside.txt -> C/outside.txt", "..\\..\\..\\outside.txt -> C/outside.txt",
                              "\\temp.txt -> C/temp.txt", "sub\\a.txt -> C/Trekor/sub/a.txt", "D:\\a.txt -> D/a.txt"})
    EXPECT_EQ(drives->NativePath(c.given), Native(c.wanted).string()) << c.line;
  fs::create_directories(folder / "nobody's");
  fs::current_path(folder / "nobody's");
  for (const std::string& bad : {std::string(), std::string("C:\\a\0b", 6), std::string("\\\\server\\share\\a"),
                                 std::string("/:\\tmp"), std::string(".:\\a"), std::string("1:")}) {
    EXPECT_EQ(drives->NativePath(bad), "");
    EXPECT_FALSE(drives->FileExists(bad) || drives->FolderExists(bad) || drives->MakeFolder(bad));
    EXPECT_FALSE(drives->DeleteFile(bad) || drives->ReplaceFile("C:\\Data\\Road.MDB", bad));
    EXPECT_FALSE(drives->CopyFile("C:\\Data\\Road.MDB", bad));
  }
  fs::current_path("/");
  EXPECT_EQ(Everything(), (std::vector<std::string>{"drives/C/Data/Road.MDB", "outside.txt"}));
}

TEST_F(DrivesTest, StandInNoCurrentFolderWhateverTheVariablesSay) {
  const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "/";
  for (const char* variable : {"HOME", "TREKOR_DRIVES", "XDG_DATA_HOME"})
    ::unsetenv(variable);
  EXPECT_TRUE(native::DrivesRoot().is_absolute());
  ::setenv("HOME", home.c_str(), 1);
}

TEST_F(DrivesTest, OnlyLettersAreDrivesAndNoneIsMade) {
  fs::create_directories(Native("d"));
  for (const char letter : {'.', '/', '1', ':', '\0'})
    EXPECT_FALSE(drives->DriveExists(letter)) << letter;
  for (const char* missing : {"Q:", "q:\\", "Q:\\a\\..", "Q:\\Roads", "\\..\\.."})
    EXPECT_EQ(drives->MakeFolder(missing), missing[0] == '\\') << missing;
  FileDrives(Native("")).MakeFolder("Q:"); // the variable may end in a slash
  EXPECT_FALSE(drives->Install(folder / "drives", "Q:\\Roads\\a.txt"));
  EXPECT_FALSE(fs::exists(Native("Q")) || fs::exists(Native("q")));
  EXPECT_TRUE(drives->MakeFolder("D:\\"));
  EXPECT_TRUE(drives->DriveExists('C')); // made at the first start
  EXPECT_TRUE(drives->DriveExists('D'));
  EXPECT_FALSE(drives->DriveExists('E'));
}

TEST_F(DrivesTest, ACopyReplacesItsTargetWholeOrNotAtAll) {
  Write(Native("C/from.vdb"), "new content");
  Write(Native("C/old.mdb"), "old");
  fs::permissions(Native("C/from.vdb"), fs::perms::owner_read); // as shipped files often are
  EXPECT_TRUE(drives->CopyFile("C:\\FROM.VDB", "C:\\Old.mdb"));
  EXPECT_EQ(Read(Native("C/old.mdb")), "new content");
  EXPECT_TRUE(drives->SyncFile("C:\\OLD.mdb"));
  EXPECT_FALSE(drives->SyncFile("C:\\nothing.vdb"));
  EXPECT_TRUE(drives->DeleteFile("C:\\old.mdb")); // the copy can be written again
  EXPECT_FALSE(drives->CopyFile("C:\\nothing.vdb", "C:\\copy.mdb"));
  EXPECT_FALSE(drives->CopyFile("C:\\from.vdb", "C:\\no\\such\\copy.mdb"));
  EXPECT_FALSE(drives->CopyFile("C:\\from.vdb", "C:\\From.vdb"));
  fs::permissions(Native("C/from.vdb"), fs::perms::owner_write, fs::perm_options::add);
  EXPECT_EQ(Everything(), std::vector<std::string>{"drives/C/from.vdb"});
}

// What a copy brings onto the disk, and whether the target was still the older one by then.
class WatchedDrives : public FileDrives {
public:
  using FileDrives::FileDrives;
  fs::path target;
  std::vector<std::string> steps;
  int failsAt = -1;

protected:
  bool OnDisk(const fs::path& path) override {
    steps.push_back((fs::is_directory(path) ? "folder " : Read(path) + " ") + Read(target));
    return FileDrives::OnDisk(path) && static_cast<int>(steps.size()) != failsAt;
  }
};

TEST_F(DrivesTest, ACopyIsOnTheDiskBeforeTheOlderOneAndItsLogGo) {
  const auto logs = {"-wal", "-shm", "-journal"};
  WatchedDrives watched(folder / "drives");
  watched.target = Native("C/road.mdb");
  Write(Native("C/from.mdb"), "new");
  Write(watched.target, "old");
  for (const char* log : logs)
    Write(watched.target.string() + log, "rows of the older file");
  watched.failsAt = 1; // a failing disk: nothing has happened
  EXPECT_FALSE(watched.CopyFile("C:\\from.mdb", "C:\\ROAD.MDB"));
  EXPECT_EQ(Read(watched.target), "old");
  EXPECT_EQ(Everything().size(), 5U) << "the older file keeps its log, and no work file stays";
  EXPECT_TRUE(watched.CopyFile("C:\\from.mdb", "C:\\ROAD.MDB"));
  EXPECT_EQ(watched.steps, (std::vector<std::string>{"new old", "new old", "folder new"})) << "one failed, one done";
  for (const char* log : logs)
    EXPECT_FALSE(fs::exists(watched.target.string() + log)) << log;

  // A log that can't go would be played into the copy.
  Write(watched.target.string() + "-wal/kept", "");
  Write(Native("C/from.mdb"), "newer");
  EXPECT_FALSE(watched.CopyFile("C:\\from.mdb", "C:\\road.mdb"));
  EXPECT_EQ(Read(watched.target), "new");
  fs::remove_all(watched.target.string() + "-wal");

  // A successor that was built otherwise goes the same way.
  const std::string work = Drives::WorkPath("C:\\road.mdb");
  Write(watched.NativePath(work), "merged");
  EXPECT_TRUE(drives->Files("C:\\", "*.*") == (std::vector<std::string>{"from.mdb", "road.mdb"})) << "not listed";
  watched.steps.clear();
  watched.failsAt = 2; // the name is perhaps not on the disk
  EXPECT_FALSE(watched.ReplaceFile(work, "C:\\road.mdb"));
  EXPECT_EQ(watched.steps, (std::vector<std::string>{"merged new", "folder merged"}));
}

// The program is killed again and again while it copies.
TEST_F(DrivesTest, WhatAKilledCopyLeavesGoesAtTheNextCopy) {
  const std::string old(1 << 20, 'o'), content(std::size_t{32} << 20, 'n');
  Write(Native("D/from.mdb"), content);
  Write(Native("E/road.mdb"), old);
  const auto leftover = [&] {
    for (const auto& entry : fs::directory_iterator(Native("E")))
      if (entry.path().filename() != "road.mdb")
        return true;
    return false;
  };
  const pid_t copier = ::fork();
  if (copier == 0) {
    FileDrives(folder / "drives").CopyFile("D:\\from.mdb", "E:\\road.mdb");
    ::_exit(0);
  }
  int status = 0;
  while (!leftover() && ::waitpid(copier, &status, WNOHANG) == 0) {
  }
  ::kill(copier, SIGKILL);
  ::waitpid(copier, &status, 0);
  EXPECT_TRUE(Read(Native("E/road.mdb")) == old || Read(Native("E/road.mdb")) == content) << "never half a file";
  Write(Native("E/.trekor-1.part"), "of a run before");
  Write(Native("E/.trekor-new.part-wal"), "and its log");
  Write(Native("E/.trekor-my.part.mdb"), "a job of that name");
  EXPECT_EQ(drives->Files("E:\\", "*.*"), (std::vector<std::string>{".trekor-my.part.mdb", "road.mdb"}));
  EXPECT_TRUE(drives->CopyFile("D:\\from.mdb", "E:\\" + std::string(251, 'x') + ".mdb"));
  fs::remove(Native("E/.trekor-my.part.mdb"));
  fs::remove(Native("E") / (std::string(251, 'x') + ".mdb"));
  EXPECT_FALSE(leftover());
}

TEST_F(DrivesTest, AReadOnlyFileStaysUntilItsMarkIsTaken) {
  Write(Native("C/a.txt"), "a");
  Write(Native("C/b.txt"), "b");
  fs::permissions(Native("C/a.txt"), fs::perms::owner_read);
  EXPECT_FALSE(drives->DeleteFile("C:\\a.txt"));
  EXPECT_FALSE(drives->CopyFile("C:\\b.txt", "C:\\a.txt"));
  EXPECT_EQ(Read(Native("C/a.txt")), "a");
  drives->ClearReadOnly("C:\\A.TXT");
  EXPECT_TRUE(drives->CopyFile("C:\\b.txt", "C:\\a.txt"));
  EXPECT_TRUE(drives->DeleteFile("C:\\a.txt"));
}

TEST_F(DrivesTest, ListingsAreByNameAndByPattern) {
  for (const char* name : {"b.MDB", "A.mdb", "c.tkr", "note", ".hidden", "å1.mdb"})
    Write(Native("C/L") / name, "");
  fs::create_directories(Native("C/L/sub.mdb"));
  using Names = std::vector<std::string>;
  EXPECT_EQ(drives->Files("C:\\l", "*.mdb"), (Names{"A.mdb", "b.MDB", "å1.mdb"}));
  EXPECT_EQ(drives->Files("C:\\l", "*.*"), (Names{".hidden", "A.mdb", "b.MDB", "c.tkr", "note", "å1.mdb"}));
  EXPECT_EQ(drives->Files("C:\\l", "?.MDB"), (Names{"A.mdb", "b.MDB"}));
  EXPECT_EQ(drives->Files("C:\\l", "?1.mdb"), (Names{"å1.mdb"}));
  EXPECT_EQ(drives->Files("C:\\l", "NOTE.*"), Names{"note"});
  EXPECT_EQ(drives->Files("C:\\l", ".*"), Names{".hidden"});
  EXPECT_EQ(drives->Files("C:\\none", "*.*"), Names{});
  EXPECT_EQ(drives->Folders("C:\\l"), Names{"sub.mdb"});
}

TEST_F(DrivesTest, TheProgramsFolderIsFilledOnceForEachRelease) {
  const fs::path shipped = folder / "share";
  Write(shipped / "Software.vdb", "s1");
  Write(shipped / "HardWare.vdb", "h1");
  Write(shipped / "Graphics" / "pothole.png", "p1");
  Write(shipped / "Audio" / "Tones" / "D1.wav", "t1");
  ASSERT_TRUE(FillProgramFolder(*drives, shipped, "1.0.0"));
  EXPECT_EQ(Read(Native("C/Trekor/Software.vdb")), "s1");
  EXPECT_EQ(Read(Native("C/Trekor/Audio/Tones/D1.wav")), "t1");
  EXPECT_EQ(Read(Native("C/Veldmark/Trekor/VDB/Hardware.vdb")), "h1");
  EXPECT_TRUE(drives->FolderExists("C:\\Veldmark\\Parcels\\MDB"));

  // Later starts leave alone what somebody changed there.
  Write(Native("C/Trekor/Graphics/pothole.png"), "own");
  ASSERT_TRUE(FillProgramFolder(*drives, shipped, "1.0.0"));
  EXPECT_EQ(Read(Native("C/Trekor/Graphics/pothole.png")), "own");

  // The next release brings its files again, whatever the case of the names that are there.
  fs::rename(Native("C/Trekor/Graphics"), Native("C/Trekor/GRAPHICS"));
  Write(shipped / "Software.vdb", "second");
  ASSERT_TRUE(FillProgramFolder(*drives, shipped, "1.1.0"));
  EXPECT_EQ(Read(Native("C/Trekor/Software.vdb")), "second");
  EXPECT_EQ(Read(Native("C/Trekor/GRAPHICS/pothole.png")), "p1");
  EXPECT_FALSE(fs::exists(Native("C/Trekor/Graphics")));
}

TEST_F(DrivesTest, AFailedFillingIsTriedAgain) {
  const fs::path shipped = folder / "share";
  Write(shipped / "Graphics" / "a.png", "a");
  Write(Native("C/Trekor/Graphics"), "a file where a folder should be");
  EXPECT_FALSE(FillProgramFolder(*drives, shipped, "1.0.0"));
  fs::remove(Native("C/Trekor/Graphics"));
  EXPECT_TRUE(FillProgramFolder(*drives, shipped, "1.0.0"));
  EXPECT_EQ(Read(Native("C/Trekor/Graphics/a.png")), "a");
}

} // namespace
} // namespace trekor
