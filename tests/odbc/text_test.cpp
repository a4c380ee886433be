// What goes to a driver and what comes back, without one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "odbc/connection_text.h"
#include "odbc/plain_number.h"
#include "odbc/statement_text.h"
#include "odbc/utf16.h"

namespace kestrelix::odbc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ConnectionText, aPasswordPassesUnchangedInBraces) {
  EXPECT_EQ(quotedAttribute("a;b=c{d}e'f\"g"), "{a;b=c{d}}e'f\"g}");
  EXPECT_EQ(quotedAttribute("}"), "{}}}");
  EXPECT_EQ(quotedAttribute("a b"), "{a b}");
}

TEST(ConnectionText, aPlainValueHasNoBraces) {
  EXPECT_EQ(quotedAttribute(""), "");
  EXPECT_EQ(quotedAttribute("perf_stat$1"), "perf_stat$1");
  EXPECT_EQ(quotedAttribute("秘密"), "秘密");
}

TEST(ConnectionText, namesTheDataSourceOrTheDriver) {
  EXPECT_EQ(dataSourceText("PROD", {"PERFSTAT", "x;y"}), "DSN=PROD;UID=PERFSTAT;PWD={x;y}");
  EXPECT_EQ(oracleDriverText("Oracle 19", "db:1521/prod", {"U", "p"}),
            "DRIVER={Oracle 19};DBQ=db:1521/prod;UID=U;PWD=p");
}

TEST(MarkBinds, eachUseBecomesAMarkInOrder) {
  const MarkedStatement marked = markBinds("select :b1 + :B2 from dual where x = :B1 ");
  EXPECT_EQ(marked.text, "select ? + ? from dual where x = ? ");
  EXPECT_THAT(marked.binds, ElementsAre("B1", "B2", "B1"));
}

TEST(MarkBinds, textsQuotedNamesAndCommentsKeepTheirColons) {
  const char* const statement = "select ':B1', \"a:B2\", 1 /* :B3 */ from dual -- :B4";
  const MarkedStatement marked = markBinds(statement);
  EXPECT_EQ(marked.text, statement);
  EXPECT_THAT(marked.binds, IsEmpty());
}

TEST(MarkBinds, aQuestionMarkInATextStays) {
  EXPECT_EQ(markBinds("select '?' from dual").text, "select '?' from dual");
}

TEST(MarkBinds, whatCouldChangeSomethingIsRefused) {
  for (const char* sql : {"", " ", "delete from t", "update t set a = 1", "begin null; end;", "call p()",
                          "with x as (delete from t returning a) select a from x", "select a into b from t"})
    EXPECT_THROW(markBinds(sql), DatabaseError) << sql;
  EXPECT_NO_THROW(markBinds("(select 1 from dual) union select 'delete' from dual"));
}

TEST(PlainNumber, hasADigitBeforeThePointAndNoZerosBehindTheFraction) {
  EXPECT_EQ(plainNumber(".5"), "0.5");
  EXPECT_EQ(plainNumber("-.25"), "-0.25");
  EXPECT_EQ(plainNumber("0.50"), "0.5");
  EXPECT_EQ(plainNumber("10.00"), "10");
  EXPECT_EQ(plainNumber("100"), "100");
  EXPECT_EQ(plainNumber("-0.0"), "0");
  EXPECT_EQ(plainNumber("007"), "7");
  EXPECT_EQ(plainNumber("  12 "), "12");
}

TEST(PlainNumber, hasNoExponent) {
  EXPECT_EQ(plainNumber("1E+3"), "1000");
  EXPECT_EQ(plainNumber("1.25e2"), "125");
  EXPECT_EQ(plainNumber("-1.5E-3"), "-0.0015");
  EXPECT_EQ(plainNumber("12.5e-1"), "1.25");
}

TEST(PlainNumber, keepsEveryDigit) {
  EXPECT_EQ(plainNumber("-1234567890123456789012345678901234567.5"),
            "-1234567890123456789012345678901234567.5");
}

TEST(PlainNumber, takesADecimalCommaAndLeavesOtherTexts) {
  EXPECT_EQ(plainNumber("0,5"), "0.5");
  EXPECT_EQ(plainNumber("abc"), "abc");
  EXPECT_EQ(plainNumber(""), "");
}

std::string through(std::string_view text) {
  const auto units = toUtf16(text);
  return toUtf8(std::span(units.data(), units.size() - 1));
}

TEST(Utf16, japaneseAndCharactersBeyondTheBasicPlaneComeBack) {
  EXPECT_EQ(through("表領域 'x' é😀"), "表領域 'x' é😀");
  EXPECT_EQ(toUtf16("😀"), (std::vector<unsigned short>{0xD83D, 0xDE00, 0}));
}

TEST(Utf16, whatIsMalformedBecomesTheReplacement) {
  EXPECT_EQ(through("a\xFFz"), "a\uFFFDz");
  EXPECT_EQ(through("\xE8\xA1"), "\uFFFD\uFFFD");
  EXPECT_EQ(through("\xED\xA0\x80"), "\uFFFD");  // a surrogate
  const unsigned short lone[] = {0xD800, 'a'};
  EXPECT_EQ(toUtf8(lone), "\uFFFDa");
}

}  // namespace
}  // namespace kestrelix::odbc
