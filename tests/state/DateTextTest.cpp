#include "state/DateText.h"

#include <gtest/gtest.h>

namespace trekor::tests {
namespace {

// What a database may hold in the place of a date, and what is written back for it.
TEST(DateText, ReadsWhatADatabaseHolds) {
  const struct {
    const char *stored, *written;
  } cases[] = {
      {"2024-05-06 07:08:09", "2024-05-06 07:08:09"},
      {"0999-12-31 23:59:59", "0999-12-31 23:59:59"},
      {"2024-05-06", "2024-05-06 00:00:00"},
      {"2024/5/6 7:08", "2024-05-06 07:08:00"},
      {"2024-05-06T07:08:09.75", "2024-05-06 07:08:09"},
      {"2024-05", ""},
      {"2024-13-01 00:00:00", ""},
      {"2024-05-06 24:00:00", ""},
      {"2024--5-06", ""},
      {"20240506", ""},
      {"99999999999-05-06", ""},
      {"soon", ""},
      {"", ""},
  };
  for (const auto& c : cases)
    EXPECT_EQ(DateText(ReadDate(c.stored)), c.written) << c.stored;
}

} // namespace
} // namespace trekor::tests
