#include "Arguments.h"
#include "Exporter.h"
#include "datafiles/DataFileFixture.h"

#include <algorithm>
#include <filesystem>

namespace trekor::tests {
namespace {

namespace fs = std::filesystem;

// Two closed data files of one stretch each, A with two sessions, beside some files that are none.
struct Office {
  Office() {
    job.Offer(5, "Crack", "C", 1);
    for (const char* name : {"A", "B"}) {
      EXPECT_TRUE(job.Create(name));
      AddStretch();
    }
    job.files.CloseDataFile();
    job.state.file.DataFilePath = job.DataFile("A");
    EXPECT_TRUE(job.files.OpenDataFile());
    job.files.NewSession();
    job.files.AddObservation(job.setup.Observations(1));
    AddStretch();
    job.files.CloseDataFile();
    job.machine.drives.Write(job.DataFile("TEXT"), "no data file");
    const std::string whole = job.machine.drives.Read(job.DataFile("A"));
    job.machine.drives.Write(job.DataFile("CUT"), whole.substr(0, whole.size() / 2));
    MakeTemplate(job.machine.drives, "Software.sql", job.DataFile("FOREIGN"));
  }
  void AddStretch() {
    const auto from = job.Step("1.000"), to = job.Step("1.100");
    job.Value(from, to, 5, "4");
  }
  std::string Native(const std::string& name) { return job.machine.drives.NativePath("D:\\Data\\" + name); }
  std::string Read(const std::string& name) { return job.machine.drives.Read("D:\\Data\\" + name); }
  bool Export(const std::vector<std::string>& names) {
    Exporter exporter(wishes);
    bool all = true;
    for (const std::string& name : names)
      all = exporter.Export(Native(name), written, told) && all;
    return all;
  }
  Job job;
  Arguments wishes;
  std::string written, told;
};

TEST(ExportTool, WritesOneFileBesideEachDataFileAndChangesNothingElse) {
  Office office;
  const std::string before = office.Read("A.mdb");
  EXPECT_TRUE(office.Export({"A.mdb", "B.mdb"}));
  EXPECT_EQ(office.written, office.Native("A.TKR") + "\n" + office.Native("B.TKR") + "\n");
  EXPECT_EQ(office.told, "");
  EXPECT_NE(office.Read("A.TKR").find("5301,   1.000,   1.100,4,"), std::string::npos);
  EXPECT_TRUE(office.Read("A.mdb") == before);
  EXPECT_EQ(office.job.machine.drives.Files("D:\\Data", "A*"), (std::vector<std::string>{"A.mdb", "A.TKR"}));
}

TEST(ExportTool, KeepsSessionsApartInAnotherFolderUnderTheWishedHead) {
  Office office;
  ASSERT_TRUE(ReadArguments({"--keep", "--units=us", "--station-unit", "4", "--operator", "Office", "--setup", "Summer",
                             "--out", office.Native("OUT"), "x.mdb"},
                            office.wishes, office.told));
  fs::create_directory(office.Native("OUT"));
  office.job.machine.drives.Write("D:\\Data\\OUT\\A-02.TKR", "older");
  EXPECT_TRUE(office.Export({"A.mdb"}));
  EXPECT_EQ(office.job.machine.drives.Files("D:\\Data\\OUT", "*.*"),
            (std::vector<std::string>{"A-01.TKR", "A-02.TKR"}));
  const std::string text = office.Read("OUT\\A-02.TKR");
  EXPECT_NE(text.find("5002,\"TREKOR  \",\"Summer  \",\"STANDARD\"\r\n5003,\"Office  \"\r\n5010,1,0,1,0,1,1,0,5,"),
            std::string::npos);
  EXPECT_NE(office.told.find("stored in km and written as feet"), std::string::npos);
}

TEST(ExportTool, GoesOnBehindFilesThatCannotBeRead) {
  for (const char* bad : {"TEXT.mdb", "CUT.mdb", "FOREIGN.mdb", "MISSING.mdb", "A.TKR"}) {
    Office office;
    EXPECT_FALSE(office.Export({bad, "B.mdb"})) << bad;
    EXPECT_EQ(std::count(office.told.begin(), office.told.end(), '\n'), 1) << office.told;
    EXPECT_EQ(office.written, office.Native("B.TKR") + "\n");
  }
}

TEST(ExportTool, NeverWritesOverADataFile) {
  Office office;
  fs::create_symlink(office.Native("A.mdb"), office.Native("A.TKR"));
  const std::string before = office.Read("A.mdb");
  EXPECT_FALSE(office.Export({"A.mdb"}));
  EXPECT_TRUE(office.Read("A.mdb") == before);
}

TEST(ExportTool, RefusesWordsThatItDoesNotKnow) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                {"--station-unit", "6", "a.mdb"},
                                                {"--station-unit"},
                                                {"--units", "EU", "a.mdb"},
                                                {"--joined", "a.mdb"},
                                                {"--out"},
                                                {"--keep"}}) {
    Arguments wishes;
    std::string error;
    EXPECT_FALSE(ReadArguments(words, wishes, error));
    EXPECT_NE(error, "");
  }
  Arguments wishes;
  std::string error;
  EXPECT_TRUE(ReadArguments({"--keep", "a.mdb", "--join", "--", "--b.mdb"}, wishes, error)) << error;
  EXPECT_TRUE(wishes.join) << "the last word counts";
  EXPECT_EQ(wishes.files, (std::vector<std::string>{"a.mdb", "--b.mdb"}));
}

} // namespace
} // namespace trekor::tests
