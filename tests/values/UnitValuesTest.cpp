// Value objects with and without a unit: raw, user's and file's side, limits, entry check.
#include "values/UnitValues.h"
#include "values/DistanceUnits.h"
#include "values/EntryCheck.h"
#include "values/NumberText.h"

#include <gtest/gtest.h>

namespace trekor::tests {

class UnitValuesTest : public testing::Test {
protected:
  // What the user sees, in a line and in a column, and what a file holds.
  static std::string Shown(const Numeric& n) { return n.Text() + "|" + n.FixedText() + "|" + n.FileText(); }
  UnitSettings settings;
};

// The upper limit decides first when the limits are crossed.
TEST_F(UnitValuesTest, DefaultIsTheOpenDoorAndValueTheGuardedOne) {
  Numeric n(settings);
  n.SetDefault(20000);
  EXPECT_EQ(n.Default(), 20000);
  EXPECT_FALSE(n.Test());
  n.SetValue(20000);
  EXPECT_EQ(n.Default(), 10000);
  EXPECT_TRUE(n.Test());
  n.SetFileText("-3");
  EXPECT_EQ(n.Default(), 0);
  n.SetMin(10);
  n.SetMax(5);
  for (const auto& [given, kept] : {std::pair(7, 5), {3, 10}}) {
    n.SetValue(given);
    EXPECT_EQ(n.Default(), kept);
  }
}

TEST_F(UnitValuesTest, BlankTextIsNoValueInEveryClass) {
  Numeric plain(settings);
  Deflection deflection(settings);
  Length length(settings);
  Velocity velocity(settings);
  MeterFeet feet(settings);
  feet.SetAlternateUnit(true);
  for (const bool us : {false, true})
    for (Numeric* n : std::initializer_list<Numeric*>{&plain, &deflection, &length, &velocity, &feet}) {
      settings.UnitsUS = settings.FileUnitsUS = us;
      n->SetText("  ");
      EXPECT_TRUE(n->Default() == NaN && n->Value() == NaN && n->FileValue() == NaN);
      EXPECT_EQ(Shown(*n), "|      |");
      EXPECT_EQ(n->Test(), n != &plain); // an absent value passes in the unit classes
    }
}

TEST_F(UnitValuesTest, TextHasTheLocalesMarkAndFileTextThePoint) {
  settings.DecimalChar = ',';
  Deflection d(settings);
  d.SetText("1,5");
  EXPECT_EQ(Shown(d), "1,5|   1,5|   1.5");
  d.SetMaxText("2,5");
  d.SetText("9");
  EXPECT_EQ(d.MaxText(), "2,5");
  EXPECT_EQ(d.Default(), 2.5);
}

TEST_F(UnitValuesTest, QuantitiesConvertOnTheUsSideOnly) {
  settings.UnitsUS = true;
  Velocity v(settings);
  v.SetValue(62.1371192237334);
  EXPECT_DOUBLE_EQ(v.Default(), 100);
  EXPECT_EQ(Shown(v), "62.1|  62.1| 100.0");
  Deflection d(settings);
  d.SetDefault(25.4);
  EXPECT_EQ(Shown(d), "1.00|  1.00|  25.4");
  settings.UnitsUS = false;
  settings.FileUnitsUS = true;
  EXPECT_EQ(Shown(d), "25.4|  25.4|  1.00");
  d.SetFileValue(2);
  EXPECT_EQ(d.Default(), 50.8);
  Length l(settings);
  l.SetValue(1e7);
  EXPECT_EQ(l.Default(), 999999);
  l.SetDefault(NaN);
  l.SetFileText("");
  EXPECT_EQ(l.Default(), NaN);
}

TEST_F(UnitValuesTest, MeterFeetShowsTheSmallerUnitToTheUserAlone) {
  MeterFeet m(settings);
  m.SetDefault(1.5);
  m.SetAlternateUnit(true);
  EXPECT_EQ(Shown(m), "1500|  1500|     2");
  m.SetText("2500");
  EXPECT_EQ(m.Default(), 2.5);
  settings.UnitsUS = true;
  m.SetDefault(0.3048);
  EXPECT_EQ(m.Text(), "12");
  m.SetText("24");
  EXPECT_DOUBLE_EQ(m.Default(), 0.6096);
  m.SetAlternateUnit(false);
  EXPECT_EQ(m.Text(), "2.00");
}

TEST_F(UnitValuesTest, AUnitThatFilesDoNotKnowLeavesTheNameAndClearsTheCode) {
  FileUnit unit;
  for (const auto& [number, code] : {std::pair(3, "9"), {6, "0"}}) {
    FileUnitWord(number, unit);
    EXPECT_EQ(unit.FileUnitName + " " + unit.FileUnitCode, std::string("mile.feet ") + code);
  }
}

struct Field {
  std::string text;
  bool caret = false;
  const std::string& Text() const { return text; }
  void SetText(std::string t) { text = std::move(t); }
  void CaretToStart() { caret = true; }
};

TEST(EntryCheckTest, AnEmptyFieldIsNoValueOrZeroBroughtIntoTheLimits) {
  std::int16_t value = 7;
  Field field{" "};
  bool guard = true;
  EXPECT_TRUE(CheckEntry(&value, field, 5, 10, guard, true, true));
  EXPECT_EQ(value, NaNInteger);
  EXPECT_EQ(field.text, "");
  EXPECT_FALSE(guard); // stays cleared on this path
  guard = true;
  EXPECT_FALSE(CheckEntry(&value, field, 5, 10, guard, false, false));
  EXPECT_EQ(value, 5);
  EXPECT_EQ(field.text, "5");
  EXPECT_TRUE(guard);
  EXPECT_FALSE(field.caret);
}

TEST(EntryCheckTest, TheFieldIsRewrittenFromTheVariableWhichKeepsWhatItCannotHold) {
  double number = 0;
  float single = 0;
  std::int32_t whole = 0;
  std::int16_t small = 7;
  const struct {
    EntryVariable variable;
    const char* typed;
    double min, max;
    const char* shown;
  } cases[] = {{&number, " 12,5 ", -1000, 10000, "12.5"},
               {&single, "3.14159265", 0, 10, "3.141593"},
               {&whole, "2.5", 0, 10, "2"},
               {&small, "40000", 0, 100000, "7"},
               {&small, "-32768", -40000, 0, "7"}}; // the sentinel itself can't be typed
  for (const auto& c : cases) {
    Field field{c.typed};
    bool guard = true;
    EXPECT_TRUE(CheckEntry(c.variable, field, c.min, c.max, guard, false, true)) << c.typed;
    EXPECT_EQ(field.text, c.shown);
    EXPECT_TRUE(field.caret);
  }
  EXPECT_TRUE(number == 12.5 && small == 7);
  Field field{"1"};
  bool guard = false;
  EXPECT_FALSE(CheckEntry(EntryVariable{}, field, 0, 5, guard, true, false));
  EXPECT_EQ(field.text, "1");
}

TEST(EntryCheckTest, AWrongEntryBringsTheOperatorBackToItsField) {
  std::int16_t value = 7;
  Field field{"11"};
  bool guard = true, error = false;
  int back = 0;
  const auto leave = [&] {
    ValidateEntry(&value, field, 0, 10, guard, false, [&] {
      EXPECT_FALSE(guard) << "the focus that moves back must not check again";
      ++back;
    });
  };
  leave();
  EXPECT_EQ(back, 1);
  EXPECT_EQ(field.text, "10");
  EXPECT_TRUE(guard);
  leave(); // what was put there is right
  guard = false;
  field.text = "12";
  leave();
  EXPECT_EQ(back, 1);
  EXPECT_FALSE(TestEntry(&value, field, 0, 10, guard, false, error));
  EXPECT_TRUE(TestEntry(&value, field, 0, 10, guard, false, error));
  EXPECT_TRUE(error) << "one wrong field of several is enough";
}

} // namespace trekor::tests
