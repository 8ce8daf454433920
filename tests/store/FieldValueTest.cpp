// A field's value read as another kind.
#include "store/FieldValue.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace trekor {

TEST(FieldValueTest, TextsReadAsTheNumberThatTheyBeginWith) {
  struct Case {
    const char* text;
    double number;
  };
  for (const Case& each :
       {Case{"12", 12}, Case{"  -3.5km", -3.5}, Case{"+7", 7}, Case{".5", .5}, Case{"1e3x", 1000}, Case{"", 0},
        Case{"km 3", 0}, Case{"inf", 0}, Case{"-nan", 0}, Case{"--1", 0}, Case{"1,5", 1}})
    EXPECT_EQ(FieldValue(each.text).Number(), each.number) << each.text;
}

TEST(FieldValueTest, RealsRoundToNearestTiesToEven) {
  struct Case {
    double real;
    std::int64_t whole;
  };
  for (const Case& each :
       {Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{-2.5, -2}, Case{-2.51, -3},
        Case{1e300, std::numeric_limits<std::int64_t>::max()}, Case{-1e300, std::numeric_limits<std::int64_t>::min()}})
    EXPECT_EQ(FieldValue(each.real).Integer(), each.whole) << each.real;
}

TEST(FieldValueTest, NumbersReadAsTheirShortestText) {
  struct Case {
    double real;
    const char* text;
  };
  for (const Case& each : {Case{0.1, "0.1"}, Case{100000, "100000"}, Case{-0.0, "0"}, Case{-12.25, "-12.25"},
                           Case{999999.999, "999999.999"}, Case{1e20, "1e+20"}, Case{1.0 / 3, "0.3333333333333333"}})
    EXPECT_EQ(FieldValue(each.real).Text(), each.text);
  EXPECT_EQ(FieldValue(std::int64_t{-5}).Text() + FieldValue(true).Text() + FieldValue().Text(), "-5-1");
}

} // namespace trekor
