#include "collection/RunFixture.h"

#include <filesystem>
#include <sstream>

namespace trekor::tests {

class Sound : public RunFixture {
protected:
  void SetUp() override {
    fakes.drives.MakeFolders("C:\\Trekor\\Audio\\Danish");
    state.folders.AudioLanguagePath = "C:\\Trekor\\Audio\\Danish\\";
    state.command.Language = "Danish";
    Wave("English", "O101");
    Wave("English", "D1");
    Wave("Danish", "D2");
    Wave("Danish", "401");
    Load();
    StartFromLink(10.0);
    fakes.sound.TakePlayed();
  }
  void Wave(const std::string& folder, const std::string& name) {
    fakes.drives.Write("C:\\Trekor\\Audio\\" + folder + "\\" + name + ".wav", "wave");
  }
  Texts Played() { return fakes.sound.TakePlayed(); }
  Feedback& feedback() { return run.Subjects().feedback; }
};

TEST_F(Sound, TonesAreTheDigitsOfTheValue) {
  feedback().PlayObservationSound(Crack, 3);
  feedback().PlayDigitSound(7);
  feedback().PlayObservationSound(Crack, -1);
  feedback().PlayDigitSound(12);
  EXPECT_EQ(Played(), (Texts{"C:\\Trekor\\Audio\\Tones\\D3.WAV", "C:\\Trekor\\Audio\\Tones\\D7.WAV"}));
}

TEST_F(Sound, WordsFallBackToEnglishFileByFileAndToTheDigit) {
  state.options.DataColVoice = true;
  feedback().PlayObservationSound(Crack, 2); // its own word, in English
  feedback().PlayObservationSound(Hole, 2);
  feedback().PlayObservationSound(Hole, 1);
  feedback().PlayObservationSound(Hole, 3);
  EXPECT_EQ(Played(), (Texts{"C:\\Trekor\\Audio\\English\\O101.WAV", "C:\\Trekor\\Audio\\Danish\\D2.WAV",
                             "C:\\Trekor\\Audio\\English\\D1.WAV"}));
}

// Of the setup that runs; the value is the one taken, not the key.
TEST_F(Sound, AnItemIsNamedFirstAndThenToldByItsDigits) {
  state.options.DataColVoice = true;
  for (const char* word : {"O105", "O108", "D3", "D9"})
    Wave("English", word);
  setup.Observations(Rut).SetMax(3.0F);
  for (const int key : {'E', '9', 'A', 'A'})
    Press(key);
  EXPECT_EQ(Sounds(), (Texts{"O105.WAV", "D3.WAV", "O101.WAV", "D2.WAV"}));
  Press(F4);
  form.cboTestSetupNames.Select(1);
  StartFromLink(10.0);
  Press('A');
  EXPECT_EQ(Sounds(), Texts{"O108.WAV"});
  Wave("Tones", "401");
  EXPECT_TRUE(feedback().PlayWave("401"));
  EXPECT_EQ(Played(), Texts{"C:\\Trekor\\Audio\\Danish\\401.WAV"}) << "the word before the tone";
}

TEST_F(Sound, AToneThatOnlyTheLanguageHasPlaysFromThere) {
  EXPECT_TRUE(feedback().PlayWave(" 401 "));
  EXPECT_EQ(Played(), Texts{"C:\\Trekor\\Audio\\Danish\\401.WAV"});
  EXPECT_FALSE(feedback().PlayWave("402"));
}

TEST_F(Sound, AWaveThatComesOrGoesIsNoticedAtTheNextKey) {
  const auto drop = [&](const std::string& path) {
    ASSERT_TRUE(fakes.drives.DeleteFile("C:\\Trekor\\Audio\\" + path));
  };
  drop("Tones\\D2.wav");
  drop("Tones\\D3.wav");
  drop("SystemSounds\\newsegment.wav");
  feedback().PlayDigitSound(2); // spoken instead
  feedback().PlayDigitSound(3);
  feedback().PlaySystemSound(SystemSound::NewSegment);
  Wave("Tones", "D3");
  Wave("SystemSounds", "newsegment");
  feedback().PlayDigitSound(3);
  feedback().PlaySystemSound(SystemSound::NewSegment);
  EXPECT_EQ(Played(), (Texts{"C:\\Trekor\\Audio\\Danish\\D2.WAV", "C:\\Trekor\\Audio\\Tones\\D3.WAV",
                             "C:\\Trekor\\Audio\\SystemSounds\\newsegment.WAV"}));

  state.options.DataColVoice = true;
  Wave("Danish", "O101"); // before the English one
  feedback().PlayObservationSound(Crack, 2);
  drop("Danish\\O101.wav");
  drop("English\\O101.wav");
  feedback().PlayObservationSound(Crack, 2);
  EXPECT_EQ(Played(), (Texts{"C:\\Trekor\\Audio\\Danish\\O101.WAV", "C:\\Trekor\\Audio\\Danish\\D2.WAV"}));
}

// Crack, with its digit, and the message 401: which options let which of the shipped kinds of wave be heard.
TEST_F(Sound, IsChosenByTheOptionsAndByWhatIsThere) {
  const struct Case {
    bool voice, words;
    std::string there; // below Audio
    int value;
    std::string key, message; // what is heard of the two; nothing: silence, and the message is shown
  } cases[] = {
      {true, true, "English\\O101 Danish\\D3 Tones\\D3 English\\401", 3, "English\\O101", "English\\401"},
      {true, true, "Danish\\O101 English\\O101", 3, "Danish\\O101", ""},
      {true, true, "Danish\\D3 English\\D3 Tones\\D3", 3, "Danish\\D3", ""},
      {true, true, "English\\D3 Tones\\D3", 3, "English\\D3", ""},
      {true, true, "Tones\\D3 Tones\\401", 3, "", ""},
      {true, true, "English\\O101 Danish\\D3", -1, "English\\O101", ""},
      {true, true, "Danish\\D3", -1, "", ""},
      {true, false, "English\\O101 Danish\\D3 Tones\\D3 English\\401", 3, "Tones\\D3", ""},
      {true, false, "Danish\\O101 Danish\\D3 Danish\\401", 3, "", "Danish\\401"},
      {true, false, "Tones\\D3", -1, "", ""},
      {false, true, "English\\O101 Danish\\D3 Tones\\D3 English\\401", 3, "", ""},
      {false, false, "Tones\\D3 Danish\\401", 3, "", ""},
  };
  const auto path = [](const std::string& below) {
    return below.empty() ? Texts() : Texts{"C:\\Trekor\\Audio\\" + below + ".WAV"};
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.there + (c.voice ? " voice" : "") + (c.words ? " words" : ""));
    std::filesystem::remove_all(fakes.drives.NativePath("C:\\Trekor\\Audio"));
    std::istringstream there(c.there);
    for (std::string below; there >> below;)
      Wave(below.substr(0, below.find('\\')), below.substr(below.find('\\') + 1));
    state.options.AssistanceVoice = c.voice;
    state.options.DataColVoice = c.words;
    feedback().LoadSounds();
    feedback().PlayObservationSound(Crack, c.value);
    EXPECT_EQ(Played(), path(c.key));
    feedback().Assist(401);
    EXPECT_EQ(Played(), path(c.message));
  }
}

