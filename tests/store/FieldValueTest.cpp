// A field's value read as another kind.
#include "StoreFixture.h"

#include "support/Case.h"

#include <limits>

namespace trekor::tests {

TEST(FieldValueTest, TextsReadAsTheNumberThatTheyBeginWith) {
  for (const Case c : {"12 -> 12", "  -3.5km -> -3.5", "+7 -> 7", ".5 -> .5", "1e3x -> 1000", " -> 0", "km 3 -> 0",
                       "inf -> 0", "-nan -> 0", "--1 -> 0", "1,5 -> 1"})
    EXPECT_EQ(FieldValue(c.given).Number(), std::stod(c.wanted)) << c.line;
}

TEST(FieldValueTest, NumbersReadAsTheNearestWholeTiesToEvenAndAsTheirShortestText) {
  constexpr auto most = std::numeric_limits<std::int64_t>::max(), least = std::numeric_limits<std::int64_t>::min();
  for (const auto& [real, whole] :
       {std::pair(0.5, std::int64_t{0}), {1.5, 2}, {2.5, 2}, {-2.5, -2}, {-2.51, -3}, {1e300, most}, {-1e300, least}})
    EXPECT_EQ(FieldValue(real).Integer(), whole) << real;
  for (const auto& [real, text] : {std::pair(0.1, "0.1"),
                                   {3000000, "3000000"},
                                   {-0.0, "0"},
                                   {-12.25, "-12.25"},
                                   {999999.999, "999999.999"},
                                   {1e20, "1e+20"},
                                   {1.0 / 3, "0.3333333333333333"}})
    EXPECT_EQ(FieldValue(real).Text(), text);
  EXPECT_EQ(FieldValue(std::int64_t{-5}).Text() + FieldValue(true).Text() + FieldValue().Text(), "-5-1");
}

} // namespace trekor::tests
