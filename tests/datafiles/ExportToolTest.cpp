#include "Arguments.h"
#include "Exporter.h"
#include "WorkFolder.h"
#include "datafiles/DataFileFixture.h"
#include "dbupdate/FileCalls.h"
#include "support/Child.h"
#include "support/Places.h"

#include <chrono>
#include <csignal>
#include <cstdlib>

#include <sys/resource.h>

namespace trekor::tests {

namespace fs = std::filesystem;

// Two closed data files of one stretch each, A with two sessions, beside some files that are none.
struct Office {
  Office() {
    job.Begin("B");
    AddStretch();
    EXPECT_TRUE(job.Create("A"));
    AddStretch();
    job.files.CloseDataFile();
    job.state.file.DataFilePath = job.DataFile("A");
    EXPECT_TRUE(job.files.OpenDataFile());
    job.files.NewSession();
    job.files.AddObservation(job.setup.Observations(1));
    AddStretch();
    job.files.CloseDataFile();
    Write("TEXT.mdb", "no data file");
    Write("EMPTY.mdb", "");
    const std::string whole = Read("A.mdb");
    Write("CUT.mdb", whole.substr(0, whole.size() / 2));
    MakeTemplate(job.machine.drives, "Software", job.DataFile("FOREIGN"));
  }
  void AddStretch() {
    const auto from = job.Step("1.000"), to = job.Step("1.100");
    job.Value(from, to, 5, "4");
  }
  std::string Native(const std::string& name) { return job.machine.drives.NativePath("D:\\Data\\" + name); }
  std::string Read(const std::string& name) { return BytesOf(Native(name)); }
  void Write(const std::string& name, const std::string& bytes) { WriteBytes(Native(name), bytes); }
  Exit Export(const std::vector<std::string>& names) {
    Exporter exporter(wishes);
    Exit worst = Exit::Done;
    for (const std::string& name : names)
      worst = std::max(worst, exporter.Export(Native(name), written, told));
    return worst;
  }
  // Every name in the folder with what it holds, hidden ones too.
  std::map<std::string, std::string> Folder() {
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::directory_iterator(Native("")))
      all[entry.path().filename().string()] =
          entry.is_regular_file() ? Read(entry.path().filename().string()) : "no file";
    return all;
  }
  // A damaged page in the middle of a file that is otherwise whole: its registrations begin there.
  void MakeHole() {
    const auto database = Database::Open(Native("A.mdb"), OpenMode::ReadOnly);
    const std::string page = RowsOf(*database, "SELECT rootpage FROM sqlite_master WHERE name='Registrations'");
    Write("HOLE.mdb", Read("A.mdb").replace(4096 * (std::stoul(page) - 1), 4096, 4096, '\xA5'));
  }
  Job job;
  Arguments wishes;
  std::string written, told;
  rlim_t fileLimit = RLIM_INFINITY; // bytes that a file may hold: beyond it writing fails as on a full disk
};

TEST(ExportTool, WritesOneFileBesideEachDataFileAndChangesNothingElse) {
  Office office;
  const std::string before = office.Read("A.mdb");
  EXPECT_EQ(office.Export({"A.mdb", "B.mdb"}), Exit::Done);
  EXPECT_EQ(office.written, office.Native("A.TKR") + "\n" + office.Native("B.TKR") + "\n");
  EXPECT_EQ(office.told, "");
  EXPECT_NE(office.Read("A.TKR").find("5301,   1.000,   1.100,4,"), std::string::npos);
  EXPECT_TRUE(office.Read("A.mdb") == before);
  EXPECT_EQ(office.job.machine.drives.Files("D:\\Data", "A*"), (std::vector<std::string>{"A.mdb", "A.TKR"}));
}

