#include "oracle_sql/date/date_format.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

std::string written(const char* date, const char* model) { return formatDate(d(date).date(), model); }

std::string readAs(const char* text, const char* model) {
  return formatDate(parseDate(text, model, {kNow}), "YYYY-MM-DD HH24:MI:SS");
}

int readError(const char* text, const char* model) {
  return errorOf([&] { readAs(text, model); });
}

TEST(DateFormat, elementThatThereIsNoneOfIsRefused) {
  for (const char* model : {"YYYY年", "ZZ", "FF3", "YYYY\"open", "HH25X9", "TZH"}) {
    EXPECT_EQ(1821, errorOf([&] { written("2020-01-01", model); })) << model;
  }
}

TEST(DateFormat, everyElementOfAnAfternoon) {
  const std::pair<const char*, const char*> cases[] = {{"YYYY-MM-DD HH24:MI:SS", "2009-03-04 15:07:09"},
                                                       {"YYY YY Y", "009 09 9"},
                                                       {"Y,YYY", "2,009"},
                                                       {"RR RRRR", "09 2009"},
                                                       {"CC", "21"},
                                                       {"Q", "1"},
                                                       {"MONTH", "MARCH    "},
                                                       {"Month", "March    "},
                                                       {"month", "march    "},
                                                       {"MON Mon mon", "MAR Mar mar"},
                                                       {"DAY", "WEDNESDAY"},
                                                       {"Dy DY dy", "Wed WED wed"},
                                                       {"D DD DDD", "4 04 063"},
                                                       {"WW W IW", "09 1 10"},
                                                       {"IYYY IYY IY I", "2009 009 09 9"},
                                                       {"J", "2454895"},
                                                       {"HH HH12 AM", "03 03 PM"},
                                                       {"a.m. P.M. Am", "p.m. P.M. Pm"},
                                                       {"AD B.C. ad", "AD A.D. ad"},
                                                       {"SSSSS", "54429"},
                                                       {"YYYY\"at\"MM", "2009at03"},
                                                       {"DD_MM|YY", "04_03|09"}};
  for (const auto& [model, text] : cases) {
    EXPECT_EQ(text, written("2009-03-04 15:07:09", model)) << model;
  }
}

TEST(DateFormat, elementThatNobodyAsksForIsRefusedByItsName) {
  const std::pair<const char*, const char*> cases[] = {
      {"YYYY YEAR", "YEAR"},  {"Ddspth", "DDSP"}, {"ddth", "DDTH"}, {"SYYYY", "SYYYY"}, {"scc", "SCC"},
      {"FXDD-MM-YYYY", "FX"}, {"RM", "RM"},       {"DL", "DL"},     {"DS TS", "DS"},    {"SSXFF", "X"}};
  for (const auto& [model, element] : cases) {
    try {
      written("2009-03-04", model);
      FAIL() << model;
    } catch (const FunctionError& error) {
      EXPECT_EQ(FunctionError::kUnsupported, error.code()) << model;
      EXPECT_EQ("the date format element " + std::string(element), error.what());
    }
  }
}

TEST(DateFormat, fillModeDropsPaddingUntilItIsToggledBack) {
  EXPECT_EQ("5 February 2011", written("2011-02-05", "fmDD Month YYYY"));
  EXPECT_EQ("05 February  2011", written("2011-02-05", "DD Month YYYY"));
  EXPECT_EQ("5/2/2011", written("2011-02-05", "fmDD/MM/YYYY"));
  EXPECT_EQ("5/02", written("2011-02-05", "FMDD/FMMM"));
  EXPECT_EQ("9:5:3", written("2011-02-05 09:05:03", "FMHH24:MI:SS"));
}

TEST(DateFormat, weeksAndTheirYearsAroundTheTurnOfTheYear) {
  EXPECT_EQ("01-1 2000-01 1999-52", written("2000-01-01", "MM-W YYYY-WW IYYY-IW"));
  EXPECT_EQ("01-1 2000-01 2000-01", written("2000-01-03", "MM-W YYYY-WW IYYY-IW"));
  EXPECT_EQ("2020-53", written("2021-01-03", "IYYY-IW"));
  EXPECT_EQ("2009-01", written("2008-12-29", "IYYY-IW"));
  EXPECT_EQ("53", written("2008-12-30", "WW"));
}

TEST(DateFormat, midnightAndNoonAreTwelve) {
  EXPECT_EQ("12 AM 00", written("2020-01-01 00:05:00", "HH12 AM HH24"));
  EXPECT_EQ("12 PM 12", written("2020-01-01 12:05:00", "HH12 AM HH24"));
}

