#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

TEST(FunctionTable, findsNamesInAnyCaseAndNoOthers) {
  EXPECT_EQ(nullptr, findFunction(""));
  EXPECT_EQ(nullptr, findFunction("NO_SUCH"));
  EXPECT_EQ(nullptr, findFunction("V1024"));
  EXPECT_EQ("SUBSTR", findFunction("substr")->name);
  EXPECT_EQ(nullptr, findFunction("STATSPACK.V1024"));
  for (const Function& function : functionTable()) {
    EXPECT_EQ(&function, findFunction(function.name));
    EXPECT_LE(function.minArguments, function.maxArguments) << function.name;
  }
}

TEST(FunctionTable, onlySysdateAndToDateDependOnMoreThanTheirArguments) {
  for (const Function& function : functionTable()) {
    EXPECT_EQ(function.name != "SYSDATE" && function.name != "TO_DATE", function.deterministic)
        << function.name;
  }
}

Type typeOf(const char* name, std::vector<Type> types) { return findFunction(name)->resultType(types); }

constexpr Type kNull{TypeKind::Null};
constexpr Type kNumber{TypeKind::Number};
constexpr Type kWhole{TypeKind::Number, true};
constexpr Type kText{TypeKind::Varchar2};
constexpr Type kChar{TypeKind::Char, false, 3};
constexpr Type kDate{TypeKind::Date};

TEST(FunctionTypes, decodeTakesTheTypeOfItsFirstResultAndNullMeansText) {
  EXPECT_EQ(kText, typeOf("DECODE", {kNumber, kNumber, kNull, kNumber}));
  EXPECT_EQ(kText, typeOf("DECODE", {kNumber, kNumber, kChar, kNumber}));
  EXPECT_EQ(kNumber, typeOf("DECODE", {kChar, kChar, kNumber, kChar}));
  EXPECT_EQ(kWhole, typeOf("DECODE", {kChar, kChar, kWhole, kWhole}));
  EXPECT_EQ(kNumber, typeOf("DECODE", {kChar, kChar, kWhole, kChar, kNumber, kWhole}));
  EXPECT_EQ(kNumber, typeOf("DECODE", {kChar, kChar, kWhole, kNumber}));
  EXPECT_EQ(kWhole, typeOf("DECODE", {kChar, kNumber, kWhole, kNumber, kWhole}));
  EXPECT_EQ(kDate, typeOf("DECODE", {kChar, kNumber, kDate}));
}

TEST(FunctionTypes, nvlTakesTheTypeOfItsFirstArgument) {
  EXPECT_EQ(kText, typeOf("NVL", {kChar, kNumber}));
  EXPECT_EQ(kNumber, typeOf("NVL", {kNumber, kChar}));
  EXPECT_EQ(kWhole, typeOf("NVL", {kWhole, kWhole}));
  EXPECT_EQ(kNumber, typeOf("NVL", {kWhole, kNumber}));
  EXPECT_EQ(kWhole, typeOf("NVL", {kNull, kWhole}));
  EXPECT_EQ(kText, typeOf("NVL2", {kNumber, kChar, kNumber}));
  EXPECT_EQ(kDate, typeOf("COALESCE", {kNull, kDate, kNull}));
  EXPECT_EQ(kChar, typeOf("NULLIF", {kChar, kText}));
  EXPECT_EQ(kText, typeOf("GREATEST", {kChar, kNumber}));
  EXPECT_EQ(kNumber, typeOf("LEAST", {kWhole, kChar}));
}

TEST(FunctionTypes, roundingADateGivesADate) {
  EXPECT_EQ(kDate, typeOf("TRUNC", {kDate, kChar}));
  EXPECT_EQ(kNumber, typeOf("ROUND", {kNumber, kWhole}));
  EXPECT_EQ(kWhole, typeOf("ROUND", {kWhole}));
  EXPECT_EQ(kWhole, typeOf("LENGTH", {kChar}));
  EXPECT_EQ(kChar, typeOf("UPPER", {kChar}));
  EXPECT_EQ(kText, typeOf("SUBSTR", {kChar, kWhole}));
}

TEST(NumericFunctions, nullGivesNullAndTextIsConverted) {
  EXPECT_EQ("NULL", call("ABS", {null}));
  EXPECT_EQ("NULL", call("MOD", {n("5"), null}));
  EXPECT_EQ("NULL", call("ROUND", {null, n("1")}));
  EXPECT_EQ("1.235", call("ROUND", {s("1.2345"), n("3")}));
  EXPECT_EQ("1.234", call("TRUNC", {s("1.2345"), n("3")}));
  EXPECT_EQ(1722, callError("ABS", {s("10K")}));
  EXPECT_EQ(932, callError("ABS", {d("2020-01-01")}));
  EXPECT_EQ("-1", call("SIGN", {n("-0.001")}));
  EXPECT_EQ("15.7", call("TRUNC", {n("15.79"), n("1.9")}));
}

