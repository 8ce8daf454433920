#include "platform_qt/FileDrives.h"
#include "platform_qt/ProgramFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>
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
  const struct {
    const char *path, *native;
  } cases[] = {
      {"C:\\Data\\Road.MDB", "C/Data/Road.MDB"},
      {"c:\\DATA\\road.mdb", "C/Data/Road.MDB"},
      {"C:/data/ROAD.mdb", "C/Data/Road.MDB"},
      {"C:\\data\\New Name.Txt", "C/Data/New Name.Txt"},
      {"C:\\.\\data\\\\x\\..\\road.mdb", "C/Data/Road.MDB"},
      {"C:\\..\\..\\outside.txt", "C/outside.txt"},
      {"..\\..\\..\\outside.txt", "C/outside.txt"},
      {"\\temp.txt", "C/temp.txt"},
      {"sub\\a.txt", "C/Trekor/sub/a.txt"},
      {"D:\\a.txt", "D/a.txt"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(drives->NativePath(c.path), Native(c.native).string()) << c.path;
  for (const std::string& bad : {std::string(), std::string("C:\\a\0b", 6), std::string("\\\\server\\share\\a")}) {
    EXPECT_EQ(drives->NativePath(bad), "");
    EXPECT_FALSE(drives->FileExists(bad) || drives->MakeFolder(bad) || drives->DeleteFile(bad));
    EXPECT_FALSE(drives->CopyFile("C:\\Data\\Road.MDB", bad));
  }
}

TEST_F(DrivesTest, OnlyFoldersOfOneLetterAreDrives) {
  fs::create_directories(Native("d"));
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
  EXPECT_EQ(drives->Files("C:\\l", "*.*"), (Names{"A.mdb", "b.MDB", "c.tkr", "note", "å1.mdb"}));
  EXPECT_EQ(drives->Files("C:\\l", "?.MDB"), (Names{"A.mdb", "b.MDB"}));
  EXPECT_EQ(drives->Files("C:\\l", "?1.mdb"), (Names{"å1.mdb"}));
  EXPECT_EQ(drives->Files("C:\\l", ".*"), Names{});
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
