#include "datafiles/CopyFiles.h"
#include "datafiles/NewNames.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace trekor::tests {

TEST(NextFreeName, CountsTheTrailingDigitsOn) {
  FakeDrives drives;
  for (const char* name : {"ROAD09", "ROAD10", "ROAD99", "ROAD", "ROAD1", "7", "A1.B"})
    drives.Write("D:\\Roads.9\\A\\" + std::string(name) + ".mdb", "x");
  drives.Write("D:\\Roads.9\\A\\PLAIN", "x");
  for (const auto& [name, free] :
       {std::pair("ROAD09.mdb", "ROAD11.mdb"), std::pair("road99.MDB", "road100.MDB"),
        std::pair("ROAD.mdb", "ROAD2.mdb"), std::pair("7.mdb", "8.mdb"), std::pair("A1.B.mdb", "A1.B1.mdb"),
        std::pair("PLAIN", "PLAIN1"), std::pair("NEW007.mdb", "NEW007.mdb")})
    EXPECT_EQ(NextFreeName("D:\\Roads.9\\A\\" + std::string(name), drives), "D:\\Roads.9\\A\\" + std::string(free));
}

TEST(NewGuid, IsThirtyTwoDigitsOrFourPartsOrNothing) {
  FakeProcess process;
  EXPECT_EQ(NewGuid(false, process), "00112233445566778899AABBCCDDEEFF");
  EXPECT_EQ(NewGuid(true, process), "00112233-4455-6677-8899AABBCCDDEEFF");
  process.guidFails = true;
  EXPECT_EQ(NewGuid(false, process), "");
}

using Names = std::vector<std::string>;

TEST(CopyFiles, CopiesTheFilesOfOneNameAndTellsWhichStandWhole) {
  FakeDrives drives;
  for (const char* name : {"JOB.TKR", "JOB.mdb", "job.txt", "JOB", "JOB-02.TKR", "JOBS.mdb"})
    drives.Write("D:\\Data\\" + std::string(name), name);
  drives.Write("E:\\Data\\JOB.mdb", "an older copy");
  drives.failing = {"E:\\DATA\\JOB.TKR"};
  EXPECT_EQ(CopyFiles("D:\\Data", "Job", "E:\\Data", drives), (Names{"JOB", "JOB.mdb", "job.txt"}));
  EXPECT_EQ(drives.Files("E:\\Data", "*.*"), (Names{"JOB", "JOB.mdb", "job.txt"}));
  EXPECT_EQ(drives.Read("E:\\Data\\JOB.mdb"), "JOB.mdb");
  CopyFiles("D:\\Data", "JOB-02", "E:\\Data", drives);
  EXPECT_EQ(drives.Files("E:\\Data", "*.*").size(), 4U);
  EXPECT_EQ(CopyFiles("D:\\Data", "", "E:\\Data", drives), Names{}); // no comma file was ever written
  for (const char* nowhere : {"", "Q:\\Data", "D:\\Data", "E:\\None"})
    EXPECT_EQ(CopyFiles("D:\\Data", "JOB", nowhere, drives), Names{}) << nowhere;
  EXPECT_EQ(drives.Files("E:\\Data", "*.*").size(), 4U);

  // A full disk has left rows in the log: the file alone is not the whole job.
  drives.Write("D:\\Data\\JOB.mdb-wal", "rows");
  drives.failing.emplace_back("E:\\DATA\\JOB.MDB-WAL");
  EXPECT_EQ(CopyFiles("D:\\Data", "JOB", "E:\\Data", drives), (Names{"JOB", "job.txt"}));
  drives.failing.pop_back();
  EXPECT_EQ(CopyFiles("D:\\Data", "JOB", "E:\\Data", drives), (Names{"JOB", "JOB.mdb", "JOB.mdb-wal", "job.txt"}));
  drives.Write("D:\\Data\\JOB.mdb-journal", "pages");
  drives.failing.emplace_back("E:\\DATA\\JOB.MDB-JOURNAL");
  EXPECT_EQ(CopyFiles("D:\\Data", "JOB", "E:\\Data", drives), (Names{"JOB", "JOB.mdb-wal", "job.txt"}));
  drives.DeleteFile("D:\\Data\\JOB.mdb-journal");
  WriteBytes(drives.NativePath("D:\\Data") + "/job.MDB", "a second job"); // one copy for two
  EXPECT_EQ(CopyFiles("D:\\Data", "JOB", "E:\\Data", drives), (Names{"JOB", "JOB.mdb-wal", "job.txt"}));
}

} // namespace trekor::tests
