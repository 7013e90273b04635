#include "forms/headless/values.h"

#include <gtest/gtest.h>

namespace orvik::forms::headless {
namespace {

TEST(Values, ANumberIsDigitsAndNothingElse) {
  EXPECT_EQ(ReadNumber("0"), 0);
  EXPECT_EQ(ReadNumber("007"), 7);
  EXPECT_EQ(ReadNumber("9223372036854775807"), 9223372036854775807);
  for (const char* bad : {"", "-1", "-0", "+1", " 1", "1 ", "0x1", "1.5", "9223372036854775808"}) {
    EXPECT_EQ(ReadNumber(bad), std::nullopt) << bad;
  }
  EXPECT_EQ(ReadNumber("8", 7), std::nullopt);
}

TEST(Values, ADateMustExist) {
  const auto read = ReadDateTime("2024-02-29 23:59:58");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->year, 2024);
  EXPECT_EQ(read->month, 2);
  EXPECT_EQ(read->day, 29);
  EXPECT_EQ(read->hour, 23);
  EXPECT_EQ(read->minute, 59);
  EXPECT_EQ(read->second, 58);
  for (const char* bad :
       {"", "2023-02-29 00:00:00", "2024-13-01 00:00:00", "2024-00-01 00:00:00",
        "2024-01-01 24:00:00", "2024-01-01 00:60:00", "2024-01-01 00:00:60", "2024-01-01",
        "2024-01-01T00:00:00", "2024-01-01 00:00:00 ", "2024-1-01 00:00:000"}) {
    EXPECT_FALSE(ReadDateTime(bad)) << bad;
  }
}

TEST(Values, TimeGoesOnOverTheEndOfAYear) {
  const host::DateTime later = Later({2023, 12, 31, 23, 59, 59}, 1999);
  EXPECT_EQ(later.year, 2024);
  EXPECT_EQ(later.month, 1);
  EXPECT_EQ(later.day, 1);
  EXPECT_EQ(later.hour, 0);
  EXPECT_EQ(later.second, 0);
  EXPECT_EQ(Later({2023, 12, 31, 23, 59, 59}, 999).second, 59);
}

TEST(Values, AKeyBeginsWithItsRoot) {
  const auto machine = ReadKeyPath(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\X");
  ASSERT_TRUE(machine);
  EXPECT_EQ(machine->root, host::kLocalMachine);
  EXPECT_EQ(machine->path, u"SOFTWARE\\X");
  const auto classes = ReadKeyPath(u"HKEY_CLASSES_ROOT\\*\\Shell");
  ASSERT_TRUE(classes);
  EXPECT_EQ(classes->root, host::kClassesRoot);
  for (TextView bad : {TextView(u""), TextView(u"HKEY_LOCAL_MACHINE"),
                       TextView(u"HKEY_LOCAL_MACHINE\\"), TextView(u"HKEY_CURRENT_USER\\X")}) {
    EXPECT_FALSE(ReadKeyPath(bad));
  }
}

}  // namespace
}  // namespace orvik::forms::headless
