// Numbers, their conversions and their types in whole statements, as published for Oracle or worked out by
// hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "repository_file/local_database.h"
#include "repository_file/test_repository.h"

namespace kestrelix::repository_file {
namespace {

using testing::StartsWith;

class NumberStatements : public testing::Test {
 protected:
  NumberStatements() {
    writeRepository(folder_ / "dual.sqlite", {});
    database_ = std::make_unique<LocalDatabase>(folder_ / "dual.sqlite");
  }

  /// The cells of the only row joined by "|", NULL as "-", or how the statement fails.
  std::string answer(const std::string& list) {
    try {
      const auto result = database_->run("select " + list + " from dual");
      std::string line;
      for (std::size_t i = 0; i < result->columns().size(); ++i) {
        const auto field = result->field(i);
        line += (i ? "|" : "") + (field.isNull() ? std::string("-") : field.value());
      }
      return line;
    } catch (const DatabaseError& error) {
      return error.what();
    }
  }

  TestFolder folder_;
  std::unique_ptr<LocalDatabase> database_;
};

// SQL Reference: all arguments of COALESCE and NULLIF are numbers, or all have one type; the first argument
// of NULLIF is not the literal NULL.
TEST_F(NumberStatements, coalesceAndNullifConvertNothing) {
  EXPECT_THAT(answer("coalesce(1, 'a')"),
              StartsWith("ORA-00932: inconsistent datatypes: expected NUMBER got CHAR"));
  EXPECT_THAT(answer("coalesce(null, 'a', 1)"), StartsWith("ORA-00932"));
  EXPECT_THAT(answer("nullif(1, '1')"), StartsWith("ORA-00932"));
  EXPECT_THAT(answer("nullif(null, 1)"), StartsWith("ORA-00932"));
  EXPECT_EQ("-|1|a|-",
            answer("nullif(.1 + .2, .3), nullif(1, 2), coalesce(null, 'a', 'b'), coalesce(null, null)"));
}

TEST_F(NumberStatements, numbersAndDatesNeverTurnIntoEachOther) {
  for (const char* list :
       {"nvl(sysdate, 1)", "nvl(1, sysdate)", "nvl2(1, 1, sysdate)", "decode(1, 1, sysdate, 1)",
        "decode(1, 1, 1, sysdate)", "decode(sysdate, 1, 2)", "greatest(1, sysdate)", "abs(sysdate)",
        "mod(sysdate, 2)", "power(2, sysdate)", "bitand(sysdate, 1)"})
    EXPECT_THAT(answer(list), StartsWith("ORA-00932: inconsistent datatypes")) << list;
  // Through text they would, so a text beside a date is read as one.
  EXPECT_EQ("02-JAN-20", answer("to_char(nvl(to_date('2020-01-02', 'YYYY-MM-DD'), '03-JAN-20'))"));
}

// '' is NULL, but a text all the same: CASE and UNION refuse it beside a number.
TEST_F(NumberStatements, emptyLiteralIsATextWithoutValue) {
  EXPECT_THAT(answer("case when 1 = 1 then '' else 1 end"),
              StartsWith("ORA-00932: inconsistent datatypes: expected CHAR got NUMBER"));
  EXPECT_THAT(answer("'' x from dual union all select 1"), StartsWith("ORA-01790"));
  EXPECT_EQ(".5|0.5|.5", answer("nvl('', .5), nvl(null, .5), decode(1, 2, '', .5)"));
}

// stackoverflow.com/questions/2021140: NVL and NVL2 compute every argument, COALESCE only what it needs.
TEST_F(NumberStatements, nvlComputesWhatItDoesNotGive) {
  EXPECT_THAT(answer("nvl(1, 1 / 0)"), StartsWith("ORA-01476: divisor is equal to zero"));
  EXPECT_THAT(answer("nvl2(null, 1 / 0, 2)"), StartsWith("ORA-01476"));
  EXPECT_THAT(answer("nvl(1, 'a')"), StartsWith("ORA-01722: invalid number"));
  EXPECT_EQ("1|1|2|3",
            answer("coalesce(1, 1 / 0), nvl(1, 4 / 2), nvl(to_number(null), 4 / 2), nvl2(null, 1 + 1, 3)"));
  EXPECT_EQ("1|a|.5|-1",
            answer("nvl(1, '2'), nvl('a', .5), nvl(to_char(null), .5), nvl(to_number(null), -1)"));
}

// 100/3 has two digits less behind the point than 1/7: a sum that had held both would keep a trace of the
// rounding.
TEST_F(NumberStatements, sumOverRowsThatMoveLeavesNoTraceOfThoseGone) {
  const auto result = database_->run(
      "with t as (select 1 id, 100 / 3 x from dual union all select 2, 1 / 7 from dual union all select 3, 0 "
      "from dual "
      "union all select 4, 0 from dual union all select 5, null from dual union all select 6, null from "
      "dual) "
      "select sum(x) over (order by id rows 1 preceding), avg(x) over (order by id rows 1 preceding) from t "
      "order by id");
  std::vector<std::string> lines;
  for (; !result->Eof(); result->MoveNext()) {
    const auto cell = [&](std::size_t i) {
      const auto field = result->field(i);
      return field.isNull() ? std::string("-") : field.value();
    };
    lines.push_back(cell(0) + "|" + cell(1));
  }
  EXPECT_THAT(lines,
              testing::ElementsAre(
                  "33.33333333333333333333333333333333333333|33.33333333333333333333333333333333333333",
                  "33.47619047619047619047619047619047619047|16.73809523809523809523809523809523809524",
                  "0.1428571428571428571428571428571428571429|0.0714285714285714285714285714285714285715",
                  "0|0", "0|0", "-|-"));
}

// The texts of ORA-01727, ORA-01728, ORA-01723 and ORA-00910 in the Error Messages.
TEST_F(NumberStatements, lengthsOfCastHaveTheirOwnErrors) {
  EXPECT_THAT(answer("cast(1 as number(39))"),
              StartsWith("ORA-01727: numeric precision specifier is out of range"));
  EXPECT_THAT(answer("cast(1 as number(0))"), StartsWith("ORA-01727"));
  EXPECT_THAT(answer("cast(1 as number(3, 128))"),
              StartsWith("ORA-01728: numeric scale specifier is out of range"));
  EXPECT_THAT(answer("cast(1 as number(3, -85))"), StartsWith("ORA-01728"));
  EXPECT_THAT(answer("cast(1 as varchar2(0))"), StartsWith("ORA-01723: zero-length columns are not allowed"));
  EXPECT_THAT(answer("cast(1 as varchar2(4001))"), StartsWith("ORA-00910: specified length too long"));
}

TEST_F(NumberStatements, argumentWithoutARealResultIsNamed) {
  EXPECT_THAT(answer("sqrt(-1)"), StartsWith("ORA-01428: argument '-1' is out of range"));
  EXPECT_THAT(answer("ln(0)"), StartsWith("ORA-01428: argument '0' is out of range"));
  EXPECT_THAT(answer("log(10, -.5)"), StartsWith("ORA-01428: argument '-.5' is out of range"));
  EXPECT_THAT(answer("power(-2, .5)"), StartsWith("ORA-01428: argument '-2' is out of range"));
}

// ORA-25137, "value from cast operand is larger than cast target size": text is cut, a number is not.
TEST_F(NumberStatements, castOfANumberToAShortTextFails) {
  EXPECT_THAT(answer("cast(123456 as varchar2(3))"), StartsWith("ORA-25137: Data value out of range"));
  EXPECT_THAT(answer("cast(12 as char)"), StartsWith("ORA-25137"));
  EXPECT_EQ("abc|123|.5|5  |", answer("cast('abcdef' as varchar2(3)), cast(123 as varchar2(3)), "
                                      "cast(1 / 2 as varchar2(2)), cast(5 as char(3)) || '|'"));
}

TEST_F(NumberStatements, castToBinaryDigitsIsRefusedByName) {
  EXPECT_THAT(answer("cast(1.23 as float(5))"), StartsWith("not supported: CAST to FLOAT"));
  EXPECT_THAT(answer("cast(1.23 as double precision)"), StartsWith("not supported: CAST to DOUBLE"));
}

}  // namespace
}  // namespace kestrelix::repository_file
