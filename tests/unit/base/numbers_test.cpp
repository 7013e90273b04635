#include "base/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/checked.h"

namespace orvik {
namespace {

TEST(Numbers, LeadingBlankWhereNotNegative) {
  EXPECT_EQ(SpacedDecimal(0), u" 0");
  EXPECT_EQ(SpacedDecimal(2000), u" 2000");
  EXPECT_EQ(SpacedDecimal(-1), u"-1");
}

TEST(Numbers, DecimalReachesBothEnds) {
  EXPECT_EQ(Decimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
  EXPECT_EQ(Decimal(-1567561609), u"-1567561609");
  EXPECT_EQ(Decimal(0), u"0");
}

TEST(Numbers, FormatsGiveAtLeastThatManyPlaces) {
  EXPECT_EQ(Padded(7, 3), u"007");
  EXPECT_EQ(Padded(1000, 3), u"1000");
  EXPECT_EQ(Padded(-7, 2), u"-07");
  EXPECT_EQ(Padded(0, 1), u"0");
  EXPECT_EQ(Padded(0, 0), u"");
  EXPECT_EQ(Padded(-5, 0), u"-5");
}

TEST(Numbers, NumericReadingTakesTheHeadOfTheText) {
  EXPECT_EQ(NumericReading(u""), 0);
  EXPECT_EQ(NumericReading(u"abc"), 0);
  EXPECT_EQ(NumericReading(u"12abc34"), 12);
  EXPECT_EQ(NumericReading(u"  -1 2.5kb"), -12.5);
  EXPECT_EQ(NumericReading(u"1e3"), 1000);
  EXPECT_EQ(NumericReading(u"1d2"), 100);
  EXPECT_EQ(NumericReading(u"1.2.3"), 1.2);
  EXPECT_EQ(NumericReading(u"-"), 0);
  EXPECT_EQ(NumericReading(u"inf"), 0);
}

TEST(Checked, ArithmeticOutsideTheRangeFailsAndKeepsTheValue) {
  Int16 counter = 32766;
  ++counter;
  EXPECT_THROW(++counter, Failure);
  EXPECT_EQ(counter, 32767);
  Int32 low = std::numeric_limits<std::int32_t>::min();
  EXPECT_THROW(--low, Failure);
}

TEST(Checked, RoundingGoesToTheEvenNeighbour) {
  EXPECT_EQ(RoundToInt32(2.5), 2);
  EXPECT_EQ(RoundToInt32(3.5), 4);
  EXPECT_EQ(RoundToInt32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_THROW(RoundToInt32(2147483648.0), Failure);
  EXPECT_THROW(RoundToInt32(std::numeric_limits<double>::quiet_NaN()), Failure);
}

TEST(Failure, DroppedStatementsAndPassingConditions) {
  int value = 1;
  Attempt([&] {
    value = 2;
    throw Failure{};
  });
  EXPECT_EQ(value, 2);
  EXPECT_TRUE(Passes([]() -> bool { throw Failure{}; }));
  EXPECT_FALSE(Passes([] { return false; }));
}

TEST(Failure, TheEndOfTheProcessPassesThrough) {
  struct End {};
  EXPECT_THROW(Attempt([] { throw End{}; }), End);
  EXPECT_THROW((void)Passes([]() -> bool { throw End{}; }), End);
}

}  // namespace
}  // namespace orvik