TEST(NumericFunctions, bitAndIsOfWholeNumbers) {
  EXPECT_EQ("2", call("BITAND", {n("6"), n("3")}));
  EXPECT_EQ("2", call("BITAND", {n("6.9"), n("3")}));
  EXPECT_EQ("6", call("BITAND", {n("-2"), n("7")}));
  EXPECT_EQ("9223372036854775807", call("BITAND", {n("-1"), n("9223372036854775807")}));
  EXPECT_TRUE(isRefused([] { call("BITAND", {n("9223372036854775808"), n("1")}); }));
}

TEST(ComparingFunctions, theFirstArgumentGivesTheTypeOfTheComparison) {
  EXPECT_EQ("10", call("GREATEST", {n("10"), n("9")}));
  EXPECT_EQ("9", call("GREATEST", {s("10"), s("9")}));
  EXPECT_EQ("9", call("GREATEST", {s("10"), n("9")}));
  EXPECT_EQ("10", call("GREATEST", {n("9"), s("10")}));
  EXPECT_EQ(".000832", call("LEAST", {n("1"), s("2.1"), s(".000832")}));
  EXPECT_EQ("NULL", call("LEAST", {n("1"), null}));
  EXPECT_EQ("2020-01-01 00:00:00", call("GREATEST", {d("2020-01-01"), d("2019-12-31")}));
  EXPECT_EQ("2020-01-01 00:00:00", call("GREATEST", {d("2019-12-31"), s("01-JAN-20")}));
  EXPECT_EQ(1722, callError("GREATEST", {n("1"), s("x")}));
}

TEST(Comparison, textAgainstNumberComparesNumbers) {
  const Context context{kNow};
  EXPECT_EQ(1, compareAs(comparisonOf({TypeKind::Char}, {TypeKind::Number}), s("10"), n("9"), context));
  EXPECT_EQ(0, compareAs(Comparison::Number, s("01"), n("1"), context));
  EXPECT_EQ(-1, compareAs(Comparison::Text, s("10"), s("9"), context));
  EXPECT_EQ(0, compareAs(Comparison::Date, s("15-JUN-24"), d("2024-06-15"), context));
  EXPECT_EQ(-1, compareAs(Comparison::Raw, s("0A"), Value::raw("\xFF"), context));
  EXPECT_EQ(1722, errorOf([&] { compareAs(Comparison::Number, s("x"), n("1"), context); }));
}

TEST(Comparison, onlyLiteralsAndCharColumnsArePadded) {
  EXPECT_EQ(0, compareBlankPadded("a ", "a"));
  EXPECT_EQ(0, compareBlankPadded("", "  "));
  EXPECT_EQ(1, compareBlankPadded("ab", "a "));
  EXPECT_EQ(-1, compareBlankPadded("a\t", "a"));  // the tab is below the blank
  EXPECT_EQ(1, compareBlankPadded("a", "a\t"));
  EXPECT_EQ(1, compareText("a ", "a"));
}

TEST(Comparison, textIsOrderedByItsBytes) {
  EXPECT_EQ(-1, compareText("Z", "a"));
  EXPECT_EQ(-1, compareText("_", "a"));
  EXPECT_EQ(-1, compareText("z", "あ"));
  EXPECT_EQ(-1, compareText("a", "ab"));
}

TEST(Operators, datesAndNumbersMixByTheirMeaning) {
  EXPECT_EQ("NULL", shown(add(n("1"), null)));
  EXPECT_EQ("NULL", shown(divide(null, n("0"))));
  EXPECT_EQ("1111", shown(add(s("01110"), n("1"))));
  EXPECT_EQ("2020-01-02 12:00:00", shown(add(n("1.5"), d("2020-01-01"))));
  EXPECT_EQ("2020-01-02 12:00:00", shown(add(d("2020-01-01"), s("1.5"))));
  EXPECT_EQ("2014-06-23 10:08:55", shown(subtract(d("2014-07-02 10:08:55"), n("9"))));
  EXPECT_EQ("1.5", shown(subtract(d("2020-01-02 12:00:00"), d("2020-01-01"))));
  EXPECT_EQ("-.5", shown(negate(s("0.5"))));
  EXPECT_EQ(975, errorOf([] { add(d("2020-01-01"), d("2020-01-01")); }));
  EXPECT_EQ(932, errorOf([] { multiply(d("2020-01-01"), n("2")); }));
  EXPECT_EQ(932, errorOf([] { subtract(n("2"), d("2020-01-01")); }));
  EXPECT_EQ(1476, errorOf([] { divide(n("1"), n("0")); }));
}

