#include "oracle_sql/date/date.h"

#include <gtest/gtest.h>

#include <string>

#include "function_support.h"

namespace oracle_sql {
namespace {

Date day(const char* text) { return d(text).date(); }

std::string text(const Date& date) { return formatDate(date, "YYYY-MM-DD HH24:MI:SS"); }

TEST(Date, aDayThatDoesNotExistIsRefusedByItsOwnError) {
  EXPECT_EQ(1839, errorOf([] { Date::fromFields({2023, 2, 29}); }));
  EXPECT_EQ(1839, errorOf([] { Date::fromFields({1900, 2, 29}); }));
  EXPECT_EQ(1847, errorOf([] { Date::fromFields({2023, 1, 32}); }));
  EXPECT_EQ(1847, errorOf([] { Date::fromFields({2023, 1, 0}); }));
  EXPECT_EQ(1843, errorOf([] { Date::fromFields({2023, 13, 1}); }));
  EXPECT_EQ(1841, errorOf([] { Date::fromFields({0, 12, 31}); }));
  EXPECT_EQ(1841, errorOf([] { Date::fromFields({10000, 1, 1}); }));
}

TEST(Date, secondsCountFromTheBeginningOf1970) {
  EXPECT_EQ(0, day("1970-01-01").seconds);
  EXPECT_EQ(-1, day("1969-12-31 23:59:59").seconds);
  EXPECT_EQ(951782400, day("2000-02-29").seconds);
  EXPECT_EQ(253402300799, day("9999-12-31 23:59:59").seconds);
}

TEST(Date, fieldsComeBackThroughEveryDayOfLeapYears) {
  for (const int year : {1582, 1600, 1900, 1999, 2000, 2004}) {
    for (Date at = Date::fromFields({year, 1, 1}); at.fields().year == year; at.seconds += 86400) {
      DateFields f = at.fields();
      ASSERT_EQ(at.seconds, Date::fromFields(f).seconds) << text(at);
    }
  }
}

// The ten days that the calendar left out in 1582.
TEST(Date, theCalendarIsJulianBeforeOctober1582) {
  const Date last = Date::fromFields({1582, 10, 4});
  EXPECT_EQ("1582-10-15 00:00:00", text(last + Number(1)));
  EXPECT_EQ(2299160, last.julianDay());
  EXPECT_EQ(2444190, day("1979-11-12").julianDay());
  EXPECT_EQ(29, daysInMonth(1500, 2));
}

// What seanstuber.com "Looking Through Holes in Time" shows of TO_DATE.
TEST(Date, theTenDaysThatWereLeftOutAreTheNextOne) {
  EXPECT_EQ("1582-10-15 12:34:56", text(Date::fromFields({1582, 10, 10, 12, 34, 56})));
  EXPECT_EQ("1582-10-15 00:00:00", text(Date::fromFields({1582, 10, 5})));
  EXPECT_EQ("1582-10-15 00:00:00", text(Date::fromFields({1582, 10, 14})));
  EXPECT_EQ("1582-10-16 00:00:00", text(Date::fromFields({1582, 10, 16})));
}

TEST(Date, yearsBeforeChristAreRefusedByName) {
  const Date first = Date::fromFields({1, 1, 1});
  EXPECT_EQ(1721424, first.julianDay());
  EXPECT_TRUE(isRefused([] { Date::fromFields({-1, 12, 31}); }));
  EXPECT_TRUE(isRefused([&] { (void)(first - Number(1)); }));
  EXPECT_TRUE(isRefused([&] { addMonths(first, -2); }));
}

TEST(Date, fieldsComeBackThroughEveryDayOfTheFirstYears) {
  for (Date at = Date::fromFields({1, 1, 1}); at.fields().year < 5; at.seconds += 86400)
    ASSERT_EQ(at.seconds, Date::fromFields(at.fields()).seconds) << text(at);
}

TEST(Date, weekdaysFollowTheCalendar) {
  EXPECT_EQ(1, day("1979-11-12").weekday());  // a Monday
  EXPECT_EQ(6, day("2000-01-01").weekday());  // a Saturday
  EXPECT_EQ(4, day("1970-01-01").weekday());  // a Thursday
}

TEST(Date, differenceIsANumberOfDays) {
  EXPECT_EQ("1.5", (day("2020-01-02 12:00:00") - day("2020-01-01")).toPlainText());
  EXPECT_EQ("-366", (day("2020-01-01") - day("2021-01-01")).toPlainText());
  EXPECT_EQ("0.0416666666666666666666666666666666666667",
            (day("2020-01-01 05:00:00") - day("2020-01-01 04:00:00")).toPlainText());
  EXPECT_EQ("954.477673611111111111111111111111111111",
            (day("2025-10-20 22:11:17") - day("2023-03-11 10:43:26")).toPlainText());
  // One second over midnight has the forty places of 86399/86400, within a day those of 1/86400.
  EXPECT_EQ("0.0000115740740740740740740740740740740741",
            (day("2025-10-21") - day("2025-10-20 23:59:59")).toPlainText());
  EXPECT_EQ("0.00001157407407407407407407407407407407407407",
            (day("2025-10-20 00:00:01") - day("2025-10-20")).toPlainText());
}

TEST(Date, sumIsRoundedToWholeSeconds) {
  EXPECT_EQ("2020-01-01 00:00:01", text(day("2020-01-01") + Number(1) / Number(86400)));
  EXPECT_EQ("2020-01-01 01:00:00", text(day("2020-01-01") + Number(1) / Number(24)));
  EXPECT_EQ("2019-12-31 23:59:59", text(day("2020-01-01") - Number(1) / Number(86400)));
  EXPECT_EQ("2020-01-01 00:00:01", text(day("2020-01-01") + Number(1) / Number(2) / Number(86400)));
  EXPECT_EQ("2020-01-01 00:00:00", text(day("2020-01-01") + Number(49) / Number(100) / Number(86400)));
}

TEST(Date, sumOutsideTheYearsOfADateFails) {
  EXPECT_EQ(1841, errorOf([] { (void)(day("9999-12-31") + Number(1)); }));
  EXPECT_TRUE(isRefused([] { (void)(day("2020-01-01") - Number(10000000)); }));
  EXPECT_EQ(1841, errorOf([] { (void)(day("2020-01-01") + *Number::parse("1e100")); }));
  EXPECT_EQ(1841, errorOf([] { addMonths(day("9999-12-31"), 1); }));
  EXPECT_EQ(1841, errorOf([] { addMonths(day("2020-01-01"), 1000000000); }));
}

TEST(Date, addedMonthsStickToMonthEnds) {
  EXPECT_EQ("2003-05-01 00:00:00", text(addMonths(day("2003-08-01"), -3)));
  EXPECT_EQ("2008-03-28 00:00:00", text(addMonths(day("2008-02-28"), 1)));
  EXPECT_EQ("2007-03-31 00:00:00", text(addMonths(day("2007-02-28"), 1)));
  EXPECT_EQ("2014-09-30 00:00:00", text(addMonths(day("2014-03-31"), 6)));
  EXPECT_EQ("2023-02-28 10:00:00", text(addMonths(day("2023-01-29 10:00:00"), 1)));
  EXPECT_EQ("2022-12-15 00:00:00", text(addMonths(day("2023-01-15"), -1)));
}

TEST(Date, monthsBetweenAreWholeForEqualDaysAndForMonthEnds) {
  EXPECT_EQ("2", monthsBetween(day("2003-08-02"), day("2003-06-02")).toPlainText());
  EXPECT_EQ("1", monthsBetween(day("1995-02-15 02:01:01"), day("1995-01-15 01:00:01")).toPlainText());
  EXPECT_EQ("-1", monthsBetween(day("2008-01-31"), day("2008-02-29")).toPlainText());
  EXPECT_EQ("0.2", monthsBetween(day("2024-02-29 15:50:39"), day("2024-02-23 11:02:39")).toPlainText());
  EXPECT_EQ("0.8836630077658303464755077658303464755078",
            monthsBetween(day("2024-02-28 01:14:22"), day("2024-01-31 15:47:39")).toPlainText());
  EXPECT_EQ("248.000000373357228195937873357228195938",
            monthsBetween(day("2033-10-01"), day("2013-01-31 23:59:59")).toPlainText());
}

TEST(Date, nextDayIsNeverTheDayItself) {
  EXPECT_EQ("2003-08-13 00:00:00", text(nextDay(day("2003-08-06"), "WEDNESDAY")));
  EXPECT_EQ("2008-01-06 00:00:00", text(nextDay(day("2008-01-01"), "sun")));
  EXPECT_EQ("2003-08-07 10:00:00", text(nextDay(day("2003-08-06 10:00:00"), "Thu")));
  EXPECT_EQ(1846, errorOf([] { nextDay(day("2003-08-06"), "mittwoch"); }));
}

TEST(Date, lastDayKeepsTheTime) {
  EXPECT_EQ("2003-02-28 10:21:32", text(lastDay(day("2003-02-03 10:21:32"))));
  EXPECT_EQ("1900-02-28 00:00:00", text(lastDay(day("1900-02-01"))));
  EXPECT_EQ("2000-02-29 00:00:00", text(lastDay(day("2000-02-01"))));
}

// 2003-08-22 was a Friday; August began on a Friday, the year on a Wednesday.
TEST(Date, truncationGoesToTheBeginningOfTheUnit) {
  const std::pair<const char*, const char*> cases[] = {
      {"CC", "2001-01-01 00:00:00"},   {"YYYY", "2003-01-01 00:00:00"}, {"year", "2003-01-01 00:00:00"},
      {"IYYY", "2002-12-30 00:00:00"}, {"Q", "2003-07-01 00:00:00"},    {"MM", "2003-08-01 00:00:00"},
      {"WW", "2003-08-20 00:00:00"},   {"IW", "2003-08-18 00:00:00"},   {"W", "2003-08-22 00:00:00"},
      {"DD", "2003-08-22 00:00:00"},   {"DAY", "2003-08-17 00:00:00"},  {"HH24", "2003-08-22 15:00:00"},
      {"MI", "2003-08-22 15:47:00"}};
  for (const auto& [model, result] : cases) {
    EXPECT_EQ(result, text(truncDate(day("2003-08-22 15:47:11"), model))) << model;
  }
  // connor-mcdonald.com "Truncating a timestamp to the second"
  EXPECT_EQ(1899, errorOf([] { truncDate(day("2003-08-22"), "SS"); }));
  EXPECT_EQ(1898, errorOf([] { truncDate(day("2003-08-22"), "DD-MON-YYYY"); }));
  EXPECT_EQ(1821, errorOf([] { truncDate(day("2003-08-22"), "nonsense"); }));
}

TEST(Date, roundingTurnsWhereTheUnitDoes) {
  const auto rounded = [](const char* date, const char* model) { return text(roundDate(day(date), model)); };
  EXPECT_EQ("2003-08-23 00:00:00", rounded("2003-08-22 12:00:00", "DD"));
  EXPECT_EQ("2003-08-22 00:00:00", rounded("2003-08-22 11:59:59", "DD"));
  EXPECT_EQ("2003-08-01 00:00:00", rounded("2003-08-15 23:59:59", "MM"));
  EXPECT_EQ("2003-09-01 00:00:00", rounded("2003-08-16", "MM"));
  EXPECT_EQ("2003-10-01 00:00:00", rounded("2003-08-22", "Q"));
  EXPECT_EQ("2003-07-01 00:00:00", rounded("2003-08-15", "Q"));
  EXPECT_EQ("2003-01-01 00:00:00", rounded("2003-06-30", "YYYY"));
  EXPECT_EQ("2001-01-01 00:00:00", rounded("2000-10-27", "YEAR"));
  EXPECT_EQ("2001-01-01 00:00:00", rounded("2050-12-31", "CC"));
  EXPECT_EQ("2101-01-01 00:00:00", rounded("2051-01-01", "CC"));
  EXPECT_EQ("2020-02-29 15:00:00", rounded("2020-02-29 14:30:00", "HH"));
  EXPECT_EQ("2020-02-29 14:40:00", rounded("2020-02-29 14:40:29", "MI"));
}

}  // namespace
}  // namespace oracle_sql
