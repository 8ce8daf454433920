#include "platform_os/FileDrives.h"
#include "platform_os/ProgramFolder.h"
#include "support/Case.h"
#include "support/Child.h"
#include "support/Files.h"

#include <algorithm>

namespace trekor::tests {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class FileDrivesTest : public testing::Test {
protected:
  fs::path Native(const std::string& below) const { return folder / "drives" / below; }
  void Write(const std::string& below, const std::string& bytes) { WriteBytes(Native(below), bytes); }
  std::string Read(const std::string& below) { return BytesOf(Native(below)); }
  // Everything below the drives, so that a stray file shows.
  Names Everything() const {
    Names names;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      if (entry.is_regular_file())
        names.push_back(entry.path().lexically_relative(folder).string());
    std::sort(names.begin(), names.end());
    return names;
  }
  const TestFolder temporary;
  const fs::path folder = temporary.path;
  FileDrives drives{folder / "drives"};
};

TEST_F(FileDrivesTest, NamesAreFoundWhateverTheirCaseAndNeverLeadOutOfTheirDrive) {
  Write("C/Data/Road.MDB", "x");
  WriteBytes(folder / "outside.txt", "secret");
  for (const Case c : {"C:\\Data\\Road.MDB -> C/Data/Road.MDB", "c:\\DATA\\road.mdb -> C/Data/Road.MDB",
                       "C:/data/ROAD.mdb -> C/Data/Road.MDB", "C:\\data\\New Name.Txt -> C/Data/New Name.Txt",
                       "C:\\.\\data\\\\x\\..\\road.mdb -> C/Data/Road.MDB", "C:\\..\\outside.txt -> C/outside.txt",
                       "..\\..\\..\\outside.txt -> C/outside.txt", "\\temp.txt -> C/temp.txt",
                       "sub\\a.txt -> C/Trekor/sub/a.txt", "D:\\a.txt -> D/a.txt"})
    EXPECT_EQ(drives.NativePath(c.given), Native(c.wanted).string()) << c.line;
  fs::create_directories(folder / "nobody's");
  fs::current_path(folder / "nobody's");
  for (const std::string& bad : {std::string(), std::string("C:\\a\0b", 6), std::string("\\\\server\\share\\a"),
                                 std::string("/:\\tmp"), std::string(".:\\a"), std::string("1:")}) {
    EXPECT_EQ(drives.NativePath(bad), "");
    EXPECT_FALSE(drives.FileExists(bad) || drives.FolderExists(bad) || drives.MakeFolder(bad) ||
                 drives.DeleteFile(bad) || drives.ReplaceFile("C:\\Data\\Road.MDB", bad) ||
                 drives.CopyFile("C:\\Data\\Road.MDB", bad));
  }
  fs::current_path("/");
  EXPECT_EQ(Everything(), (Names{"drives/C/Data/Road.MDB", "outside.txt"}));
}

// Only what was looked for in vain is missing; what could not be looked for may be there.
TEST_F(FileDrivesTest, AFileIsMissingOnlyForCertain) {
  Write("C/Data/Road.MDB", "x");
  fs::create_symlink("gone.mdb", Native("C/Data/Link.mdb"));
  for (const Case c : {"C:\\data\\ROAD.mdb -> no", "C:\\Data\\Other.mdb -> yes", "C:\\data -> no",
                       "C:\\Data\\link.MDB -> no", "C:\\None\\a.mdb -> no", "Q:\\a.mdb -> no", "1:\\a.mdb -> no"})
    EXPECT_EQ(drives.FileMissing(c.given), c.wanted == "yes") << c.line;
}

TEST_F(FileDrivesTest, StandInNoCurrentFolderWhateverTheVariablesSay) {
  const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "/";
  for (const char* variable : {"HOME", "TREKOR_DRIVES", "XDG_DATA_HOME"})
    ::unsetenv(variable);
  EXPECT_TRUE(native::DrivesRoot().is_absolute());
  ::setenv("XDG_DATA_HOME", "data", 1);
  EXPECT_TRUE(native::DrivesRoot().is_absolute());
  ::unsetenv("XDG_DATA_HOME");
  ::setenv("HOME", home.c_str(), 1);
}

TEST_F(FileDrivesTest, OnlyLettersAreDrivesAndNoneIsMade) {
  fs::create_directories(Native("d"));
  for (const char letter : {'.', '/', '1', ':', '\0'})
    EXPECT_FALSE(drives.DriveExists(letter)) << letter;
  for (const char* missing : {"Q:", "q:\\", "Q:\\a\\..", "Q:\\Roads", "\\..\\.."})
    EXPECT_EQ(drives.MakeFolder(missing), missing[0] == '\\') << missing;
  FileDrives(Native("")).MakeFolder("Q:"); // the variable may end in a slash
  EXPECT_FALSE(drives.Install(folder / "drives", "Q:\\Roads\\a.txt"));
  EXPECT_FALSE(fs::exists(Native("Q")) || fs::exists(Native("q")));
  EXPECT_TRUE(drives.MakeFolder("D:\\"));
  EXPECT_TRUE(drives.DriveExists('C')); // made at the first start
  EXPECT_TRUE(drives.DriveExists('D'));
  EXPECT_FALSE(drives.DriveExists('E'));
}

// A medium is a folder or a link named by its letter. Taken out, it leaves the link or nothing, and no folder takes its
// place.
TEST_F(FileDrivesTest, AMediumIsADriveWhileItIsThere) {
  fs::create_directories(folder / "media/stick/Roads");
  for (const char* name : {"E", "e"}) {
    fs::create_directory_symlink(folder / "media/stick", Native(name));
    EXPECT_TRUE(drives.DriveExists('E') && drives.DriveExists('e') && drives.MakeFolder("E:\\ROADS\\North"));
    EXPECT_TRUE(drives.FolderExists("e:\\roads\\north") && fs::exists(folder / "media/stick/Roads/North"));
    Write("C/a.txt", "a");
    EXPECT_TRUE(drives.CopyFile("C:\\a.txt", "E:\\Roads\\a.txt"));
    fs::rename(folder / "media/stick", folder / "pulled out");
    EXPECT_FALSE(drives.DriveExists('E') || drives.FolderExists("E:\\Roads") || drives.MakeFolder("E:\\") ||
                 drives.MakeFolder("E:\\Roads") || drives.CopyFile("C:\\a.txt", "E:\\a.txt") ||
                 drives.FileMissing("E:\\Roads\\b.txt"));
    EXPECT_FALSE(fs::exists(folder / "media/stick"));
    fs::rename(folder / "pulled out", folder / "media/stick");
    fs::remove(Native(name));
  }
}

TEST_F(FileDrivesTest, ACopyReplacesItsTargetWholeOrNotAtAll) {
  Write("C/from.vdb", "new content");
  Write("C/old.mdb", "old");
  fs::permissions(Native("C/from.vdb"), fs::perms::owner_read); // as shipped files often are
  EXPECT_TRUE(drives.CopyFile("C:\\FROM.VDB", "C:\\Old.mdb"));
  EXPECT_EQ(Read("C/old.mdb"), "new content");
  EXPECT_TRUE(drives.SyncFile("C:\\OLD.mdb"));
  EXPECT_FALSE(drives.SyncFile("C:\\nothing.vdb"));
  EXPECT_TRUE(drives.DeleteFile("C:\\old.mdb")); // the copy can be written again
  EXPECT_FALSE(drives.CopyFile("C:\\nothing.vdb", "C:\\copy.mdb"));
  EXPECT_FALSE(drives.CopyFile("C:\\from.vdb", "C:\\no\\such\\copy.mdb"));
  fs::permissions(Native("C/from.vdb"), fs::perms::owner_write, fs::perm_options::add);
  EXPECT_FALSE(drives.CopyFile("C:\\from.vdb", "C:\\From.vdb"));
  EXPECT_EQ(Everything(), Names{"drives/C/from.vdb"});
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
    steps.push_back((fs::is_directory(path) ? "folder " : BytesOf(path) + " ") + BytesOf(target));
    return FileDrives::OnDisk(path) && static_cast<int>(steps.size()) != failsAt;
  }
};

