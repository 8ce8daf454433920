#include "collection/RunFixture.h"

#include <map>

namespace trekor::tests {

class KeyPresses : public RunFixture {
protected:
  void SetUp() override {
    Load();
    OpenFile();
    StartFromLink(10.0);
    Dmi(10.02);
    Sounds();
  }
};

TEST_F(KeyPresses, APointMakesItsOwnRowAtThePositionOfTheReading) {
  Key('B');
  Dmi(10.05); // comes before the tick that takes the key
  Tick();
  EXPECT_EQ(Roads(), (Texts{"10.000 to 10.100", "10.050"}));
  EXPECT_EQ(Cell(1, Hole), "1");
  ExpectAligned();
}

TEST_F(KeyPresses, AnOnOffPointAlternatesAndAMarkStays) {
  for (int press = 0; press < 3; ++press) {
    Press('C');
    Press('B');
  }
  Texts patches, holes;
  for (int row = 0; row < Rows(); ++row) {
    if (Hidden(row, ColRowKind) == std::to_string(Patch))
      patches.push_back(Cell(row, Patch));
    if (Hidden(row, ColRowKind) == std::to_string(Hole))
      holes.push_back(Cell(row, Hole));
  }
  EXPECT_EQ(patches, (Texts{"1", "0", "1"}));
  EXPECT_EQ(holes, (Texts{"1", "1", "1"}));
}

TEST_F(KeyPresses, TwoKeysAreHandledOnTwoTicks) {
  Key('B');
  Key('B');
  Tick();
  EXPECT_EQ(Rows(), 2);
  Dmi(10.04);
  Tick();
  EXPECT_EQ(Roads(), (Texts{"10.000 to 10.100", "10.040", "10.020"}));
}

TEST_F(KeyPresses, TheSecondKeyOfAPairIsTheValue) {
  Press('E');
  EXPECT_EQ(Bar(Rut), "BAR:13");
  Press('7');
  EXPECT_EQ(Cell(0, Rut), "7");
  EXPECT_EQ(Sounds(), Texts{"D7.WAV"});
  for (const auto& [second, value] :
       std::map<int, std::string>{{'0', "0"}, {'9', "9"}, {96, "0"}, {105, "9"}, {99, "3"}}) {
    SCOPED_TRACE(second);
    Press('E');
    Press(second); // of the main block or of the pad
    EXPECT_EQ(Cell(0, Rut), value);
    EXPECT_EQ(Sounds(), Texts{"D" + value + ".WAV"});
  }
  const std::string last = Cell(0, Rut);
  Press('E');
  Press(Del);
  EXPECT_EQ(Cell(0, Rut), last);
  Press('A'); // not a value any more
  EXPECT_EQ(Cell(0, Crack), "1");
}

TEST_F(KeyPresses, AWaitingBarOutlivesAStepAndARunCommand) {
  Press('E');
  Dmi(10.1);
  EXPECT_EQ(run.parts().grids.Bar(Rut), -13);
  Press(F2);
  Press('5');
  EXPECT_EQ(Cell(0, Rut), "5");
}

TEST_F(KeyPresses, NumbersAreAskedForAndEmptiedPromptsChangeNothing) {
  Answer("12,34567891");
  Press('F');
  EXPECT_EQ(prompts.back(), "Enter Item 6  ");
  EXPECT_EQ(Cell(0, Depth), "12.34568");
  Answer("");
  Press('F');
  EXPECT_EQ(Cell(0, Depth), "12.34568");
  Answer("99");
  Press('G');
  EXPECT_EQ(Cell(1, Area), "99");
  for (const char* refused : {"40000", "abc"}) { // no 16-bit number: the old value goes on
    Answer(refused);
    Press('G');
    EXPECT_EQ(Cell(1, Area), "99") << refused;
  }
  Answer("");
  Press('G');
  EXPECT_EQ(Rows(), 4);
}

TEST_F(KeyPresses, ATextReadsAcrossItsRow) {
  Answer("  sunken manhole ");
  Press('H');
  EXPECT_EQ(Cell(1, 1), "I8");
  for (int col = 2; col <= setup.ObsCount(); ++col)
    EXPECT_EQ(Cell(1, col), "sunken manhole");
  EXPECT_TRUE(form.Grid.MergeRow(form.Grid.FixedRows() + 1));
  Press(F4);
  EXPECT_EQ(Query("SELECT RegData FROM Registrations WHERE ObsCode=108"), Texts(2, "sunken manhole"))
      << "as a point, and in the span of its step";
}

TEST_F(KeyPresses, KeysWithoutAnObservationAnswerWithTheirSound) {
  Press('Z');
  EXPECT_EQ(Sounds(), Texts{"undefinedkey.WAV"});
  Press('A');
  Press(250); // beyond the table: the observation before acts once more
  EXPECT_EQ(Cell(0, Crack), "2");
}

TEST_F(KeyPresses, SixteenKeysAheadLoseTheBacklog) {
  for (int i = 0; i < 15; ++i)
    Key('A');
  Tick(15);
  EXPECT_EQ(Cell(0, Crack), "3");
  for (int i = 0; i < 16; ++i)
    Key('A');
  Tick(20);
  EXPECT_EQ(Cell(0, Crack), "3");
}

TEST_F(KeyPresses, NothingOfARunOutlivesItsEnd) {
  const std::vector<std::vector<int>> ends = {{F4}, {Esc}, {F3, F4}, {F3, Esc}};
  for (const auto& end : ends) {
    SCOPED_TRACE(testing::PrintToString(end));
    Press('E'); // waits for its second key
    for (int key : end)
      Key(key);
    Key('A');
    Key('D');
    Key(F2);
    Tick(6);
    EXPECT_EQ(State(), 0);
    StartFromLink(11.0);
    Tick(6);
    EXPECT_EQ(State(), 1);
    for (int col = 1; col <= setup.ObsCount(); ++col)
      EXPECT_EQ(Cell(0, col), "") << "column " << col;
    Press('A');
    EXPECT_EQ(Cell(0, Crack), "1") << "the first key of a run is no second one of a pair";
    EXPECT_EQ(Cell(0, Rut), "");
  }
}

TEST_F(KeyPresses, NoLetterReachesAControlInARun) {
  EXPECT_TRUE(run.Form_KeyPress(U'A'));
  Press(F4);
  EXPECT_FALSE(run.Form_KeyPress(U'A'));
}

TEST_F(KeyPresses, InAPauseAPointAsksForItsStation) {
  Dmi(10.1);
  Dmi(10.2);
  Press(F3);
  Select(1, 0); // the step from 10.1 to 10.2
  Answer("10,15");
  Press('B');
  EXPECT_EQ(prompts.back(), "Enter Item 2 Station");
  EXPECT_EQ(Roads(), (Texts{"10.200 to 10.300", "10.100 to 10.200", "10.150", "10.000 to 10.100"}));
  Answer("");
  Press('B');
  EXPECT_EQ(Rows(), 4);
  Answer("<esc>"); // goes on with the row's own station
  Press('B');
  EXPECT_EQ(Cell(2, 0), "10.200");
  ExpectAligned();
  Select(2, 0);
  Press('A');
  EXPECT_EQ(Cell(2, Crack), "") << "an event row keeps its one value";
}

TEST_F(KeyPresses, ATwoKeyPointInAPauseNeverAsksForTheStation) {
  setup.Observations(Rut).RegModeCode = 0;
  Press(F3);
  Press('E');
  Press('4');
  EXPECT_TRUE(prompts.empty());
  EXPECT_EQ(Rows(), 2);
  EXPECT_EQ(Cell(1, Rut), "4");
}

TEST_F(KeyPresses, DeleteInAPauseTakesRowsAndCells) {
  Press('A');
  Press('B');
  Answer("gravel");
  Press('I');
  Press(F3);
  Select(0, Crack);
  Press(Del);
  EXPECT_EQ(Cell(0, Crack), "0");
  Select(0, Surface);
  Press(Del);
  EXPECT_EQ(Cell(0, Surface), "");
  Select(1, 0);
  Press(Del);
  EXPECT_EQ(Rows(), 1);
  ExpectAligned();
}

TEST_F(KeyPresses, TheRowThatMovesUpKeepsItsOwnValue) {
  for (const char* area : {"80", "120"}) {
    Answer(area);
    Press('G');
  }
  Press(F3);
  Select(1, Crack); // 120
  Press(Del);
  Select(1, Hole);
  EXPECT_EQ(Cell(1, Area), "80");
  Answer("<esc>");
  Select(1, Area);
  EXPECT_EQ(Cell(1, Area), "80");
}

TEST_F(KeyPresses, ADeleteOutsideAPauseRemovesNothing) {
  Press('B');
  Press(Del);
  EXPECT_EQ(Rows(), 2);
}

} // namespace trekor::tests