TEST_F(Sound, WithoutVoiceTheSystemSoundsStillPlay) {
  state.options.AssistanceVoice = false;
  Press('A');
  Press('Z');
  Dmi(10.1);
  EXPECT_EQ(Sounds(), (Texts{"undefinedkey.WAV", "newsegment.WAV"}));
}

TEST_F(Sound, AssistanceIsSpokenOrShown) {
  int shown = 0;
  fakes.shell.scripts["Message"] = [&shown](Form&) { ++shown; };
  const std::string path = state.folders.MdbFolder + "\\Words.mdb";
  ASSERT_TRUE(Database::Create(fakes.drives.NativePath(path), ""));
  ASSERT_TRUE(Database::Open(fakes.drives.NativePath(path), OpenMode::Shared)
                  ->Execute("CREATE TABLE Messages (ID INTEGER NOT NULL PRIMARY KEY, English TEXT);"
                            "INSERT INTO Messages VALUES (401, 'Taken.'), (402, 'Free.')"));
  messages.Open(Database::Open(fakes.drives.NativePath(path), OpenMode::Shared));
  struct Case {
    int number;
    bool voice, text;
    int shown;
  };
  for (const Case& c :
       {Case{401, true, true, 0}, Case{402, true, false, 1}, Case{401, false, true, 1}, Case{401, false, false, 0}}) {
    state.options.AssistanceVoice = c.voice;
    state.options.AssistanceText = c.text;
    shown = 0;
    feedback().Assist(c.number);
    EXPECT_EQ(shown, c.shown) << c.number << " voice " << c.voice << " text " << c.text;
  }
}

TEST_F(Sound, SlowDownSoundsAtTheEndOfAStepAndIsCalledByNobody) {
  Dmi(10.05);
  run.Subjects().stepBar.Check_SlowDown(0);
  EXPECT_TRUE(Played().empty());
  state.position.DmiStation.SetDefault(10.2); // past the end: the bar stands at its full length
  run.Subjects().stepBar.Check_SlowDown(0);
  EXPECT_EQ(Sounds(), Texts{"slowdown.WAV"});
}

TEST_F(Sound, ProgressOfTheCommaFileStandsInTheCaption) {
  run.Subjects().status.AsciiFileProgress(42);
  EXPECT_EQ(form.Caption(), "Writing ASCII output file. Please wait ... (42%)");
  Tick(40);
  EXPECT_EQ(form.Caption(), "Veldmark Trekor");
}

} // namespace trekor::tests
