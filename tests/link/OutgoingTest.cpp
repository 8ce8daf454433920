// The words that this program says: numbers in wire form, units, position.
#include "LinkFixture.h"

#include "values/NumberText.h"

#include <cmath>
#include <limits>

namespace trekor::tests {
namespace {

TEST(WireNumberTest, PositiveNumbersHaveABlankWhereTheSignWouldStand) {
  const struct {
    double number;
    const char* text;
  } cases[] = {{0, " 0"},
               {12.35, " 12.35"},
               {-0.5, "-0.5"},
               {0.5, " 0.5"},
               {NaN, "NaN"},
               {-1e300, "NaN"},
               {std::nan(""), "NaN"},
               {-1e38, "-1E+38"},
               {1.0 / 3, " 0.333333333333333"},
               {-std::numeric_limits<double>::infinity(), "NaN"}};
  for (const auto& c : cases)
    EXPECT_EQ(WireNumber(c.number), c.text);
  EXPECT_EQ(WireSingle(0.1F), " 0.1");
  EXPECT_EQ(WireSingle(NaNSingle), "NaN");
  EXPECT_EQ(WireInteger(-3), "-3");
}

class OutgoingTest : public LinkFixture {};

TEST_F(OutgoingTest, UnitsGoOutInTwoLinesWithAPauseBetween) {
  Connect();
  state.units.StationUnit = 3;
  state.units.FileUnitsUS = true;
  state.units.FileStationUnit = 8;
  const double before = fake.clock.Milliseconds();
  SendUnits(state, socket);
  EXPECT_EQ(Sent(), (Lines{"SET UNITS SI MLFT DEG", "FILE UNITS US STNM"}));
  EXPECT_GE(fake.clock.Milliseconds(), before + 300);
  state.options.GeographicFormat = 1;
  state.units.StationUnit = 9; // no such unit: no word
  SendUnits(state, socket);
  EXPECT_EQ(Sent(), (Lines{"SET UNITS SI", "FILE UNITS US STNM"}));
}

TEST_F(OutgoingTest, ThePositionIsToldInKilometres) {
  Connect();
  state.units.StationUnit = 4;
  state.position.DmiStation.SetDefault(12.35);
  state.position.DmiIncreasing = true;
  Set_DMI(state, socket);
  state.position.DmiSetValue = -7;
  state.position.DmiIncreasing = false;
  state.position.DmiStation.SetDefault(NaN);
  Set_DMI(state, socket);
  SendDmi(state, socket);
  EXPECT_EQ(Sent(), (Lines{"SET DMI  0 1  12.35", "SET DMI -7 -1 NaN", "DMI NaN"}));
}

} // namespace
} // namespace trekor::tests
