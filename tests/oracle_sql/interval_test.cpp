#include "oracle_sql/interval.h"

#include <gtest/gtest.h>

#include <string>

#include "function_support.h"

namespace oracle_sql {
namespace {

using Field = IntervalField;

Interval read(const char* text, Field first, Field last, int digits = 2) {
  return intervalOfLiteral(text, {first, last, digits});
}

int readError(const char* text, Field first, Field last, int digits = 2) {
  return errorOf([&] { read(text, first, last, digits); });
}

std::string sum(const char* date, const Interval& interval) {
  return formatDate(d(date).date() + interval, "YYYY-MM-DD HH24:MI:SS");
}

// Oracle's error messages: 01867 the interval is invalid, 01873 the leading precision is too small.
TEST(Interval, textOfAnotherFormIsRefused) {
  EXPECT_EQ(1867, readError("", Field::Day, Field::Day));
  EXPECT_EQ(1867, readError("x", Field::Day, Field::Day));
  EXPECT_EQ(1867, readError("1 2", Field::Day, Field::Day));
  EXPECT_EQ(1867, readError("1", Field::Day, Field::Hour));
  EXPECT_EQ(1867, readError("1:2", Field::Day, Field::Hour));
  EXPECT_EQ(1867, readError("1-2", Field::Day, Field::Hour));
  EXPECT_EQ(1867, readError("1.5", Field::Minute, Field::Minute));
  EXPECT_EQ(1873, readError("100", Field::Day, Field::Day));
  EXPECT_EQ(1873, readError("1000", Field::Minute, Field::Minute, 3));
  EXPECT_EQ(1843, readError("1-12", Field::Year, Field::Month));
  EXPECT_EQ(1850, readError("1 24", Field::Day, Field::Hour));
  EXPECT_EQ(1851, readError("1:60", Field::Hour, Field::Minute));
  EXPECT_EQ(1852, readError("1:60", Field::Minute, Field::Second));
  EXPECT_EQ(FunctionError::kUnsupported, readError("1.5", Field::Second, Field::Second));
}

TEST(Interval, fieldsAddUp) {
  EXPECT_EQ(86400, read("1", Field::Day, Field::Day).amount);
  EXPECT_EQ(400 * 86400, read("400", Field::Day, Field::Day, 3).amount);
  EXPECT_EQ(5400, read("90", Field::Minute, Field::Minute).amount);
  EXPECT_EQ(446400 - 30, read("5 3:59:30", Field::Day, Field::Second).amount);
  EXPECT_EQ(-(446400 - 30), read("-5 3:59:30.000", Field::Day, Field::Second).amount);
  EXPECT_EQ(605, read(" +10:05 ", Field::Minute, Field::Second).amount);
  const Interval months = read("123-2", Field::Year, Field::Month, 3);
  EXPECT_EQ(1478, months.amount);
  EXPECT_TRUE(months.months);
  EXPECT_EQ(36, read("0003", Field::Year, Field::Year).amount);
}

TEST(Interval, dateMovesByItsLength) {
  EXPECT_EQ("2020-03-01 00:30:00", sum("2020-02-29 23:00:00", {5400, false}));
  EXPECT_EQ("2020-02-29 23:59:59", sum("2020-03-01", {-1, false}));
  EXPECT_EQ("2020-12-15 10:00:00", sum("2020-01-15 10:00:00", {11, true}));
  EXPECT_EQ("2019-12-31 10:00:00", sum("2020-01-31 10:00:00", {-1, true}));
  EXPECT_EQ(1841, errorOf([] { sum("9999-12-31", {86400, false}); }));
  EXPECT_EQ(1841, errorOf([] { sum("9999-12-31", {1, true}); }));
}

// Unlike ADD_MONTHS, which goes to the end of the month: Oracle's "Datetime/Interval Arithmetic".
TEST(Interval, monthTooShortForTheDayIsRefused) {
  EXPECT_EQ(1839, errorOf([] { sum("2020-01-31", {1, true}); }));
  EXPECT_EQ(1839, errorOf([] { sum("2020-02-29", {12, true}); }));
  EXPECT_EQ("2020-02-28 00:00:00", sum("2020-01-28", {1, true}));
}

}  // namespace
}  // namespace oracle_sql
