#include "support/Databases.h"
#include "templates/Share.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>

namespace trekor::tests {

namespace {

using Names = std::vector<std::string>;

int MakeTemplate(const std::string& out, const std::string& texts) {
  return std::system((TREKOR_BINARY_DIR "/templates/make_template " + out + " " + texts).c_str());
}

const Names Files = {"Trekor.vdb",   "Software.vdb", "Messages.vdb", "Observations.vdb",
                     "DataFile.vdb", "Sections.vdb", "HardWare.vdb"};

int SizeOf(const Database& database, const std::string& table, const std::string& field) {
  for (const auto& f : database.Fields(table))
    if (f.name == field)
      return f.type == FieldType::Text ? f.size : -1;
  return -1;
}

} // namespace

TEST(Templates, HaveOneVersionThatIsNeverTheOneForNoUpdate) {
  for (const auto& file : Files) {
    SCOPED_TRACE(file);
    const auto database = OpenShared(file);
    ASSERT_TRUE(database);
    const auto version = database->OpenTable("Version");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->RecordCount(), 1);
    EXPECT_EQ(version->Get("Major"), FieldValue(1));
    EXPECT_EQ(version->Get("Minor"), FieldValue(0));
  }
}

// Bytes 16 to 19 of the file: page size, then the two format numbers, which are 1 for a file that needs no helpers.
TEST(Templates, ArePlainFilesOfOnePageSize) {
  for (const auto& file : Files)
    EXPECT_EQ(BytesOf(Share(file)).substr(16, 4), std::string("\x10\x00\x01\x01", 4)) << file;
}

TEST(MakeTemplate, GivesTheSameBytesAgain) {
  const TestFolder folder;
  ASSERT_EQ(MakeTemplate(folder.File("again.vdb"), TREKOR_SOURCE_DIR "/templates/DataFile.sql"), 0);
  EXPECT_EQ(BytesOf(folder.File("again.vdb")), BytesOf(Share("DataFile.vdb")));
}

TEST(MakeTemplate, RefusesAFaultAndLeavesNoFile) {
  for (const std::string sql :
       {"CREATE TABLE A(x);\nINSERT INTO A VALUES (1, 2);", "CREATE TABLE A(x", "SELECT \"no name\";"}) {
    const TestFolder folder;
    std::ofstream(folder.path / "fault.sql") << sql;
    EXPECT_NE(MakeTemplate(folder.File("out.vdb"), folder.File("fault.sql") + " 2>" + folder.File("words")), 0) << sql;
    EXPECT_NE(BytesOf(folder.File("words")).find("fault.sql:"), std::string::npos) << sql;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 2) << sql;
  }
}

TEST(DataFileTemplate, HasNoIndexButTheKeysAndNoRows) {
  const auto database = OpenShared("DataFile.vdb");
  ASSERT_TRUE(database);
  EXPECT_FALSE(database->OpenTable("Version")->Get("Type").IsNull());
  const std::map<std::string, std::string> keys = {
      {"Sessions", "SessionID"}, {"Observations", "ObsParID"}, {"Stations", "StationID"}, {"Registrations", "RegID"}};
  for (const auto& [table, key] : keys) {
    SCOPED_TRACE(table);
    const auto indexes = database->Indexes(table);
    ASSERT_EQ(indexes.size(), 1u);
    EXPECT_TRUE(indexes[0].primary);
    EXPECT_EQ(indexes[0].fields, Names{key});
    EXPECT_TRUE(database->Fields(table).at(0).autoNumber);
    EXPECT_EQ(database->OpenTable(table)->RecordCount(), 0);
  }
}

TEST(DataFileTemplate, HoldsWhateverTheVocabularyHolds) {
  const auto database = OpenShared("DataFile.vdb"), vocabulary = OpenShared("Observations.vdb");
  ASSERT_TRUE(database && vocabulary);
  const auto fits = [&](const char* table, const char* from, const char* to) {
    EXPECT_GE(SizeOf(*database, "Observations", to), SizeOf(*vocabulary, table, from)) << from;
    EXPECT_GT(SizeOf(*vocabulary, table, from), 0) << from;
  };
  for (const char* from : {"ObsNameDisp", "ObsNameFile"})
    fits("ObsLinguistic", from, "ObsName");
  for (const char* from : {"ObsAbrvDisp", "ObsAbrvFile"})
    fits("ObsLinguistic", from, "ObsAbrv");
  fits("Observations", "TextFile", "TextUtil");
  EXPECT_GE(SizeOf(*database, "Sessions", "TestSetup"), SizeOf(*vocabulary, "SetupNames", "SetupName"));
  EXPECT_GE(SizeOf(*database, "Sessions", "GUID"), 36);
  EXPECT_GE(SizeOf(*database, "Registrations", "RegData"), 255); // what a prompt takes
}

// An update knows rows by the first field of a primary key; two fields in one would write all rows of an id over each
// other.
TEST(VocabularyTemplate, GivesTwoFieldKeysNoPrimaryIndex) {
  const auto database = OpenShared("Observations.vdb");
  ASSERT_TRUE(database);
  for (const char* table : {"Setups", "ObsLinguistic"}) {
    const auto indexes = database->Indexes(table);
    ASSERT_EQ(indexes.size(), 1u) << table;
    EXPECT_TRUE(indexes[0].unique && !indexes[0].primary && indexes[0].fields.size() == 2) << table;
  }
}

} // namespace trekor::tests