TEST(ConversionFunctions, toCharFollowsTheTypeOfItsArgument) {
  EXPECT_EQ("NULL", call("TO_CHAR", {null, s("9")}));
  EXPECT_EQ("NULL", call("TO_CHAR", {n("1"), null}));
  EXPECT_EQ(".56", call("TO_CHAR", {n("0.56")}));
  EXPECT_EQ("abc", call("TO_CHAR", {s("abc")}));
  EXPECT_EQ(" 5.0", call("TO_CHAR", {s("5"), s("9.9")}));
  EXPECT_EQ("01-JAN-20", call("TO_CHAR", {d("2020-01-01 10:00:00")}));
  EXPECT_EQ("10:00", call("TO_CHAR", {d("2020-01-01 10:00:00"), s("HH24:MI")}));
  EXPECT_EQ(1722, callError("TO_CHAR", {s("abc"), s("99")}));
}

TEST(ConversionFunctions, toNumberAndToDateReadText) {
  EXPECT_EQ("NULL", call("TO_NUMBER", {null}));
  EXPECT_EQ("42", call("TO_NUMBER", {s(" 42 ")}));
  EXPECT_EQ("1234.5", call("TO_NUMBER", {s("1,234.5"), s("9,999.9")}));
  EXPECT_EQ(1722, callError("TO_NUMBER", {s("1,234.5")}));
  EXPECT_EQ("2024-06-01 03:25:45", call("TO_DATE", {n("12345"), s("SSSSS")}));
  EXPECT_EQ("1979-11-12 00:00:00", call("TO_DATE", {s("12-NOV-79")}));
  EXPECT_EQ("2020-01-01 00:00:00", call("TO_DATE", {d("2020-01-01 10:00:00")}));
}

TEST(ConversionFunctions, rawIsHexadecimalText) {
  EXPECT_EQ("616263", call("RAWTOHEX", {s("abc")}));
  EXPECT_EQ("7D", call("RAWTOHEX", {Value::raw("}")}));
  EXPECT_EQ("C102", call("RAWTOHEX", {n("1")}));
  EXPECT_EQ("0FA1", call("HEXTORAW", {s("fa1")}));
  EXPECT_EQ("NULL", call("HEXTORAW", {null}));
  EXPECT_EQ(1465, callError("HEXTORAW", {s("xy")}));
  EXPECT_EQ(932, callError("RAWTOHEX", {d("2020-01-01")}));
}

TEST(CalendarFunctions, takeDatesAndTextOfTheDefaultModel) {
  EXPECT_EQ("2024-06-15 10:20:30", call("SYSDATE", {}));
  EXPECT_EQ("2020-02-29 00:00:00", call("ADD_MONTHS", {s("31-JAN-20"), n("1.9")}));
  EXPECT_EQ("2020-02-29 00:00:00", call("LAST_DAY", {s("03-FEB-20")}));
  EXPECT_EQ("2020-02-09 00:00:00", call("NEXT_DAY", {s("03-FEB-20"), n("1")}));
  EXPECT_EQ(1846, callError("NEXT_DAY", {s("03-FEB-20"), n("8")}));
  EXPECT_EQ("2", call("MONTHS_BETWEEN", {s("03-APR-20"), s("03-FEB-20")}));
  EXPECT_EQ("NULL", call("ADD_MONTHS", {null, n("1")}));
  EXPECT_EQ(1858, callError("LAST_DAY", {s("soon")}));
}

TEST(CalendarFunctions, extractGivesThePartsOfADate) {
  EXPECT_EQ("2020", call("EXTRACT", {d("2020-02-03"), s("YEAR")}));
  EXPECT_EQ("2", call("EXTRACT", {d("2020-02-03"), s("month")}));
  EXPECT_EQ("3", call("EXTRACT", {d("2020-02-03"), s("DAY")}));
  EXPECT_EQ(30076, callError("EXTRACT", {d("2020-02-03"), s("HOUR")}));
  EXPECT_EQ(30076, callError("EXTRACT", {s("03-FEB-20"), s("YEAR")}));
}

TEST(CalendarFunctions, roundAndTruncOfDatesTakeAModel) {
  EXPECT_EQ("2003-10-01 00:00:00", call("ROUND", {d("2003-08-22"), s("Q")}));
  EXPECT_EQ("2020-01-01 00:00:00", call("TRUNC", {d("2020-01-01 23:59:59")}));
  EXPECT_EQ(1898, callError("TRUNC", {d("2020-01-01"), s("YYYY-MM")}));
}

}  // namespace
}  // namespace oracle_sql
