// The sample vocabulary, its icons, and the tones that answer its keys.
#include "templates/Share.h"

#include "setup/TestSetup.h"
#include "support/Places.h"
#include "values/KeyCodes.h"

#include <algorithm>

namespace trekor::tests {

// As a setup is loaded.
std::unique_ptr<Recordset> LoadSetup(Database& database, const std::string& id) {
  return database.OpenQuery("SELECT * FROM Setups, Observations, ObsLinguistic WHERE Setups.SetupID=" + id +
                            " AND Setups.ObsParID = Observations.ObsParID"
                            " AND Observations.LanguageID=ObsLinguistic.LanguageID"
                            " AND Observations.ObsCode=ObsLinguistic.ObsCode"
                            " AND NOT Observations.ObsCode=0 ORDER BY GridPosition");
}

std::vector<int> Samples(const std::string& path) {
  const std::string bytes = BytesOf(path);
  std::vector<int> samples;
  for (std::size_t i = 44; i + 1 < bytes.size(); i += 2)
    samples.push_back(static_cast<unsigned char>(bytes[i]) + bytes[i + 1] * 256);
  return samples;
}

TEST(SampleVocabulary, LoadsEachSetupWithAValidKeyOfItsOwnForEachItem) {
  const auto database = OpenShared("sample/Observations.mdb");
  ASSERT_TRUE(database);
  const auto setups = database->OpenTable("SetupNames");
  ASSERT_EQ(setups->RecordCount(), 2);
  std::set<std::int64_t> used;
  for (setups->MoveFirst(); !setups->Eof(); setups->MoveNext()) {
    SCOPED_TRACE(setups->Get("SetupName").Text());
    std::set<std::int64_t> taken;
    std::int64_t place = 0;
    const auto rows = LoadSetup(*database, setups->Get("SetupID").Text());
    for (; rows && !rows->Eof(); rows->MoveNext()) {
      SCOPED_TRACE(rows->Get("ObsNameDisp").Text());
      EXPECT_EQ(rows->Get("GridPosition").Integer(), ++place);
      EXPECT_TRUE(Valid_KeyCode(static_cast<int>(rows->Get("KeyCode").Integer())));
      EXPECT_TRUE(taken.insert(rows->Get("KeyCode").Integer()).second);
      used.insert(rows->Get("Setups.ObsParID").Integer());
    }
    EXPECT_GE(place, 10);
    EXPECT_TRUE(taken.count(keys::Space)); // the thumb's key
  }
  EXPECT_EQ(used.size(), static_cast<std::size_t>(database->OpenTable("Observations")->RecordCount()));
}

// The drawings are looked for, as a build without windows renders none.
TEST(SampleVocabulary, HasAnIconOfItsOwnForEachItemAndNamesThatFitTheirColumn) {
  const auto database = OpenShared("sample/Observations.mdb");
  ASSERT_TRUE(database);
  const std::filesystem::path drawings = SourcePlace("/resources/icons/items");
  std::set<std::string> icons;
  const auto names = database->OpenTable("ObsLinguistic");
  for (names->MoveFirst(); !names->Eof(); names->MoveNext()) {
    const std::filesystem::path icon = names->Get("ObsIcon").Text();
    EXPECT_EQ(icon.extension(), ".png");
    EXPECT_TRUE(std::filesystem::exists(drawings / icon.stem().concat(".svg"))) << icon;
    EXPECT_TRUE(icons.insert(icon.string()).second) << icon;
    EXPECT_LE(names->Get("ObsAbrvDisp").Text().size(), 6u);
  }
  EXPECT_EQ(icons.size(), static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(drawings), {})));
}

TEST(Tones, AreTenDifferentSoundsOfTheSameLengthThatNeitherClickNorClip) {
  std::set<std::vector<int>> different;
  for (int digit = 0; digit < 10; ++digit) {
    SCOPED_TRACE(digit);
    const auto samples = Samples(Share("Audio/Tones/D" + std::to_string(digit) + ".wav"));
    ASSERT_EQ(samples.size(), 2646u); // 120 ms
    EXPECT_LT(std::max(std::abs(samples.front()), std::abs(samples.back())), 200);
    const auto [lowest, highest] = std::minmax_element(samples.begin(), samples.end());
    EXPECT_TRUE(std::max(*highest, -*lowest) > 8000 && *highest < 32767 && *lowest > -32767);
    different.insert(samples);
  }
  EXPECT_EQ(different.size(), 10u);
}

} // namespace trekor::tests