TEST(DateParse, textThatDoesNotFitFailsWithTheServersErrors) {
  EXPECT_EQ(1858, readError("x", "YYYY"));
  EXPECT_EQ(1843, readError("13", "MM"));
  EXPECT_EQ(1843, readError("Brumaire", "MONTH"));
  EXPECT_EQ(1847, readError("32", "DD"));
  EXPECT_EQ(1839, readError("2023-02-29", "YYYY-MM-DD"));
  EXPECT_EQ(1850, readError("24", "HH24"));
  EXPECT_EQ(1849, readError("13", "HH"));
  EXPECT_EQ(1851, readError("60", "MI"));
  EXPECT_EQ(1852, readError("60", "SS"));
  EXPECT_EQ(1853, readError("86400", "SSSSS"));
  EXPECT_EQ(1848, readError("2023 366", "YYYY DDD"));
  EXPECT_EQ(1854, readError("0", "J"));
  EXPECT_EQ(1855, readError("10 XX", "HH AM"));
  EXPECT_EQ(1830, readError("2020-01-01 10", "YYYY-MM-DD"));
  EXPECT_EQ(1840, readError("2020-01", "YYYY-MM-DD"));
  EXPECT_EQ(1841, readError("0000", "YYYY"));
  EXPECT_EQ(1861, readError("2020b01", "YYYY\"a\"MM"));
  EXPECT_EQ(1835, readError("MON 2020-01-01", "DY YYYY-MM-DD"));
}

// Oracle8 Error Messages, "The Date Function Messages".
TEST(DateParse, modelsThatContradictThemselvesAreRefusedWhateverTheText) {
  const std::pair<const char*, int> cases[] = {
      {"YYYY YYYY", 1810}, {"MI MI", 1810},   {"J DDD", 1811},   {"YYYY YY", 1812}, {"YYYY RR", 1812},
      {"HH HH24", 1813},   {"AM P.M.", 1814}, {"AD B.C.", 1815}, {"MM MON", 1816},  {"D DY", 1817},
      {"HH24 AM", 1818},   {"WW", 1820},      {"Q", 1820},       {"IYYY", 1820},    {"CC", 1820}};
  for (const auto& [model, code] : cases) {
    EXPECT_EQ(code, readError("1", model)) << model;
  }
}

// The same page: what is told twice must agree. 2454954 is 2009-05-02, the 122nd day.
TEST(DateParse, partsThatContradictEachOtherAreRefused) {
  EXPECT_EQ("2009-05-02 00:00:00", readAs("2454954 2009 5 2", "J YYYY MM DD"));
  EXPECT_EQ(1831, readError("2454954 2010", "J YYYY"));
  EXPECT_EQ(1833, readError("2454954 06", "J MM"));
  EXPECT_EQ(1834, readError("2454954 03", "J DD"));
  EXPECT_EQ(1833, readError("2009 122 06", "YYYY DDD MM"));
  EXPECT_EQ(1834, readError("2009 122 03", "YYYY DDD DD"));
  EXPECT_EQ("2024-06-01 01:00:05", readAs("3605 1 0 5", "SSSSS HH24 MI SS"));
  EXPECT_EQ("2024-06-01 13:00:00", readAs("46800 01 PM", "SSSSS HH PM"));
  EXPECT_EQ(1836, readError("3600 02", "SSSSS HH24"));
  EXPECT_EQ(1837, readError("3600 01", "SSSSS MI"));
  EXPECT_EQ(1838, readError("3600 01", "SSSSS SS"));
}

// ixora.com.au "Julian days and year 0".
TEST(DateParse, noDayBeforeTheYearOneIsRead) {
  EXPECT_TRUE(isRefused([] { readAs("1", "J"); }));
  EXPECT_TRUE(isRefused([] { readAs("1721423", "J"); }));
  EXPECT_TRUE(isRefused([] { readAs("44 BC", "YYYY BC"); }));
  EXPECT_EQ("0001-01-01 00:00:00", readAs("1721424", "J"));
}

