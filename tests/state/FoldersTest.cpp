#include "state/Folders.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace trekor::tests {
namespace {

struct PlacedProcess : FakeProcess {
  std::string ProgramFolder() override { return folder; }
  std::string ComputerName() override { return "INSPECTION-VEHICLE-12"; }
  float WindowsVersion() override { return version; }
  std::string folder = "D:\\Apps\\Trekor";
  float version = 2006; // the oldest one that is served
};

class FoldersTest : public ::testing::Test {
protected:
  void Root() { FolderRoots(folders, platform); }
  FakePlatform machine;
  FakeDrives& drives = machine.drives;
  PlacedProcess process;
  Platform platform{machine.clock, machine.pump, machine.socket, machine.sound, machine.keyboard,
                    drives,        process,      machine.shell,  machine.screen};
  FolderPaths folders;
};

TEST_F(FoldersTest, TheTreeStandsOnTheDriveOfTheProgram) {
  drives.MakeFolders("D:\\Veldmark\\Trekor\\VDB");
  for (const std::string start : {"first", "later"}) {
    drives.Write("D:\\Veldmark\\Trekor\\VDB\\HardWare.vdb", start);
    Root();
    EXPECT_EQ(drives.Read("D:\\Veldmark\\Trekor\\MDB\\7707-XXX.mdb"), start) << "copied anew";
    EXPECT_EQ(folders.HardwareCreated, start == "first");
    drives.Write("D:\\Veldmark\\Trekor\\MDB\\trekor.mdb", "texts");
  }
  EXPECT_EQ(folders.AppPath + " " + folders.ParentPath, "D:\\Apps\\Trekor D:\\Apps");
  EXPECT_EQ(folders.SharedMdbFolder, "D:\\Veldmark\\Parcels\\MDB");
  EXPECT_EQ(folders.ComputerName, "INSPECTION-VEHI");
}

TEST_F(FoldersTest, DriveCIsTriedWhenItsOwnRefuses) {
  drives.MakeFolders("D:\\Apps");
  drives.MakeFolders("C:\\Veldmark\\Trekor");
  Root();
  EXPECT_FALSE(drives.FolderExists("D:\\Veldmark\\Trekor\\MDB")) << "one level only";
  EXPECT_TRUE(drives.FolderExists("C:\\Veldmark\\Trekor\\MDB"));
  EXPECT_EQ(folders.MdbFolder, "D:\\Veldmark\\Trekor\\MDB");
}

TEST_F(FoldersTest, NothingIsMadeOnSystemsThatAreNotServed) {
  drives.MakeFolders("D:\\Veldmark\\Trekor");
  process.version = 2005;
  Root();
  EXPECT_FALSE(drives.FolderExists("D:\\Veldmark\\Trekor\\MDB"));
}

TEST_F(FoldersTest, TheProgramMayStandInTheRootOfADrive) {
  process.folder = "D:\\";
  Root();
  EXPECT_EQ(folders.AppPath + " " + folders.ParentPath + " " + folders.RootFolder, "D: D: D:\\Veldmark\\Trekor");
}

TEST_F(FoldersTest, ALanguageWithoutAFileSpeaksEnglish) {
  Root();
  AudioFolders(folders);
  const std::string audio = "D:\\Apps\\Trekor\\Audio\\";
  drives.MakeFolders(audio + "Dansk\\Old");
  const auto spoken = [&](const char* language) {
    LanguageAudioFolder(folders, language, drives);
    return folders.AudioLanguagePath;
  };
  EXPECT_EQ(spoken("Dansk"), audio + "English\\");
  drives.Write(audio + "Dansk\\D1.WAV", "x");
  EXPECT_EQ(spoken("Dansk"), audio + "Dansk\\");
  EXPECT_EQ(spoken("Suomi"), audio + "English\\");
}

} // namespace
} // namespace trekor::tests