// A killed export leaves its work folder; one that is at work there now keeps its own. Of another machine's nobody
// here can tell, so only its age counts.
TEST(ExportTool, ClearsWhatAKilledExportHasLeft) {
  Office office;
  Child atWork([&](Child& me) {
    const WorkFolder work(office.Native(""));
    WriteBytes(work.Path() / "A.TKR", "half");
    me.Sign();
    pause();
  });
  EXPECT_TRUE(atWork.Signed());
  const auto before = office.Folder();
  EXPECT_EQ(office.Export({"B.mdb"}), Exit::Done);
  EXPECT_EQ(office.Folder().size(), before.size() + 1) << "the comma file";
  atWork.Kill();
  EXPECT_EQ(office.Export({"B.mdb"}), Exit::Done);
  EXPECT_EQ(office.Folder().size(), before.size()) << "and no work folder";
  for (const char* name : {".trekor-export-1/A.TKR", ".trekor-export-2/A.TKR"})
    office.Write(name, "half");
  fs::last_write_time(office.Native(".trekor-export-1"), fs::file_time_type::clock::now() - std::chrono::hours(25));
  EXPECT_EQ(office.Export({"A.mdb"}), Exit::Done);
  EXPECT_FALSE(office.Folder().contains(".trekor-export-1"));
  EXPECT_EQ(office.Read(".trekor-export-2/A.TKR"), "half");
}

// Whatever call fails, wherever the export is killed: the comma file is the older one or the new one, and the next run
// leaves nothing beside it.
TEST(ExportTool, NeverLeavesHalfAFileUnderItsName) {
  Office office;
  EXPECT_EQ(office.Export({"A.mdb"}), Exit::Done);
  const std::string whole = office.Read("A.TKR"), data = office.Read("A.mdb");
  const std::size_t entries = office.Folder().size();
  for (const Fault fault : {Fault::FailOnce, Fault::DiskFull, Fault::DriveGone, Fault::Kill}) {
    bool reached = true;
    for (int n = 1; reached; ++n) {
      SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " + std::to_string(n));
      office.Write("A.TKR", "older");
      office.told.clear();
      Exit code = Exit::Refused;
      const auto faulty = [&] {
        const FileFaults faults(fault, n);
        code = office.Export({"A.mdb"});
        reached = faults.Count() >= n;
      };
      if (fault == Fault::Kill)
        reached = Child([&](Child&) { faulty(); }).Wait() != 0;
      else
        faulty();
      EXPECT_TRUE(office.Read("A.TKR") == whole || (office.Read("A.TKR") == "older" && code != Exit::Done));
      EXPECT_TRUE(code == Exit::Done || fault == Fault::Kill || office.told.find("A.mdb: ") != std::string::npos);
      EXPECT_EQ(office.Export({"A.mdb"}), Exit::Done);
      EXPECT_TRUE(office.Read("A.TKR") == whole && office.Read("A.mdb") == data);
      EXPECT_EQ(office.Folder().size(), entries);
      EXPECT_TRUE(reached || n > 6);
    }
  }
}

// The program itself, under a terminal and not.
TEST(ExportTool, ShowsProgressOnATerminalAlone) {
  Office office;
  const std::string program = BuildPlace("/bin/trekor-export"), file = office.Native("A.mdb");
  const auto run = [&](const std::string& command) {
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    return office.Read("told");
  };
  const std::string told = " >'" + office.Native("told") + "' 2>&1";
  EXPECT_EQ(run("'" + program + "' '" + file + "'" + told), office.Native("A.TKR") + "\n");
  const std::string seen = run("script -qec \"'" + program + "' '" + file + "'\" /dev/null" + told);
  EXPECT_NE(seen.find("A.mdb: 0 %"), std::string::npos) << seen;
}