TEST(DateParse, everyElementIsRead) {
  const std::vector<std::array<const char*, 3>> cases = {
      {"1979-11-12 08:12:34", "YYYY-MM-DD HH24:MI:SS", "1979-11-12 08:12:34"},
      {"12-NOV-79", "DD-MON-RR", "1979-11-12 00:00:00"},
      {"12 november 1979", "DD Month YYYY", "1979-11-12 00:00:00"},
      {"1979 316", "YYYY DDD", "1979-11-12 00:00:00"},
      {"2444190", "J", "1979-11-12 00:00:00"},
      {"12345", "SSSSS", "2024-06-01 03:25:45"},
      {"08:12 PM", "HH:MI AM", "2024-06-01 20:12:00"},
      {"12:30 a.m.", "HH:MI A.M.", "2024-06-01 00:30:00"},
      {"12:30 PM", "HH:MI PM", "2024-06-01 12:30:00"},
      {"Wed 2009-03-04", "DY YYYY-MM-DD", "2009-03-04 00:00:00"},
      {"1,979", "Y,YYY", "1979-06-01 00:00:00"}};
  for (const auto& [text, model, result] : cases) {
    EXPECT_EQ(result, readAs(text, model)) << text << " with " << model;
  }
}

TEST(DateParse, whatIsMissingIsTheFirstDayOfTheMonthAtMidnight) {
  EXPECT_EQ("2020-06-01 00:00:00", readAs("2020", "YYYY"));
  EXPECT_EQ("2024-03-01 00:00:00", readAs("03", "MM"));
  EXPECT_EQ("2020-03-04 05:00:00", readAs("2020-03-04 05", "YYYY-MM-DD HH24"));
  EXPECT_EQ("2020-03-04 00:00:00", readAs("2020-03-04", "YYYY-MM-DD HH24:MI:SS"));
}

TEST(DateParse, marksAndBlanksAreLoose) {
  EXPECT_EQ("2020-03-04 00:00:00", readAs("2020/03.04", "YYYY-MM-DD"));
  EXPECT_EQ("2020-03-04 00:00:00", readAs("20200304", "YYYY-MM-DD"));
  EXPECT_EQ("2020-03-04 00:00:00", readAs("  2020-3-4 ", "YYYY-MM-DD"));
  EXPECT_EQ("1998-01-02 00:00:00", readAs("980102", "RRMMDD"));
  EXPECT_EQ("2020-03-01 00:00:00", readAs("2020-03", "YYYY MM"));
  EXPECT_EQ("2020-03-01 00:00:00", readAs("2020T03", "YYYY\"t\"MM"));
}

// Oracle's "String-to-Date Conversion Rules": marks may be left out where every digit is written. A text of
// another model, such as an ISO date for DD-MON-RR, fails by the mark that it lacks; techonthenet.com
// ORA-01861 has the last.
TEST(DateParse, marksMayBeLeftOutBeforeCompleteNumbersOnly) {
  EXPECT_EQ("2015-09-23 23:20:00", readAs("20150923 23:20:00", "YYYY-MM-DD HH24:MI:SS"));
  EXPECT_EQ("2015-09-24 23:30:00", readAs("20150924233000", "YYYY-MM-DD HH24:MI:SS"));
  EXPECT_EQ("2016-08-10 00:00:00", readAs("10AUGUST2016", "DD-MM-RR"));
  EXPECT_EQ("2016-08-10 00:00:00", readAs("10AUG2016", "DD-MONTH-RR"));
  EXPECT_EQ(1861, readError("202031", "YYYY-MM-DD"));
  EXPECT_EQ(1861, readError("2009-05-06", "DD-MON-RR"));
  EXPECT_EQ(1861, readError("20041308", "yyyy/mm/dd"));
}

// The same rules: names do for MM, and full names for short ones.
TEST(DateParse, namesDoForNumbersOfMonthsButNotTheOtherWayRound) {
  EXPECT_EQ("2016-08-10 00:00:00", readAs("10-AUGUST-2016", "DD-MM-RRRR"));
  EXPECT_EQ(1843, readError("18-02-2016", "DD/MON/YYYY"));
}

// Now is 2024: two digits are of the half century around it.
TEST(DateParse, shortYearsAreCompletedFromTheCurrentOne) {
  EXPECT_EQ("1998-06-01 00:00:00", readAs("98", "RR"));
  EXPECT_EQ("1950-06-01 00:00:00", readAs("50", "RR"));
  EXPECT_EQ("2049-06-01 00:00:00", readAs("49", "RR"));
  EXPECT_EQ("2017-06-01 00:00:00", readAs("17", "RRRR"));
  EXPECT_EQ("2098-06-01 00:00:00", readAs("98", "YY"));
  EXPECT_EQ("2027-06-01 00:00:00", readAs("7", "Y"));
  EXPECT_EQ("1998-06-01 00:00:00", readAs("1998", "RR"));
  EXPECT_EQ("1998-06-01 00:00:00", readAs("1998", "YY"));
  EXPECT_EQ(1830, readError("1998", "Y"));
  EXPECT_EQ("1998-10-27 00:00:00", readAs("27-10-1998", "DD-MM-RR"));
}

}  // namespace
}  // namespace oracle_sql
