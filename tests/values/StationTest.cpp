// Positions along the road in nine units and three notations.
#include "values/Station.h"
#include "values/NumberText.h"

#include "support/Case.h"

#include <gtest/gtest.h>

namespace trekor::tests {

class StationTest : public testing::Test {
protected:
  // Sets a number of the user's unit as the text would, without its limits.
  Station& At(double number, int unit) {
    settings.StationUnit = settings.FileStationUnit = unit;
    station.SetDefault(Station::StationToKm(number, unit));
    return station;
  }
  UnitSettings settings;
  Station station{settings};
};

// Inches are whole in the free text only; a unit that is none has no text.
TEST_F(StationTest, EveryUnitHasItsTexts) {
  const struct {
    int unit;
    double number;
    const char *text, *fixed;
  } cases[] = {{0, 12.3456, "12.346", "  12.346"},   {1, 12345.67, "12345.7", " 12345.7"},
               {2, 7.5, "7.500", "   7.500"},        {3, 12.3456, "12.3456", " 12.3456"},
               {4, 528.25, "528.3", "   528.3"},     {5, 1760, "1760.0", "  1760.0"},
               {6, 63360.4, "63360", " 63360.4"},    {7, 1234.5, "12+34.5", " 12+34.5"},
               {7, -1234.5, "-12-34.5", "-12-34.5"}, {7, 0.5, "0+00.5", "  0+00.5"},
               {8, 1234.5, "012+34.5", "01+234.5"},  {8, -1234.5, "-012-34.5", "-01-234.5"},
               {8, 0, "000+00.0", "00+000.0"},       {3, -12.3456, "-12.3456", "-12.3456"},
               {1, -250.5, "-250.5", "  -250.5"},    {8, 1234567.5, "12345+67.5", "1234+567.5"}};
  for (const auto& c : cases) {
    At(c.number, c.unit);
    EXPECT_EQ(station.Text(), c.text) << "unit " << c.unit;
    EXPECT_EQ(station.FixedText(), c.fixed) << "unit " << c.unit;
    EXPECT_EQ(station.FileText(), c.fixed) << "unit " << c.unit;
    const double km = station.Default(), filed = station.FiledValue();
    for (const auto set : {&Station::SetText, &Station::SetFileText}) { // as the text of either side it comes back
      (station.*set)(c.fixed);
      EXPECT_NEAR(station.Default(), km, 0.0005) << c.fixed << " in unit " << c.unit;
    }
    Station stored{settings};
    stored.SetFileValue(filed);
    EXPECT_EQ(stored.Default(), station.Default()) << c.fixed << " in unit " << c.unit << " as a number";
  }
  EXPECT_EQ(At(5, 9).Text(), "");
  EXPECT_EQ(station.FixedText(), "");
}

TEST_F(StationTest, MileFeetRoundsToAWholeFootAndCarries) {
  EXPECT_DOUBLE_EQ(Station::KmToStation(Station::StationToKm(12.3456, 3), 3), 12.3456);
  EXPECT_DOUBLE_EQ(Station::KmToStation(-Station::StationToKm(12.3456, 3), 3), -12.3456);
  EXPECT_EQ(At(1.52796, 3).Text(), "2.0000");
  EXPECT_EQ(At(0, 3).Text(), "0.0000");
  EXPECT_EQ(Station::StationToKm(NaN, 3), NaN);
  EXPECT_EQ(Station::KmToStation(5, 9), 0);
}

TEST_F(StationTest, UserAndFileSideHaveTheirOwnUnits) {
  settings.StationUnit = 7;
  station.SetDefault(1);
  EXPECT_DOUBLE_EQ(station.Value(), 5280 * 0.621371192237334);
  EXPECT_EQ(station.FileValue(), 1);
  settings.DecimalChar = ',';
  EXPECT_EQ(station.Text(), "32+80,8");
  EXPECT_EQ(station.FileText(), "   1.000");
}

TEST_F(StationTest, LimitsAreKilometresAndNoValuePasses) {
  station.SetValue(20000);
  EXPECT_EQ(station.Default(), 10000);
  station.SetDefault(20000);
  EXPECT_FALSE(station.Test());
  station.SetText(" ");
  EXPECT_EQ(station.Default(), NaN);
  EXPECT_TRUE(station.Test());
  EXPECT_EQ(station.Text() + station.FixedText(), "        ");
  settings.StationUnit = 8;
  station.SetText("garbage");
  EXPECT_EQ(station.Default(), 0);
  for (const double wild : {1e308, -1e308, 1e-320, std::numeric_limits<double>::infinity()}) {
    station.SetDefault(wild);
    for (settings.StationUnit = -1; settings.StationUnit < 10; ++settings.StationUnit)
      station.SetText(station.Text() + station.FixedText());
  }
}

TEST(StationDigitsTest, OneInnerMarkGoes) {
  for (const Case c : {"12+34.5 -> 1234.5", "-12-34.5 -> -1234.5", "+12 -> +12", "12+34+5 -> 1234+5",
                       "12-34.5 -> 1234.5", " 12+34  -> 1234", " 12  ->  12 ", "+12+34 -> +1234", "++12 -> ++12",
                       "-12+34 -> -1234", "--5 -> --5", " -> ", "+ -> +", "+- -> +"})
    EXPECT_EQ(StationDigits(c.given), c.wanted) << c.line;
}

} // namespace trekor::tests