TEST(ExportTool, KeepsSessionsApartInAnotherFolderUnderTheWishedHead) {
  Office office;
  ASSERT_TRUE(ReadArguments({"--keep", "--units=us", "--station-unit", "4", "--operator", "Office", "--setup", "Summer",
                             "--out", office.Native("OUT"), "x.mdb"},
                            office.wishes, office.told));
  office.Write("OUT/A-02.TKR", "older");
  EXPECT_EQ(office.Export({"A.mdb"}), Exit::Done);
  EXPECT_EQ(office.job.machine.drives.Files("D:\\Data\\OUT", "*.*"),
            (std::vector<std::string>{"A-01.TKR", "A-02.TKR"}));
  const std::string text = office.Read("OUT/A-02.TKR");
  EXPECT_NE(text.find("5002,\"TREKOR  \",\"Summer  \",\"STANDARD\"\r\n5003,\"Office  \"\r\n5010,1,0,1,0,1,1,0,5,"),
            std::string::npos);
  EXPECT_NE(office.told.find("stored in km and written as feet"), std::string::npos);
}

TEST(ExportTool, GoesOnBehindFilesThatCannotBeReadAndSaysWhatTheyAre) {
  struct Case {
    const char *file, *words;
    Exit code;
  };
  for (const Case& bad :
       {Case{"TEXT.mdb", "not a data file", Exit::NotOpened}, Case{"EMPTY.mdb", "not a data file", Exit::NotOpened},
        Case{"FOREIGN.mdb", "lacks the tables", Exit::NotOpened}, Case{"MISSING.mdb", "no such file", Exit::NotOpened},
        Case{"A.TKR", "does not end in .mdb", Exit::NotOpened}, Case{"CUT.mdb", "damaged", Exit::Damaged},
        Case{"HOLE.mdb", "damaged", Exit::Damaged}, Case{"OPEN.mdb", "in use", Exit::NotOpened},
        Case{"LOG.mdb", "in use", Exit::NotOpened}}) {
    Office office;
    office.MakeHole();
    EXPECT_TRUE(office.job.Create("OPEN"));
    // Another program's, which rests and writes beside the file: what is copied while it folds its log is neither old
    // nor new.
    office.Write("LOG.mdb", office.Read("A.mdb"));
    const auto open = Database::Open(office.Native("LOG.mdb"), OpenMode::Shared);
    EXPECT_TRUE(open->Execute("PRAGMA journal_mode=WAL; CREATE TABLE More(ID)"));
    auto before = office.Folder();
    EXPECT_EQ(office.Export({bad.file, "B.mdb"}), bad.code) << bad.file;
    EXPECT_EQ(std::count(office.told.begin(), office.told.end(), '\n'), 1) << office.told;
    EXPECT_NE(office.told.find(bad.words), std::string::npos) << office.told;
    EXPECT_EQ(office.written, office.Native("B.TKR") + "\n");
    before["B.TKR"] = office.Read("B.TKR");
    EXPECT_TRUE(office.Folder() == before) << bad.file;
  }
}

// The name of the comma file leads to a data file: this one, another, by a link of either kind or by the name itself.
TEST(ExportTool, NeverWritesOverADataFile) {
  for (const int way : {0, 1, 2, 3}) {
    Office office;
    const fs::path mdb = office.Native("A.mdb"), comma = office.Native("A.TKR");
    if (way < 2)
      fs::create_symlink(office.Native(way == 0 ? "A.mdb" : "B.mdb"), comma);
    else if (way == 2)
      fs::create_hard_link(office.Native("B.mdb"), comma);
    else {
      fs::rename(mdb, comma);
      fs::create_symlink(comma, mdb);
    }
    const auto before = office.Folder();
    EXPECT_EQ(office.Export({"A.mdb"}), Exit::Refused) << way;
    EXPECT_NE(office.told.find("a data file is in the way"), std::string::npos) << office.told;
    EXPECT_TRUE(office.Folder() == before) << way;
  }
}

