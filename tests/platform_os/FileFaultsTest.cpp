// Each call to the system may fail in a copy and in the filling of the program's folder: a full disk, a drive that is
// gone in the middle, a kill.
#include "dbupdate/FileCalls.h"
#include "platform_os/FileDrives.h"
#include "platform_os/ProgramFolder.h"
#include "support/Child.h"
#include "support/Files.h"

#include <optional>

namespace trekor::tests {

namespace fs = std::filesystem;

class FileFaultsTest : public testing::Test {
protected:
  // Does it again and again, with the first call failing, the second, and so on until one run needs fewer. `check`
  // hears whether the deed has told that all of it was done.
  static void AtEachCall(const std::function<void()>& prepare, const std::function<bool()>& deed,
                         const std::function<void(bool done)>& check) {
    for (const Fault fault : {Fault::FailOnce, Fault::DiskFull, Fault::DriveGone, Fault::Kill}) {
      bool reached = true;
      for (int n = 1; reached; ++n) {
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " + std::to_string(n));
        prepare();
        bool done = false;
        if (fault == Fault::Kill)
          reached = Killed(n, deed);
        else {
          const FileFaults faults(fault, n);
          done = deed();
          reached = faults.Count() >= n;
        }
        check(done);
        EXPECT_TRUE(reached || n > 4);
      }
    }
  }
  static bool Killed(int n, const std::function<bool()>& deed) {
    return Child([&](Child&) {
             const FileFaults faults(Fault::Kill, n);
             deed();
             _exit(0);
           }).Wait() != 0;
  }
  std::string Read(const std::string& below) { return BytesOf(folder / "drives" / below); }
  std::ptrdiff_t Entries(const std::string& below) {
    return std::distance(fs::directory_iterator(folder / "drives" / below), {});
  }
  const TestFolder temporary;
  const fs::path folder = temporary.path;
  FileDrives drives{folder / "drives"};
};

TEST_F(FileFaultsTest, ACopyThatFailsAnywhereLeavesTheOlderFileWhole) {
  const std::string old(5000, 'o'), content(9000, 'n');
  WriteBytes(folder / "drives/C/from.mdb", content);
  const auto copy = [&] { return drives.CopyFile("C:\\From.mdb", "E:\\Jobs\\road.mdb"); };
  AtEachCall([&] { WriteBytes(folder / "drives/E/Jobs/Road.mdb", old); }, copy,
             [&](bool done) {
               const std::string now = Read("E/Jobs/Road.mdb");
               EXPECT_TRUE(now == content || (now == old && !done));
               EXPECT_TRUE(copy() && Read("E/Jobs/Road.mdb") == content);
               EXPECT_EQ(Entries("E/Jobs"), 1) << "nothing is left over, nor made under another name";
             });
}

TEST_F(FileFaultsTest, AProgramFolderThatCouldNotBeFilledIsFilledAtTheNextStart) {
  const fs::path shipped = folder / "share";
  for (const std::string file : {"Software.vdb", "HardWare.vdb", "Graphics/pothole.png"})
    WriteBytes(shipped / file, "shipped " + file);
  const auto fill = [&] { return FillProgramFolder(drives, shipped, "1.0.0"); };
  AtEachCall(
      [&] {
        fs::remove(folder / "drives/C/Trekor/.release");
        WriteBytes(folder / "drives/C/Trekor/Software.vdb", "of the release before");
      },
      fill,
      [&](bool done) {
        const std::string now = Read("C/Trekor/Software.vdb");
        EXPECT_TRUE(now == "shipped Software.vdb" || (now == "of the release before" && !done));
        EXPECT_TRUE(fill());
        EXPECT_EQ(Read("C/Trekor/Software.vdb"), "shipped Software.vdb");
        EXPECT_EQ(Read("C/Trekor/Graphics/pothole.png"), "shipped Graphics/pothole.png");
        EXPECT_EQ(Read("C/Veldmark/Trekor/VDB/Hardware.vdb"), "shipped HardWare.vdb");
        EXPECT_EQ(Entries("C/Trekor") + Entries("C/Trekor/Graphics"), 5);
      });
}

} // namespace trekor::tests
