// A vocabulary comes from other machines and old disks. Whatever it holds, the loaded setup keeps to its own rules.
// Seeded, so that a failure can be repeated.
#include "Vocabulary.h"

#include <random>

namespace trekor::tests {

class DamagedVocabulary : public Vocabulary {
protected:
  std::size_t Any(std::size_t below) { return random() % below; }
  void ExpectSound() {
    for (int i = 1; i <= setup.ObsCount(); ++i)
      ExpectSound(setup.Observations(i));
    for (int code = -2; code <= 300; ++code) {
      const int obs = setup.KeyToObs(code);
      ASSERT_TRUE(obs == -1 || (setup.Has(obs) && Valid_KeyCode(code))) << "code " << code;
    }
  }
  std::mt19937 random{11};

private:
  static void ExpectSound(ClassObservation& obs) {
    ASSERT_LE(obs.Min(), obs.Max());
    ASSERT_TRUE(obs.KeyCode() == -1 || Valid_KeyCode(obs.KeyCode())) << obs.KeyCode();
    for (const int code : {static_cast<int>(obs.RegModeCode), static_cast<int>(obs.KeyingCode),
                           static_cast<int>(obs.DataTypeID), obs.ObsCode})
      ASSERT_TRUE(code >= -32768 && code <= 32767) << code;
    ASSERT_FALSE((obs.ObsNameDisp() + obs.ObsAbrvFile() + obs.ObsIcon()).empty());
    for (const char* value : {"1E300", "-1E300", "2,5", ""}) {
      obs.SetDefault(value);
      const double rounding =
          obs.DataTypeID == DataType::Integer ? 0.5 : 0; // a limit between two whole numbers is passed by a hair
      const double number = obs.DefaultNumber();
      ASSERT_TRUE(obs.DataTypeID == DataType::Text ||
                  (number >= obs.Min() - rounding && number <= obs.Max() + rounding))
          << value;
      obs.IncValue();
      obs.Reset();
    }
  }
};

// The file's fields hold whatever another program has put there, whatever their declared type.
TEST_F(DamagedVocabulary, HoldsValuesOfEveryKindInEveryField) {
  const char* const fields[][2] = {
      {"Observations", "Min"},          {"Observations", "Max"},         {"Observations", "DataType"},
      {"Observations", "RegModeCode"},  {"Observations", "KeyingCode"},  {"Observations", "ObsCode"},
      {"Observations", "ParCode"},      {"Observations", "TextDisp"},    {"Setups", "KeyCode"},
      {"Setups", "GridPosition"},       {"Setups", "KeyCode"},           {"ObsLinguistic", "ObsIcon"},
      {"ObsLinguistic", "ObsNameDisp"}, {"ObsLinguistic", "ObsAbrvFile"}};
  const char* const values[] = {
      "NULL",    "9e999", "-9e999", "1e300", "9223372036854775807", "-9223372036854775808", "70000", "x'00ff'", "'abc'",
      "' 12,5'", "65",    "-1",     "0.1",   "4294967361",          "char(0,255)"};
  database.ObsDB = Make(Working, TemplateText("Observations") + TemplateText("sample-vocabulary"));
  Run("PRAGMA synchronous=OFF"); // the disk is of no interest here
  for (int i = 0; i < 120; ++i) {
    ASSERT_TRUE(database.ObsDB->Begin());
    for (int k = 0; k < 6; ++k) {
      const auto& [table, field] = fields[Any(std::size(fields))];
      database.ObsDB->Execute(std::string("UPDATE ") + table + " SET " + field + "=" + values[Any(std::size(values))] +
                              " WHERE rowid=" + std::to_string(1 + Any(24)));
    }
    ASSERT_TRUE(database.ObsDB->Commit());
    state.TestSetupID = static_cast<std::int32_t>(1 + Any(2));
    setup.Load_TestSetup();
    ASSERT_NO_FATAL_FAILURE(ExpectSound()) << "round " << i;
  }
}

} // namespace trekor::tests
