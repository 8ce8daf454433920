#include "collection/RunFixture.h"

namespace trekor::tests {

class KeyPresses : public RunFixture {
protected:
  void SetUp() override {
    Load();
    StartFromLink(10.0);
  }
};

TEST_F(KeyPresses, NoLetterReachesAControlInARun) {
  EXPECT_TRUE(run.Subjects().formKeys.Form_KeyPress(U'A'));
  Press(F4);
  EXPECT_FALSE(run.Subjects().formKeys.Form_KeyPress(U'A'));
}

TEST_F(KeyPresses, ATwoKeyPointInAPauseNeverAsksForTheStation) {
  setup.Observations(Rut).RegModeCode = RegMode::Point;
  Press(F3);
  Press('E');
  Press('4');
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(Rows(), 2);
  EXPECT_EQ(Cell(1, Rut), "4");
}

TEST_F(KeyPresses, TheBarOfATextWaitsForItsSecondKeyOnly) {
  setup.Observations(Surface).KeyingCode = Keying::TwoKeys;
  Press('I');
  EXPECT_EQ(Bar(Surface), "BAR:13");
  Press('W');
  EXPECT_EQ(Cell(0, Surface), "W");
  EXPECT_NE(Bar(Surface), "BAR:13");
}

// A setup that no editor makes, and one that is bare.
class StrangeSetups : public RunFixture {
protected:
  StrangeSetups() {
    const auto database =
        Database::Open(fakes.drives.NativePath(state.folders.MdbFolder + "\\Observations.mdb"), OpenMode::Shared);
    std::string sql = "INSERT INTO SetupNames(SetupID, SetupName) VALUES (4, 'None');";
    const int keyCodes[] = {0, -7, 300, 201, 226, 113, 114, 27, 46, 13, 144, 'A', 'A', 'B', 107, 107};
    for (int i = 0; i < 70; ++i) {
      const std::string item = std::to_string(1000 + i);
      const int key = i < 16 ? keyCodes[i] : 41 + i; // then what keyboards send at these numbers
      sql += "INSERT INTO ObsLinguistic(LanguageID, ObsCode, ObsNameDisp) VALUES (1, " + item + ", 'Item');" +
             "INSERT INTO Observations(ObsParID, LanguageID, ObsCode, DataType, Min, Max, RegModeCode, KeyingCode) "
             "VALUES (" +
             item + ", 1, " + item + ", " + std::to_string(i % 2) + ", 0, " + std::to_string(i % 2 ? 3 : 1) + ", " +
             std::to_string(i % 4) + ", 1);" +
             "INSERT INTO Setups(SetupID, ObsParID, GridPosition, KeyCode) VALUES (3, " + item + ", " +
             std::to_string(i) + ", " + std::to_string(key) + ");";
    }
    EXPECT_TRUE(database && database->Execute(sql));
    Load();
  }
  void Collect(int choice, const std::string& file) {
    form.cboTestSetupNames.Select(choice);
    OpenFile(file);
    StartFromLink(1);
    for (int code = -1; code <= 300; ++code)
      if (code != F3 && code != F4 && code != Esc)
        Press(code);
    Dmi(1.1);
    Press(F4);
    EXPECT_EQ(State(), RunStates::Idle);
  }
};

TEST_F(StrangeSetups, AreCollectedWith) {
  Collect(2, "SEVENTY");
  EXPECT_EQ(form.Grid.Cols(), 71);
  EXPECT_EQ(Query("SELECT count(*) FROM Registrations WHERE ObsCode NOT BETWEEN 1000 AND 1069 OR RegData <> '' AND "
                  "RegData NOT BETWEEN 0 AND 3"),
            Texts{"0"});
  EXPECT_EQ(Query("SELECT DISTINCT ObsCode, RegData FROM Registrations WHERE ObsCode IN (1011, 1012, 1024) AND "
                  "RegData > 0"),
            Texts{"1024 1"})
      << "of three with one key the last has it";
  for (int i = 1; i <= 11; ++i)
    EXPECT_EQ(setup.Observations(i).KeyCode(), -1) << "a key that may carry nothing";
  CloseFile();
  Collect(3, "NONE");
  EXPECT_EQ(Query("SELECT count(*) FROM Registrations"), Texts{"0"});
  EXPECT_EQ(Stations(), (Texts{"1 0", "1.1 0", "1.1 0"}));
}

} // namespace trekor::tests
