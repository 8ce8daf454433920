#include "templates/Share.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>

namespace trekor::tests {

namespace {

using Names = std::vector<std::string>;

std::string BytesOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

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

TEST(VocabularyTemplate, ShipsLookupsAlone) {
  const auto database = OpenShared("Observations.vdb");
  ASSERT_TRUE(database);
  for (const char* table : {"Languages", "Observations", "ObsLinguistic", "SetupNames", "Setups"})
    EXPECT_EQ(database->OpenTable(table)->RecordCount(), 0) << table;
  for (const char* table : {"DataTypes", "RegModes", "KeyingCodes"})
    EXPECT_GT(database->OpenTable(table)->RecordCount(), 0) << table;
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

TEST(VocabularyTemplate, ShowsTheDetailsOfAnItemThatWasJustAdded) {
  WritableCopy copy("Observations.vdb");
  ASSERT_TRUE(copy.database);
  const auto names = copy.database->OpenTable("ObsLinguistic"), items = copy.database->OpenTable("Observations"),
             setups = copy.database->OpenTable("Setups");
  ASSERT_TRUE(names->AddNew() && names->Set("LanguageID", 1) && names->Set("ObsCode", 7) && names->Update());
  ASSERT_TRUE(items->AddNew() && items->Set("LanguageID", 1) && items->Set("ObsCode", 7));
  const auto id = items->Get("ObsParID");
  ASSERT_TRUE(items->Update());
  const auto details = copy.database->OpenQuery(
      "SELECT * FROM Observations, ObsLinguistic,DataTypes, KeyingCodes, RegModes WHERE ObsParID=" + id.Text() +
      " AND Observations.ObsCode=ObsLinguistic.ObsCode AND Observations.LanguageID=ObsLinguistic.LanguageID"
      " AND Observations.DataType=DataTypes.DataTypeID AND Observations.RegModeCode=RegModes.RegModeCode");
  ASSERT_TRUE(details && !details->Eof());
  EXPECT_EQ(details->Get("ObsNameDisp").Text(), " ");
  ASSERT_TRUE(setups->AddNew());
  EXPECT_EQ(setups->Get("KeyCode"), FieldValue(-1));
  EXPECT_GT(setups->Get("GridPosition").Integer(), 1000); // behind all others until they are numbered anew
}

TEST(SoftwareTemplate, StartsMetricAndFindsTheRowSavedLastFirst) {
  WritableCopy copy("Software.vdb");
  ASSERT_TRUE(copy.database);
  const auto options = copy.database->OpenTable("Options");
  ASSERT_TRUE(options && options->SetIndex("ID"));
  options->MoveFirst();
  EXPECT_EQ(options->Get("Units").Text(), "Metric");
  EXPECT_EQ(options->Get("FileUnits").Text(), "Metric");
  for (const char* on : {"MDB", "TKR", "AssistanceVoice", "DrivingSide"})
    EXPECT_EQ(options->Get(on), FieldValue(1)) << on;
  for (const char* off : {"StationUnit", "FileStationUnit", "DataColVoice", "GeographicFormat"})
    EXPECT_EQ(options->Get(off), FieldValue(0)) << off;
  ASSERT_TRUE(options->AddNew() && options->Set("Units", "US") && options->Update());
  options->MoveFirst();
  EXPECT_EQ(options->Get("Units").Text(), "US");
}

TEST(TextTemplates, AnswerByNumberAndByWordInAnyCase) {
  const auto messages = OpenShared("Messages.vdb"), texts = OpenShared("Trekor.vdb");
  ASSERT_TRUE(messages && texts);
  const auto message = messages->OpenTable("Messages"), word = texts->OpenTable("Text");
  ASSERT_TRUE(message->SetIndex("ID") && message->Seek(401));
  EXPECT_FALSE(message->Get("English").Text().empty());
  ASSERT_TRUE(word->SetIndex("TextID") && word->Seek("W_ENTER"));
  EXPECT_EQ(word->Get("English").Text(), "Enter");
}

} // namespace trekor::tests