// As a killed program leaves it: the rows are in the log. One file lost its log on the way to the office.
TEST(ExportTool, ReadsALeftLogWithoutTouchingTheDataFileOrItsFolder) {
  Office office;
  EXPECT_TRUE(office.job.Create("LIVE"));
  office.AddStretch();
  office.Write("KILLED.mdb", office.Read("LIVE.mdb"));
  office.Write("ALONE.mdb", office.Read("LIVE.mdb"));
  office.Write("KILLED.mdb-wal", office.Read("LIVE.mdb-wal"));
  office.job.files.CloseDataFile();
  auto before = office.Folder();
  ASSERT_NE(before["KILLED.mdb-wal"], "");
  fs::permissions(office.Native("KILLED.mdb"), fs::perms::owner_read);
  EXPECT_EQ(office.Export({"KILLED.mdb", "ALONE.mdb"}), Exit::Done) << office.told;
  before["KILLED.TKR"] = office.Read("KILLED.TKR");
  EXPECT_NE(before["KILLED.TKR"].find("5301,   1.000,   1.100,4,"), std::string::npos);
  EXPECT_TRUE(office.Folder() == before);
}

// Of the files of one data file all are put in their places or none, and what stood there stays.
TEST(ExportTool, LeavesNoHalfFileAndSaysWhatStandsInTheWay) {
  struct Case {
    const char* words;
    Exit code;
    std::function<void(Office&)> arrange;
  };
  for (const Case& c : std::vector<Case>{
           {"a folder is in the way", Exit::Refused, [](Office& o) { fs::create_directory(o.Native("A-02.TKR")); }},
           {"no file is in the way", Exit::Refused,
            [](Office& o) { fs::create_symlink("/dev/full", o.Native("A-02.TKR")); }},
           {"may not be replaced", Exit::Refused,
            [](Office& o) {
              o.Write("A-02.TKR", "kept");
              fs::permissions(o.Native("A-02.TKR"), fs::perms::owner_read);
            }},
           {"no such folder", Exit::Refused, [](Office& o) { o.wishes.out = o.Native("NONE"); }},
           {"the disk is full", Exit::DiskFull, [](Office& o) { o.fileLimit = 1000; }},
       }) {
    Office office;
    office.wishes.join = false;
    office.Write("A-01.TKR", "older");
    c.arrange(office);
    const auto before = office.Folder();
    rlimit rest{};
    getrlimit(RLIMIT_FSIZE, &rest);
    const rlimit limit{office.fileLimit, rest.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(office.Export({"A.mdb"}), c.code);
    setrlimit(RLIMIT_FSIZE, &rest);
    EXPECT_NE(office.told.find(c.words), std::string::npos) << office.told;
    EXPECT_EQ(office.written, "");
    EXPECT_TRUE(office.Folder() == before) << c.words;
  }
}

TEST(ExportTool, RefusesWordsThatItDoesNotKnowAndTwoFilesThatWouldBecomeOne) {
  using Words = std::vector<std::string>;
  Arguments wishes;
  std::string error;
  const auto read = [&](const Words& words) {
    wishes = {};
    error.clear();
    const bool good = ReadArguments(words, wishes, error);
    EXPECT_EQ(good, error.empty()) << testing::PrintToString(words) << error;
    return good;
  };
  for (const Words& words : {Words{},
                             {"--station-unit", "6", "a.mdb"},
                             {"--station-unit"},
                             {"--units", "EU", "a.mdb"},
                             {"--joined", "a.mdb"},
                             {"--out"},
                             {"--keep"}})
    EXPECT_FALSE(read(words)) << testing::PrintToString(words);
  for (const Words& words :
       {Words{"--out", "x", "a/R.mdb", "b/r.MDB"}, {"a/R.mdb", "./a/b/../R.mdb"}, {"R.mdb", "--keep", "R .mdb"}}) {
    EXPECT_FALSE(read(words));
    EXPECT_EQ(error, wishes.files[0] + " and " + wishes.files[1] + " would become one comma file");
  }
  EXPECT_TRUE(read({"a/R.mdb", "b/R.mdb"}));
  EXPECT_TRUE(read({"--keep", "a.mdb", "--join", "--", "--b.mdb"}));
  EXPECT_TRUE(wishes.join) << "the last word counts";
  EXPECT_EQ(wishes.files, (Words{"a.mdb", "--b.mdb"}));
}

} // namespace trekor::tests
