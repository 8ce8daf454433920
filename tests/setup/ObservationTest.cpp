#include "Vocabulary.h"

#include "values/KeyCodes.h"

namespace trekor::tests {

class Observation : public Vocabulary {
protected:
  ClassObservation& Make(int dataType, ObsValue min, ObsValue max) {
    ClassObservation& obs = setup.AddObservation();
    obs.DataTypeID = DataType{dataType};
    obs.SetMin(std::move(min));
    obs.SetMax(std::move(max));
    obs.Reset();
    return obs;
  }
};

// Ties go to even; limits may be stored the wrong way round.
TEST_F(Observation, BringsWhatComesInIntoItsTypeAndLimits) {
  const struct {
    int dataType;
    ObsValue min, max, given;
    const char* text;
  } cases[] = {
      {2, 0.0F, 10.0F, "3,5", "3.5"},  {1, 0.0F, 10.0F, "3,5", "4"},         {1, 0.0F, 10.0F, 2.5, "2"},
      {1, 0.0F, 10.0F, "  7 km", "7"}, {1, 1.0F, 10.0F, "abc", "1"},         {1, 0.0F, 10.0F, "11", "10"},
      {1, 10.0F, 2.0F, "1", "2"},      {2, 0.0F, 99.0F, "1.234,5", "1.234"}, {2, 0.0F, 10.0F, 3.141593F, "3.141593"},
      {2, 0.1F, 0.7F, "0", "0.1"},     {2, 0.1F, 0.7F, "0.7", "0.7"},        {0, 5.0F, 7.0F, "7", "1"},
      {3, 0.0F, 3.0F, "2.5", "2.5"}};
  for (const auto& c : cases) {
    ClassObservation& obs = Make(c.dataType, c.min, c.max);
    obs.SetDefault(c.given);
    EXPECT_EQ(obs.DefaultText(), c.text) << "type " << c.dataType << ", given " << ObsValueText(c.given);
  }
}

TEST_F(Observation, StepsUpAndWrapsOnlyWhenItMeetsTheUpperLimit) {
  const auto walk = [](ClassObservation& obs, int steps) {
    std::string shown = obs.DefaultText();
    for (int i = 0; i < steps; ++i) {
      obs.IncValue();
      shown += " " + obs.DefaultText();
    }
    return shown;
  };
  EXPECT_EQ(walk(Make(1, 0.0F, 3.0F), 5), "0 1 2 3 0 1");
  EXPECT_EQ(walk(Make(0, 5.0F, 7.0F), 3), "0 1 0 1") << "a Boolean whatever its limits";
  ClassObservation& exact = Make(2, 0.1F, 9.0F);
  EXPECT_EQ(exact.Min(), static_cast<double>(0.1F)) << "a limit is held exactly as stored";
  EXPECT_EQ(exact.DefaultNumber(), exact.Min());
  EXPECT_EQ(walk(exact, 1), "0.1 1.1");
  ClassObservation& between = Make(2, 0.0F, 3.0F);
  between.SetDefault("2.5");
  EXPECT_EQ(walk(between, 2), "2.5 3.5 4.5");
  ClassObservation& text = Make(4, 0.0F, 3.0F);
  text.SetDefault("  wet, 12 ");
  EXPECT_EQ(walk(text, 1), "wet, 12 wet, 12");
  text.Reset();
  EXPECT_EQ(text.DefaultText(), "wet, 12") << "only a text survives a reset";
}

TEST_F(Observation, ShowsTheOtherSpellingOfAMissingNameAndTheStandInIcon) {
  ClassObservation& obs = setup.AddObservation();
  EXPECT_EQ(obs.ObsNameDisp() + obs.ObsNameFile() + obs.ObsAbrvDisp() + obs.ObsAbrvFile(), "    ");
  EXPECT_EQ(obs.DispText() + obs.FileText(), "  ");
  obs.SetObsNames(" ", " Crack ", "Crk", " ");
  EXPECT_EQ(obs.ObsNameDisp() + "," + obs.ObsAbrvFile() + "," + obs.ObsIcon(), "Crack,Crk,IMGNOICON");
  for (const auto& [file, key] : {std::pair("Crack.png", "CRACK.PNG"), {"gone.png", "IMGNOICON"}}) {
    obs.SetObsIcon(file);
    EXPECT_EQ(obs.ObsIcon(), key);
  }
}

TEST_F(Observation, TakesAFreeKeyAndItsOwnKeyAgain) {
  ClassObservation &crack = setup.AddObservation(), &patch = setup.AddObservation();
  crack.ObsParID = 1;
  patch.ObsParID = 2;
  crack.SetKeyCode('A');
  crack.SetKeyCode('A');
  EXPECT_EQ(crack.KeyCode(), 'A');
  for (const auto& [wanted, got] :
       {std::pair<int, int>('A', -1), {keys::F1, -1}, {'C', 'C'}, {'A', -1}}) { // the refused one loses its own
    patch.SetKeyCode(wanted);
    EXPECT_EQ(patch.KeyCode(), got) << wanted;
  }
}

} // namespace trekor::tests