TEST_F(FileDrivesTest, ACopyIsOnTheDiskBeforeTheOlderOneAndItsLogGo) {
  const auto logs = {"-wal", "-shm", "-journal"};
  WatchedDrives watched(folder / "drives");
  watched.target = Native("C/road.mdb");
  Write("C/from.mdb", "new");
  Write("C/road.mdb", "old");
  for (const std::string log : logs)
    Write("C/road.mdb" + log, "rows of the older file");
  watched.failsAt = 1; // a failing disk: nothing has happened
  EXPECT_FALSE(watched.CopyFile("C:\\from.mdb", "C:\\ROAD.MDB"));
  EXPECT_EQ(Read("C/road.mdb"), "old");
  EXPECT_EQ(Everything().size(), 5U) << "the older file keeps its log, and no work file stays";
  EXPECT_TRUE(watched.CopyFile("C:\\from.mdb", "C:\\ROAD.MDB"));
  EXPECT_EQ(watched.steps, (Names{"new old", "new old", "folder new"})) << "one failed, one done";
  EXPECT_EQ(Everything().size(), 2U) << "no log";

  // A log that can't be removed would be played into the copy.
  Write("C/road.mdb-wal/kept", "");
  Write("C/from.mdb", "newer");
  EXPECT_FALSE(watched.CopyFile("C:\\from.mdb", "C:\\road.mdb"));
  EXPECT_EQ(Read("C/road.mdb"), "new");
  fs::remove_all(Native("C/road.mdb-wal"));

  // ReplaceFile ends in the same way.
  const std::string work = Drives::WorkPath("C:\\road.mdb");
  WriteBytes(watched.NativePath(work), "merged");
  EXPECT_EQ(drives.Files("C:\\", "*.*"), (Names{"from.mdb", "road.mdb"})) << "not listed";
  watched.steps.clear();
  watched.failsAt = 2; // the name is perhaps not on the disk
  EXPECT_FALSE(watched.ReplaceFile(work, "C:\\road.mdb"));
  EXPECT_EQ(watched.steps, (Names{"merged new", "folder merged"}));
}

