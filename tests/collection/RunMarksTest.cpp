// The corner of the grid: link, age of the position, lost keys. The floating keys, the sizes of the menu View, and the
// column that is brought into view.
#include "RunFixture.h"

#include "values/BarPictures.h"

#include <algorithm>

namespace trekor::tests {

class RunMarksStories : public RunFixture {
protected:
  void SetUp() override { Load(); }
  void After(double seconds) {
    for (; seconds > 0; seconds -= 0.4) {
      fakes.clock.Advance(400);
      Tick();
    }
  }
  // The text of a cell, with "!" in front of a warning.
  std::string Mark(int row) { return (form.Grid.CellPicture(row, 0) == AlertMark ? "!" : "") + form.Grid.Text(row, 0); }
  std::string State() { return Mark(RunGrid::IconRow); }
  std::string LinkMark() { return Mark(RunGrid::KeyRow); }
};

TEST_F(RunMarksStories, TheAgeOfAPositionIsQuietAtFirstAndThenPlain) {
  After(10);
  EXPECT_EQ(State(), "") << "nobody drives";
  StartFromLink(10.0);
  After(1.6);
  EXPECT_EQ(State(), "");
  After(2);
  EXPECT_EQ(State(), "Position 4 s old");
  After(2);
  EXPECT_EQ(State().substr(0, 10), "!Position ");
  Press(F3);
  After(0.8);
  EXPECT_EQ(State().substr(0, 8), "Position") << "a vehicle that waits is no fault";
  Press(F2);
  Dmi(10.02);
  After(0.4);
  EXPECT_EQ(State(), "");
  After(7);
  Press(F4);
  After(0.4);
  EXPECT_EQ(State(), "");
}

// The keys of the menu are keys like others in a run; the mouse may choose there.
TEST_F(RunMarksStories, InARunTheGridChangesItsSizeByTheMenuAloneAndKeepsItsRows) {
  StartFromLink(10.0);
  Dmi(10.1);
  Press('A');
  const Texts roads = Roads();
  for (const auto& [key, shift] : {std::pair{keys::PageUp, 2}, {keys::PageDown, 2}, {keys::F12, 0}}) {
    Key(key, shift);
    Tick();
  }
  EXPECT_TRUE(form.Grid.Zoom() == 100 && !fakes.shell.night);
  EXPECT_EQ(Roads(), roads);
  form.mnuSizes[6].Click();
  form.mnuViewLarger.Click(); // is off now
  form.mnuViewNight.Click();
  EXPECT_TRUE(form.Grid.Zoom() == 200 && fakes.shell.night);
  Press('A');
  EXPECT_EQ(Roads(), roads);
  EXPECT_EQ(Cell(0, Crack), "2");
  Press(F4);
  for (int i = 0; i < 9; ++i)
    Key(keys::PageDown, 2);
  EXPECT_EQ(form.Grid.Zoom(), 70);
  const auto ticked = [](const Menu& size) { return size.Checked(); };
  EXPECT_EQ(std::count_if(std::begin(form.mnuSizes), std::end(form.mnuSizes), ticked), 1);
}

TEST_F(RunMarksStories, TheColumnOfTheLastKeyIsToBeSeen) {
  StartFromLink(10.0);
  form.Grid.TakeChanges();
  for (const auto& [key, column] : {std::pair{int('A'), int(Crack)}, {int('E'), int(Rut)}, {int('7'), -1}}) {
    Press(key);
    EXPECT_EQ(form.Grid.TakeChanges().wanted, column) << key;
  }
}

TEST_F(RunMarksStories, LostKeysAreCountedUntilTheNextStart) {
  StartFromLink(10.0);
  for (int i = 0; i < KeyRing::Size - 1; ++i)
    Key('A');
  After(0.4);
  EXPECT_EQ(State(), "") << "a ring that is just full";
  EXPECT_EQ(LinkMark(), "Link \u25CF");
  Tick(KeyRing::Size);
  for (int i = 0; i < KeyRing::Size; ++i)
    Key('A');
  After(0.4);
  EXPECT_EQ(LinkMark(), "!16 keys lost \u25CF");
  After(3);
  EXPECT_EQ(LinkMark(), "!16 keys lost \u25CF");
  EXPECT_EQ(State(), "Position 4 s old") << "both at once";
  Press(F4);
  StartFromLink(11.0);
  After(0.4);
  EXPECT_EQ(LinkMark(), "Link \u25CF");
}

TEST_F(RunMarksStories, TheLinkHasOneMark) {
  const auto later = [this] {
    After(0.4);
    return Mark(RunGrid::KeyRow);
  };
  EXPECT_EQ(later(), "Link \u25CF");
  fakes.socket.PeerClose();
  EXPECT_EQ(later(), "No link \u25CB");
  StartAt(10.0);
  EXPECT_EQ(later(), "!No link \u25CB");
}

// Ticks wait while a key has its prompt open.
TEST_F(RunMarksStories, TheWatchdogTellsTheLinkBehindAPrompt) {
  StartFromLink(10.0);
  std::string behind;
  fakes.shell.scripts["NumericPrompt"] = [&](Form&) {
    fakes.socket.PeerClose();
    socket.form.WDT.Fire();
    behind = LinkMark();
  };
  Press('F');
  EXPECT_EQ(behind, "!No link \u25CB");
}

// The docked pictures keep their current key: it is the one that Delete takes away.
TEST_F(RunMarksStories, TheFloatingKeysTellWhatGoesOnAndTheLastKey) {
  KeyPictures& pictures = run.Subjects().keyPictures;
  Grid& board = pictures.frmKeyBoard.fxgKeyBoard;
  const auto told = [&](const Grid& keys) {
    std::string all = keys.SelectionMarks() ? "[" + keys.Text(keys.Row(), keys.Col()) + "] " : "";
    for (int r = 0; r < keys.Rows(); ++r)
      for (int c = 0; c < keys.Cols(); ++c)
        if (const Grid::Note& note = keys.CellNote(r, c); !note.text.empty())
          all += keys.Text(r, c) + "=" + note.text + (note.strong ? "! " : " ");
    return all;
  };
  form.mnuViewKeyBoard.OnClick();
  StartFromLink(10.0);
  Press('A');
  EXPECT_EQ(told(board), "[A] E=0 D=0 F=0 C=0 Space=0 ") << "A is counted anew in each step";
  Press('D');
  Press('E');
  Press('7');
  EXPECT_EQ(told(board), "[7] E=7! D=1! F=0 C=0 Space=0 ");
  EXPECT_EQ(told(form.fxgKeyBoard), "");
  Press(F3);
  EXPECT_EQ(told(board).substr(0, 4), "E=7!") << "no observation's key";
  Press(F4);
  EXPECT_EQ(told(board), "");
  Press('D');
  After(0.8);
  EXPECT_EQ(told(board), "") << "no run";
}

} // namespace trekor::tests
