// Whole recorded drives. An expected file is rebuilt only by TREKOR_REBUILD_EXPECTED=1, and the commit says why.
#include "drives/DriveRunner.h"
#include "support/Databases.h"
#include "support/Places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace trekor::tests {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Recorded() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(SourcePlace("/tests/drives")))
    if (entry.path().extension() == ".drive")
      names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

class RecordedDrive : public testing::TestWithParam<std::string> {};

TEST_P(RecordedDrive, LeavesExactlyWhatItLeftBefore) {
  const fs::path base = fs::path(SourcePlace("/tests/drives")) / GetParam();
  const fs::path expectedPath = base.string() + ".expected";
  DriveRunner runner(BuildPlace("/share/trekor"));
  const std::string actual = runner.Play(BytesOf(base.string() + ".drive"));
  if (std::getenv("TREKOR_REBUILD_EXPECTED"))
    std::ofstream(expectedPath, std::ios::binary) << actual;
  const std::string expected = BytesOf(expectedPath);
  ASSERT_FALSE(expected.empty()) << "no " << expectedPath;
  EXPECT_EQ(actual, expected);
}

INSTANTIATE_TEST_SUITE_P(Drives, RecordedDrive, testing::ValuesIn(Recorded()),
                         [](const auto& drive) { return drive.param; });

} // namespace

} // namespace trekor::tests