// The program is killed again and again while it copies.
TEST_F(FileDrivesTest, WhatAKilledCopyLeavesGoesAtTheNextCopy) {
  const std::string old(1 << 20, 'o'), content(std::size_t{32} << 20, 'n');
  Write("D/from.mdb", content);
  Write("E/road.mdb", old);
  const auto leftover = [&] {
    return std::distance(fs::directory_iterator(Native("E")), {}) > (fs::exists(Native("E/road.mdb")) ? 1 : 0);
  };
  Child copier([&](Child&) { drives.CopyFile("D:\\from.mdb", "E:\\road.mdb"); });
  while (!leftover() && !copier.Ended()) {
  }
  copier.Kill();
  EXPECT_TRUE(Read("E/road.mdb") == old || Read("E/road.mdb") == content) << "never half a file";
  Write("E/.trekor-1.part", "of a run before");
  Write("E/.trekor-new.part-wal", "and its log");
  Write("E/.trekor-my.part.mdb", "a job of that name");
  EXPECT_EQ(drives.Files("E:\\", "*.*"), (Names{".trekor-my.part.mdb", "road.mdb"}));
  EXPECT_TRUE(drives.CopyFile("D:\\from.mdb", "E:\\" + std::string(251, 'x') + ".mdb"));
  fs::remove(Native("E/.trekor-my.part.mdb"));
  fs::remove(Native("E") / (std::string(251, 'x') + ".mdb"));
  EXPECT_FALSE(leftover());
}

TEST_F(FileDrivesTest, AReadOnlyFileStaysUntilItsMarkIsTaken) {
  Write("C/a.txt", "a");
  Write("C/b.txt", "b");
  fs::permissions(Native("C/a.txt"), fs::perms::owner_read);
  EXPECT_FALSE(drives.DeleteFile("C:\\a.txt"));
  EXPECT_FALSE(drives.CopyFile("C:\\b.txt", "C:\\a.txt"));
  EXPECT_EQ(Read("C/a.txt"), "a");
  drives.ClearReadOnly("C:\\A.TXT");
  EXPECT_TRUE(drives.CopyFile("C:\\b.txt", "C:\\a.txt"));
  EXPECT_TRUE(drives.DeleteFile("C:\\a.txt"));
}

