#include "Vocabulary.h"

#include "values/KeyCodes.h"

namespace trekor::tests {

class Loading : public Vocabulary {
protected:
  Loading() { OpenVocabulary(); }
};

TEST_F(Loading, BecomesColumnsInTheOrderOfTheirPlaces) {
  Add({.id = 5, .position = 2, .keyCode = 'A'});
  Add({.id = 9, .dataType = 2, .position = 1, .keyCode = keys::F5, .min = "10", .max = "2", .mode = 3, .keying = 2});
  setup.Load_TestSetup();
  ASSERT_EQ(setup.ObsCount(), 2);
  const ClassObservation& first = setup.Observations(1);
  EXPECT_EQ(first.ObsNameFile() + "," + first.ObsAbrvDisp() + "," + first.ObsIcon() + "," + first.ParNameDisp(),
            "Item 9,I9,CRACK.PNG, ");
  EXPECT_EQ((std::vector<int>{first.ObsParID, first.ObsCode, static_cast<int>(first.RegModeCode),
                              static_cast<int>(first.KeyingCode), first.ParCode()}),
            (std::vector<int>{9, 9, 3, 2, 0}))
      << "0: the last one whatever is stored";
  EXPECT_EQ(first.Min() * 100 + first.Max(), 210);
  EXPECT_EQ(first.DefaultText(), "2") << "every value starts at its lower limit";
  EXPECT_EQ(setup.Observations(2).ObsParID, 5);
  EXPECT_EQ(setup.KeyToObs(keys::F5), 1);
  EXPECT_EQ(setup.KeyToObs('A'), 2);
  EXPECT_EQ(setup.KeyToObs('B'), -1);
}

TEST_F(Loading, LeavesOutCodeZeroAndItemsThatAreGoneAndErasesAKeyThatMayCarryNothing) {
  Add({.id = 1, .keyCode = keys::F2});
  Add({.id = 2, .position = 2, .keyCode = 'B'});
  Add({.id = 3, .position = 3}, 0);
  Add({.id = 4, .position = 4});
  Run("DELETE FROM Observations WHERE ObsParID=4");
  setup.Load_TestSetup();
  EXPECT_EQ(setup.ObsCount(), 2);
  EXPECT_EQ(setup.Observations(1).KeyCode(), -1);
  EXPECT_EQ(StoredKeys(), "-1\n66\n-1\n-1\n");
  EXPECT_EQ(setup.KeyToObs(-1), -1) << "no key is no observation, although two rows have met there";
}

TEST_F(Loading, LeavesWhatAFieldDoesNotSayAsAnObservationBegins) {
  Add({.id = 1, .dataType = 2, .keyCode = 'A', .mode = 3, .keying = 2});
  Run("UPDATE Observations SET RegModeCode=NULL, KeyingCode=70000, DataType=NULL");
  Run("UPDATE Setups SET KeyCode=4294967361"); // 'A' in its lower half
  setup.Load_TestSetup();
  const ClassObservation& obs = setup.Observations(1);
  EXPECT_EQ((std::vector<int>{static_cast<int>(obs.RegModeCode), static_cast<int>(obs.KeyingCode),
                              static_cast<int>(obs.DataTypeID), obs.KeyCode()}),
            (std::vector<int>{1, 0, 0, -1}));
  EXPECT_EQ(StoredKeys(), "-1\n");
}

TEST_F(Loading, LetsTwoRowsKeepOneKeyAndTheLaterRuleUntilAnotherSetupIsChosen) {
  Add({.id = 1, .keyCode = 'A'});
  Add({.id = 2, .position = 2, .keyCode = 'A'});
  setup.Load_TestSetup();
  EXPECT_EQ(setup.Observations(1).KeyCode(), 'A');
  EXPECT_EQ(setup.KeyToObs('A'), 2);
  state.TestSetupID = 2;
  setup.Load_TestSetup();
  EXPECT_EQ(setup.ObsCount(), 0);
  EXPECT_EQ(setup.KeyToObs('A'), -1);
  EXPECT_FALSE(setup.Has(1));
}

TEST_F(Loading, StoresAnAssignedKeyOfThisSetupOnly) {
  Add({.id = 1, .keyCode = 'A'});
  Add({.id = 2, .position = 2, .keyCode = 'B'});
  Run("INSERT INTO Setups(SetupID,ObsParID,KeyCode) VALUES(2,2,70)");
  setup.Load_TestSetup();
  setup.Store_SetupKey(keys::PadPlus, 2);
  setup.Store_SetupKey(keys::PadSeparator, 3); // no such entry
  EXPECT_EQ(StoredKeys(), "65\n107\n70\n");
}

TEST_F(Vocabulary, IsInstalledFromItsTemplateAndOpened) {
  Make(Template, TemplateText("Observations")).reset();
  ASSERT_TRUE(database.LoadDatabase());
  ASSERT_TRUE(database.ObsDB && database.rsObservations && database.rsLanguages && database.rsRegModes);
  EXPECT_EQ(database.rsDataTypes->RecordCount(), 4);
  EXPECT_EQ(state.versions.Observations.Major, 1);
  ASSERT_TRUE(database.rsSetupNames->AddNew());
  EXPECT_GT(database.rsSetupNames->Get("SetupID").Integer(), 0)
      << "the automatic key is known before the row is stored";
}

TEST_F(Vocabulary, TellsOfADatabaseWithoutTablesAndIsEmptyWithoutIt) {
  // Version 1.1 of a template means no update, so the working file comes as it is.
  Make(Template, "CREATE TABLE Version(Major SMALLINT, Minor SMALLINT); INSERT INTO Version VALUES(1,1)").reset();
  Make(Working, "").reset();
  EXPECT_TRUE(database.LoadDatabase());
  EXPECT_EQ(machine.shell.boxes, std::vector<std::string>{"Cannot find tables in specified database!"});
  EXPECT_FALSE(database.ObsDB);
  setup.Load_TestSetup();
  EXPECT_EQ(setup.ObsCount(), 0);
  setup.Store_SetupKey('A', 1);
}

} // namespace trekor::tests
