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
  float version = 2010;
};

class FolderTree : public ::testing::Test {
protected:
  void Root() { FolderRoots(folders, platform); }
  FakePlatform machine;
  PlacedProcess process;
  Platform platform{machine.clock,    machine.pump,   machine.socket, machine.sound,
                    machine.keyboard, machine.drives, process,        machine.shell};
  FolderPaths folders;
};

TEST_F(FolderTree, StandsOnTheDriveOfTheProgram) {
  machine.drives.MakeFolders("D:\\Veldmark\\Trekor\\VDB");
  machine.drives.Write("D:\\Veldmark\\Trekor\\VDB\\HardWare.vdb", "template");
  Root();
  EXPECT_EQ(folders.AppPath, "D:\\Apps\\Trekor");
  EXPECT_EQ(folders.ParentPath, "D:\\Apps");
  EXPECT_EQ(folders.SharedMdbFolder, "D:\\Veldmark\\Parcels\\MDB");
  EXPECT_EQ(folders.ComputerName, "INSPECTION-VEHI");
  EXPECT_TRUE(machine.drives.FolderExists(folders.MdbFolder));
  EXPECT_EQ(machine.drives.Read("D:\\Veldmark\\Trekor\\MDB\\7707-XXX.mdb"), "template");
  EXPECT_TRUE(folders.HardwareCreated);
}

TEST_F(FolderTree, KnowsALaterStartAndCopiesTheTemplateAgain) {
  machine.drives.MakeFolders("D:\\Veldmark\\Trekor\\VDB");
  machine.drives.MakeFolders("D:\\Veldmark\\Trekor\\MDB");
  machine.drives.Write("D:\\Veldmark\\Trekor\\VDB\\Hardware.vdb", "new");
  machine.drives.Write("D:\\Veldmark\\Trekor\\MDB\\7707-XXX.mdb", "old");
  machine.drives.Write("D:\\Veldmark\\Trekor\\MDB\\trekor.mdb", "texts");
  Root();
  EXPECT_FALSE(folders.HardwareCreated);
  EXPECT_EQ(machine.drives.Read("D:\\Veldmark\\Trekor\\MDB\\7707-XXX.mdb"), "new");
}

TEST_F(FolderTree, TriesDriveCWhenItsOwnRefuses) {
  machine.drives.MakeFolders("D:\\Apps");
  machine.drives.MakeFolders("C:\\Veldmark\\Trekor");
  Root();
  EXPECT_FALSE(machine.drives.FolderExists("D:\\Veldmark\\Trekor\\MDB")) << "one level only";
  EXPECT_TRUE(machine.drives.FolderExists("C:\\Veldmark\\Trekor\\MDB"));
  EXPECT_EQ(folders.MdbFolder, "D:\\Veldmark\\Trekor\\MDB");
}

TEST_F(FolderTree, MakesNothingOnSystemsThatAreNotServed) {
  machine.drives.MakeFolders("D:\\Veldmark\\Trekor");
  process.version = 2005;
  Root();
  EXPECT_FALSE(machine.drives.FolderExists("D:\\Veldmark\\Trekor\\MDB"));
}

TEST_F(FolderTree, HasAProgramInTheRootOfADrive) {
  process.folder = "D:\\";
  Root();
  EXPECT_EQ(folders.AppPath, "D:");
  EXPECT_EQ(folders.ParentPath, "D:");
  EXPECT_EQ(folders.RootFolder, "D:\\Veldmark\\Trekor");
}

TEST_F(FolderTree, SpeaksEnglishWhereALanguageHasNoFile) {
  Root();
  AudioFolders(folders);
  machine.drives.MakeFolders("D:\\Apps\\Trekor\\Audio\\Dansk\\Old");
  LanguageAudioFolder(folders, "Dansk", machine.drives);
  EXPECT_EQ(folders.AudioLanguagePath, "D:\\Apps\\Trekor\\Audio\\English\\");
  machine.drives.Write("D:\\Apps\\Trekor\\Audio\\Dansk\\D1.WAV", "x");
  LanguageAudioFolder(folders, "Dansk", machine.drives);
  EXPECT_EQ(folders.AudioLanguagePath, "D:\\Apps\\Trekor\\Audio\\Dansk\\");
  LanguageAudioFolder(folders, "Suomi", machine.drives);
  EXPECT_EQ(folders.AudioLanguagePath, folders.AudioEnglishPath);
}

} // namespace
} // namespace trekor::tests