TEST_F(FileDrivesTest, ListingsAreByNameAndByPattern) {
  for (const std::string name : {"b.MDB", "A.mdb", "c.tkr", "note", ".hidden", "å1.mdb"})
    Write("C/L/" + name, "");
  fs::create_directories(Native("C/L/sub.mdb"));
  for (const auto& [pattern, names] : {std::pair("*.mdb", Names{"A.mdb", "b.MDB", "å1.mdb"}),
                                       {"*.*", {".hidden", "A.mdb", "b.MDB", "c.tkr", "note", "å1.mdb"}},
                                       {"?.MDB", {"A.mdb", "b.MDB"}},
                                       {"?1.mdb", {"å1.mdb"}},
                                       {"NOTE.*", {"note"}},
                                       {".*", {".hidden"}}})
    EXPECT_EQ(drives.Files("C:\\l", pattern), names) << pattern;
  EXPECT_EQ(drives.Files("C:\\none", "*.*"), Names{});
  EXPECT_EQ(drives.Folders("C:\\l"), Names{"sub.mdb"});
}

TEST_F(FileDrivesTest, TheProgramsFolderIsFilledOnceForEachRelease) {
  const fs::path shipped = folder / "share";
  for (const std::string file : {"Software.vdb", "HardWare.vdb", "Graphics/pothole.png", "Audio/Tones/D1.wav"})
    WriteBytes(shipped / file, "first " + file);
  // What failed is tried again at the next start.
  Write("C/Trekor/Graphics", "a file where a folder should be");
  fs::create_directories(Native("C/Trekor/Software.vdb/a folder where a file should be"));
  EXPECT_FALSE(FillProgramFolder(drives, shipped, "1.0.0"));
  fs::remove(Native("C/Trekor/Graphics"));
  fs::remove_all(Native("C/Trekor/Software.vdb"));
  for (const std::string& name : Everything())
    EXPECT_EQ(name.find(".part"), std::string::npos) << name;
  ASSERT_TRUE(FillProgramFolder(drives, shipped, "1.0.0"));
  EXPECT_EQ(Read("C/Trekor/Graphics/pothole.png"), "first Graphics/pothole.png");
  EXPECT_EQ(Read("C/Trekor/Software.vdb"), "first Software.vdb");
  EXPECT_EQ(Read("C/Trekor/Audio/Tones/D1.wav"), "first Audio/Tones/D1.wav");
  EXPECT_EQ(Read("C/Veldmark/Trekor/VDB/Hardware.vdb"), "first HardWare.vdb");
  EXPECT_TRUE(drives.FolderExists("C:\\Veldmark\\Parcels\\MDB"));

  // Later starts leave alone what somebody changed there.
  Write("C/Trekor/Graphics/pothole.png", "own");
  ASSERT_TRUE(FillProgramFolder(drives, shipped, "1.0.0"));
  EXPECT_EQ(Read("C/Trekor/Graphics/pothole.png"), "own");

  // The next release brings its files again, whatever the case of the names that are there.
  fs::rename(Native("C/Trekor/Graphics"), Native("C/Trekor/GRAPHICS"));
  WriteBytes(shipped / "Software.vdb", "second");
  ASSERT_TRUE(FillProgramFolder(drives, shipped, "1.1.0"));
  EXPECT_EQ(Read("C/Trekor/Software.vdb"), "second");
  EXPECT_EQ(Read("C/Trekor/GRAPHICS/pothole.png"), "first Graphics/pothole.png");
  EXPECT_FALSE(fs::exists(Native("C/Trekor/Graphics")));

  // So does a change of what is shipped, though neither the release nor a length tells it.
  WriteBytes(shipped / "Software.vdb", "thirds");
  ASSERT_TRUE(FillProgramFolder(drives, shipped, "1.1.0"));
  EXPECT_EQ(Read("C/Trekor/Software.vdb"), "thirds");
}

} // namespace trekor::tests
