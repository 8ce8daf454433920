#include "support/Places.h"
#include "templates/Share.h"

#include <cstdlib>

namespace trekor::tests {

using Names = std::vector<std::string>;

int MakeTemplate(const std::string& out, const std::string& texts) {
  return std::system((BuildPlace("/templates/make_template ") + out + " " + texts).c_str());
}

const Names Files = {"Trekor.vdb",   "Software.vdb", "Messages.vdb", "Observations.vdb",
                     "DataFile.vdb", "Sections.vdb", "HardWare.vdb"};

// Bytes 16 to 19 of the file: page size, then the two format numbers, which are 1 for a file that needs no helpers.
TEST(Templates, ArePlainFilesOfOnePageSizeAndOfOneVersionThatIsNeverTheOneForNoUpdate) {
  for (const auto& file : Files) {
    EXPECT_EQ(RowsOf(*OpenShared(file), "SELECT Major, Minor FROM Version"), "1|0\n") << file;
    EXPECT_EQ(BytesOf(Share(file)).substr(16, 4), std::string("\x10\x00\x01\x01", 4)) << file;
  }
}

TEST(MakeTemplate, GivesTheSameBytesAgain) {
  const TestFolder folder;
  ASSERT_EQ(MakeTemplate(folder.File("again.vdb"), SourcePlace("/templates/DataFile.sql")), 0);
  EXPECT_EQ(BytesOf(folder.File("again.vdb")), BytesOf(Share("DataFile.vdb")));
}

TEST(MakeTemplate, RefusesAFaultAndLeavesNoFile) {
  for (const std::string sql :
       {"CREATE TABLE A(x);\nINSERT INTO A VALUES (1, 2);", "CREATE TABLE A(x", "SELECT \"no name\";"}) {
    const TestFolder folder;
    WriteBytes(folder.File("fault.sql"), sql);
    EXPECT_NE(MakeTemplate(folder.File("out.vdb"), folder.File("fault.sql") + " 2>" + folder.File("words")), 0) << sql;
    EXPECT_NE(BytesOf(folder.File("words")).find("fault.sql:"), std::string::npos) << sql;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 2) << sql;
  }
}

TEST(DataFileTemplate, HasNoIndexButTheKeysAndNoRows) {
  const auto database = OpenShared("DataFile.vdb");
  ASSERT_TRUE(database);
  EXPECT_FALSE(database->OpenTable("Version")->Get("Type").IsNull());
  for (const auto& [table, key] : {std::pair("Sessions", "SessionID"),
                                   {"Observations", "ObsParID"},
                                   {"Stations", "StationID"},
                                   {"Registrations", "RegID"}}) {
    const auto indexes = database->Indexes(table);
    ASSERT_EQ(indexes.size(), 1u) << table;
    EXPECT_TRUE(indexes[0].primary && indexes[0].fields == Names{key}) << table;
    EXPECT_TRUE(database->Fields(table).at(0).autoNumber) << table;
    EXPECT_EQ(database->OpenTable(table)->RecordCount(), 0) << table;
  }
}

TEST(DataFileTemplate, HoldsWhateverTheVocabularyHolds) {
  const auto database = OpenShared("DataFile.vdb"), vocabulary = OpenShared("Observations.vdb");
  ASSERT_TRUE(database && vocabulary);
  const auto size = [](const Database& in, const char* table, const std::string& field) {
    for (const auto& f : in.Fields(table))
      if (f.name == field && f.type == FieldType::Text)
        return f.size;
    return -1;
  };
  const char* const fields[][4] = {{"Observations", "ObsName", "ObsLinguistic", "ObsNameDisp"},
                                   {"Observations", "ObsName", "ObsLinguistic", "ObsNameFile"},
                                   {"Observations", "ObsAbrv", "ObsLinguistic", "ObsAbrvDisp"},
                                   {"Observations", "ObsAbrv", "ObsLinguistic", "ObsAbrvFile"},
                                   {"Observations", "TextUtil", "Observations", "TextFile"},
                                   {"Sessions", "TestSetup", "SetupNames", "SetupName"}};
  for (const auto& [table, to, fromTable, from] : fields) {
    EXPECT_GE(size(*database, table, to), size(*vocabulary, fromTable, from)) << from;
    EXPECT_GT(size(*vocabulary, fromTable, from), 0) << from;
  }
  EXPECT_GE(size(*database, "Sessions", "GUID"), 36);
  EXPECT_GE(size(*database, "Registrations", "RegData"), 255); // what a prompt takes
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
