// Recordsets over tables: order, seeking, adding, editing, deleting, what a field type means.
#include "StoreFixture.h"

namespace trekor::tests {

constexpr char roadTables[] =
    "CREATE TABLE Stations(StationID INTEGER PRIMARY KEY AUTOINCREMENT, Station REAL, Lane TEXT(5) COLLATE NOCASE,"
    " StationUnit SMALLINT DEFAULT 3, Time DATETIME, Height SINGLE, Known BOOLEAN, Icon LONGBINARY);"
    "CREATE TABLE Form(Name TEXT(40) COLLATE NOCASE, Left INTEGER);"
    "CREATE UNIQUE INDEX Form_NameIndex ON Form(Name COLLATE NOCASE);"
    "CREATE TABLE Options(ID INTEGER PRIMARY KEY AUTOINCREMENT, Units TEXT);"
    "CREATE INDEX Options_ID ON Options(ID DESC);"
    "CREATE TABLE Setups(SetupID SMALLINT, ObsParID INTEGER, GridPosition SMALLINT);"
    "CREATE UNIQUE INDEX Setups_Place ON Setups(SetupID, ObsParID DESC);";

class RecordsetTest : public StoreFixture {
protected:
  void SetUp() override { Make(roadTables); }
  // A form of some controls, ordered by an index or as they came.
  std::unique_ptr<Recordset> Form(const Texts& names, const std::string& index = "") {
    auto form = Table("Form");
    for (const auto& name : names)
      EXPECT_TRUE(Add(*form, {{"Name", name}, {"Left", 1}}));
    EXPECT_TRUE(index.empty() || form->SetIndex(index));
    return form;
  }
};

TEST_F(RecordsetTest, AutomaticKeysAreKnownBeforeUpdateAndNeverComeBack) {
  const auto stations = Table("stations");
  EXPECT_TRUE(stations->Eof());
  for (int wanted = 1; wanted <= 3; ++wanted) {
    ASSERT_TRUE(stations->AddNew());
    EXPECT_EQ(stations->Get("StationID"), FieldValue(wanted));
    ASSERT_TRUE(stations->Update());
  }
  stations->MoveLast();
  EXPECT_EQ(stations->Get("StationID"), FieldValue(3));
  ASSERT_TRUE(stations->Delete());
  for (const auto& [mode, key] : {std::pair(OpenMode::Shared, 4), {OpenMode::ExclusiveDurable, 5}}) {
    Reopen(mode);
    const auto again = Table("Stations");
    ASSERT_TRUE(again->AddNew());
    EXPECT_EQ(again->Get("StationID"), FieldValue(key));
    EXPECT_FALSE(again->Set("StationID", 99)) << "such a number can't be written";
    ASSERT_TRUE(again->Update());
    EXPECT_EQ(again->RecordCount(), key - 1);
  }
  // The merge of an update moves a counter on in this way, or asks for a number.
  Reopen(OpenMode::Shared);
  auto rows = Table("Stations");
  for (int wanted = 6; wanted <= 40; ++wanted) {
    ASSERT_TRUE(Add(*rows));
    rows->MoveLast();
    ASSERT_EQ(rows->Get("StationID"), FieldValue(wanted));
    ASSERT_TRUE(rows->Delete());
  }
  Reopen(OpenMode::Exclusive);
  rows = Table("Stations");
  ASSERT_TRUE(rows->AddNew(2000000000) && rows->Update());
  rows->MoveLast();
  EXPECT_EQ(rows->Get("StationID"), FieldValue(2000000000));
  rows->AddNew(5);
  EXPECT_EQ(rows->Get("StationID"), FieldValue(2000000001));
}

TEST_F(RecordsetTest, MoveLastFindsTheLastRowWhateverHappenedInBetween) {
  Reopen(OpenMode::Exclusive);
  const auto stations = Table("Stations"), other = Table("Stations");
  for (int i = 1; i <= 3; ++i) {
    Add(*stations, {{"Station", i * 0.5}});
    stations->MoveLast();
    EXPECT_EQ(stations->Get("Station"), FieldValue(i * 0.5));
  }
  other->MoveLast();
  ASSERT_TRUE(other->Delete());
  stations->MoveLast();
  EXPECT_EQ(stations->Get("Station"), FieldValue(1.0));
  EXPECT_TRUE(database->Begin() && Add(*stations));
  database->Rollback();
  stations->MoveLast();
  EXPECT_EQ(stations->Get("StationID"), FieldValue(2));
}

TEST_F(RecordsetTest, FieldsKeepWhatTheirTypeMeans) {
  const struct {
    const char* field;
    FieldValue given;
    bool fits;
    FieldValue held;
  } cases[] = {{"StationUnit", 32767, true, 32767},
               {"StationUnit", 32768, false, 3},
               {"StationUnit", -32768, true, -32768},
               {"StationUnit", 2.5, true, 2},
               {"StationUnit", 3.5, true, 4},
               {"StationUnit", " 12 ", true, 12},
               {"StationUnit", "12a", false, 3},
               {"StationUnit", "", false, 3},
               {"StationUnit", "inf", false, 3},
               {"StationUnit", FieldValue(), true, {}},
               {"Station", "1.5", true, 1.5},
               {"Station", "x", false, {}},
               {"Height", 0.1, true, 0.1F},
               {"Height", -3.402823E+38, true, -3.402823E+38F},
               {"Height", 1e39, false, {}},
               {"Lane", "right lane", true, "right"},
               {"Lane", "æøåÆØÅ", true, "æøåÆØ"},
               {"Lane", 12, true, "12"},
               {"Lane", Bytes{1}, false, {}},
               {"Known", 7, true, -1},
               {"Known", 0, true, 0},
               {"Icon", "text", false, {}},
               {"Time", "2024-02-29 23:59:59", true, "2024-02-29 23:59:59"},
               {"Time", "2023-02-29 23:59:59", false, {}},
               {"Time", "29.02.2024", false, {}},
               {"Time", "2024-02-28 24:00:00", false, {}},
               {"Icon", Bytes{0, 255}, true, Bytes{0, 255}},
               {"Nothing", 1, false, {}}};
  const auto rows = Table("Stations");
  for (const auto& each : cases) {
    SCOPED_TRACE(std::string(each.field) + " = " + each.given.Text());
    ASSERT_TRUE(rows->AddNew());
    EXPECT_EQ(rows->Set(each.field, each.given), each.fits);
    EXPECT_EQ(rows->Get(each.field), each.held);
    ASSERT_TRUE(rows->Update());
    rows->MoveLast();
    EXPECT_EQ(rows->Get(each.field), each.held);
  }
}

TEST_F(RecordsetTest, NothingIsWrittenOutsideOfAddNewAndEdit) {
  const auto rows = Table("Stations");
  EXPECT_FALSE(rows->Set("Lane", "x"));
  EXPECT_FALSE(rows->Update());
  EXPECT_FALSE(rows->Edit()) << "no row";
  EXPECT_FALSE(rows->Delete());
  rows->AddNew();
  rows->Set("Lane", "x");
  rows->CancelUpdate();
  EXPECT_FALSE(rows->Update());
  rows->AddNew();
  rows->MoveFirst(); // a move drops the buffer
  EXPECT_FALSE(rows->Update());
  EXPECT_EQ(rows->RecordCount(), 0);
}

TEST_F(RecordsetTest, ChunksAddUpBehindWhatIsThere) {
  const auto rows = Table("Stations");
  const unsigned char first[] = {1, 2}, second[] = {3};
  rows->AddNew();
  EXPECT_TRUE(rows->AppendChunk("Icon", first, 2));
  EXPECT_TRUE(rows->AppendChunk("Icon", second, 1));
  EXPECT_FALSE(rows->AppendChunk("Lane", second, 1));
  rows->Update();
  rows->MoveLast();
  rows->Edit();
  rows->AppendChunk("Icon", second, 1);
  rows->Update();
  EXPECT_EQ(rows->Get("Icon"), FieldValue(Bytes{1, 2, 3, 3}));
}

TEST_F(RecordsetTest, TheIndexOrdersAndSeeksWithoutCase) {
  const auto form = Form({"Me", "cmdOK", "Texts(7)", "CMDCancel"});
  EXPECT_EQ(Walk(*form, "Name"), (Texts{"Me", "cmdOK", "Texts(7)", "CMDCancel"})) << "order of insertion";
  ASSERT_TRUE(form->SetIndex("NameIndex"));
  EXPECT_EQ(Walk(*form, "name"), (Texts{"CMDCancel", "cmdOK", "Me", "Texts(7)"}));
  ASSERT_TRUE(form->Seek("TEXTS(7)"));
  EXPECT_EQ(form->Get("Name"), FieldValue("Texts(7)"));
  EXPECT_FALSE(form->Seek("cmdO"));
  EXPECT_EQ(form->Get("Name"), FieldValue("Texts(7)")) << "the position stays";
  EXPECT_FALSE(form->SetIndex("Other"));
  EXPECT_TRUE(form->Seek("texts(7)")) << "the order stays";
  EXPECT_TRUE(Add(*form, {{"Name", "aa"}}));
  EXPECT_EQ(form->Get("Name"), FieldValue("Texts(7)")) << "the position does not move to an added row";
  EXPECT_FALSE(Add(*form, {{"Name", "CMDok"}})) << "the name is taken";
}

TEST_F(RecordsetTest, AnIndexThatRunsDownwardsGivesTheNewestRowFirst) {
  const auto options = Table("Options");
  for (const char* units : {"US", "Metric", "SI"})
    Add(*options, {{"Units", units}});
  ASSERT_TRUE(options->SetIndex("ID"));
  EXPECT_EQ(Walk(*options, "Units"), (Texts{"SI", "Metric", "US"}));
  options->MoveLast();
  EXPECT_EQ(options->Get("Units"), FieldValue("US"));
  EXPECT_TRUE(options->Seek(2));
  EXPECT_EQ(options->Get("Units"), FieldValue("Metric"));
}

TEST_F(RecordsetTest, CompoundKeysNullsAndTiesWalkCompletely) {
  database->Execute("INSERT INTO Setups VALUES (2,1,1),(1,5,2),(NULL,3,3),(1,7,4),(NULL,3,5),(2,NULL,6),(1,NULL,7)");
  const auto setups = Table("Setups");
  ASSERT_TRUE(setups->SetIndex("Place"));
  EXPECT_EQ(Walk(*setups, "GridPosition"), (Texts{"3", "5", "4", "2", "7", "1", "6"}));
}

TEST_F(RecordsetTest, DeletingWhileWalkingGoesOnWithTheNextRow) {
  for (const char* index : {"", "NameIndex"}) {
    const auto form = Form({"a", "b", "c", "d"}, index);
    Texts seen;
    for (form->MoveFirst(); !form->Eof(); form->MoveNext()) {
      seen.push_back(form->Get("Name").Text());
      EXPECT_TRUE(seen.back() == "c" || form->Delete());
      EXPECT_EQ(form->Get("Name").IsNull(), seen.back() != "c");
      EXPECT_EQ(form->Delete() || form->Edit(), seen.back() == "c") << "what is gone is gone";
    }
    EXPECT_EQ(seen, (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(form->RecordCount(), 0);
  }
}

TEST_F(RecordsetTest, ARowThatMovesInItsIndexTakesThePositionAlong) {
  const auto form = Form({"a", "b", "c", "d"}, "NameIndex");
  ASSERT_TRUE(Edit(*form, {{"Name", "bb"}}));
  EXPECT_EQ(form->Get("Name"), FieldValue("bb"));
  form->MoveNext();
  EXPECT_EQ(form->Get("Name"), FieldValue("c"));
}

TEST_F(RecordsetTest, EditingWritesTheTouchedFieldsAloneAndOthersSeeIt) {
  const auto form = Form({"a"}), other = Table("Form");
  form->MoveFirst();
  other->MoveFirst();
  form->Edit();
  form->Set("Name", "A");
  other->Edit();
  other->Set("Left", 7);
  EXPECT_TRUE(other->Update() && form->Update());
  other->MoveFirst();
  EXPECT_EQ(other->Get("Name"), FieldValue("A"));
  EXPECT_EQ(other->Get("Left"), FieldValue(7));
  EXPECT_EQ(form->Get("Left"), FieldValue(7));
  other->Delete();
  for (const char* field : {"Left", "Name"})
    EXPECT_TRUE(form->Get(field).IsNull()) << "gone under our feet";
}

} // namespace trekor::tests
