#include "services/Pictures.h"

#include "support/Databases.h"

#include <gtest/gtest.h>

namespace trekor {

namespace {

// Writes a picture file of a wanted length; "none" has no picture, and for "full" there is no room.
class PictureShell : public tests::FakeShell {
public:
  PictureFile SavePicture(const std::string& key, const std::string& nativePath) override {
    if (key == "none")
      return PictureFile::NoPicture;
    if (key == "full")
      return PictureFile::Failed;
    last.clear();
    for (int i = 0; i < std::stoi(key); ++i)
      last += static_cast<char>('a' + i % 23);
    return std::ofstream(nativePath, std::ios::binary) << last ? PictureFile::Written : PictureFile::Failed;
  }
  std::string last;
};

class PicturesTest : public testing::Test {
protected:
  PicturesTest() {
    folders.AppPath = "C:\\Trekor";
    fakes.drives.MakeFolders(folders.AppPath);
    tests::MakeDatabase(fakes.drives, "C:\\Trekor\\Data.mdb",
                        "CREATE TABLE Observations(ObsIcon LONGBINARY, ObsName TEXT)");
    database = Database::Open(fakes.drives.NativePath("C:\\Trekor\\Data.mdb"), OpenMode::Shared);
    row = database->OpenTable("Observations");
  }
  void Save(const std::string& picture, const std::string& field = "ObsIcon") {
    row->AddNew();
    told |= !dbSaveImage(row.get(), field, picture, folders, platform, !told);
  }

  tests::FakePlatform fakes;
  PictureShell shell;
  Platform platform{fakes.clock,  fakes.pump,    fakes.socket, fakes.sound, fakes.keyboard,
                    fakes.drives, fakes.process, shell,        fakes.screen};
  FolderPaths folders;
  std::unique_ptr<Database> database;
  std::unique_ptr<Recordset> row;
  bool told = false; // only the first failure shows a box
};

} // namespace

TEST_F(PicturesTest, ThePictureIsFollowedByAByteForTheRemainderAndOneForEachBlock) {
  const std::tuple<const char*, std::size_t, int> cases[] = {{"0", 1, 0},    {"100", 1, 0},  {"8191", 1, 0},
                                                             {"8192", 2, 1}, {"8193", 2, 1}, {"20000", 3, 2}};
  for (const auto& [length, surplus, pumps] : cases) {
    SCOPED_TRACE(length);
    const int pumped = fakes.pump.count;
    Save(length);
    const Bytes stored = row->Get("ObsIcon").Blob();
    Bytes wanted(shell.last.begin(), shell.last.end());
    wanted.insert(wanted.end(), surplus, 0);
    EXPECT_EQ(stored, wanted);
    EXPECT_EQ(fakes.pump.count - pumped, pumps);
    EXPECT_EQ(fakes.drives.Read("C:\\Trekor\\temp.bin"), shell.last) << "the work file stays, replaced each time";
  }
  EXPECT_TRUE(shell.boxes.empty());
}

TEST_F(PicturesTest, WithoutRowOrPictureNothingHappens) {
  dbSaveImage(nullptr, "ObsIcon", "100", folders, platform);
  Save("");
  Save("none");
  EXPECT_TRUE(row->Get("ObsIcon").IsNull());
  EXPECT_TRUE(shell.boxes.empty());
}

TEST_F(PicturesTest, AFailureIsToldInABoxAndEndsTheOperation) {
  Save("100", "NoSuchField");
  Save("100", "ObsName"); // not told again
  EXPECT_EQ(shell.boxes.size(), 1U);
  told = false;
  Save("full"); // though an empty file could be made
  folders.AppPath = "C:\\Missing";
  told = false;
  Save("100");
  ASSERT_EQ(shell.boxes.size(), 3U);
  EXPECT_EQ(shell.boxes[2], shell.boxes[1]);
  EXPECT_EQ(shell.boxes[0], "dbSaveImage: The field takes no picture (3265)");
  EXPECT_EQ(shell.boxes[1], "dbSaveImage: Work file can't be written (75)");
  EXPECT_TRUE(row->Get("ObsIcon").IsNull());
}

} // namespace trekor
