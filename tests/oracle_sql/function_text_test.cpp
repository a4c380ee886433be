#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

TEST(TextFunctions, nullGivesNull) {
  const std::tuple<const char*, int> cases[] = {
      {"LENGTH", 1},  {"LENGTHB", 1}, {"SUBSTR", 2}, {"SUBSTRB", 2}, {"UPPER", 1},  {"LOWER", 1},
      {"INITCAP", 1}, {"ASCII", 1},   {"CHR", 1},    {"INSTR", 2},   {"INSTRB", 2}, {"TRANSLATE", 3},
      {"LPAD", 2},    {"RPAD", 2},    {"LTRIM", 1},  {"RTRIM", 1},   {"TRIM", 1}};
  for (const auto& [name, count] : cases) {
    for (int at = 0; at < count; ++at) {
      std::vector<Value> values(static_cast<std::size_t>(count), s("1"));
      values[static_cast<std::size_t>(at)] = Value();
      EXPECT_TRUE(findFunction(name)->call(values, {kNow}).isNull()) << name << ", argument " << at;
    }
  }
}

TEST(TextFunctions, anEmptyResultIsNull) {
  EXPECT_TRUE(Value::text("").isNull());
  EXPECT_EQ("NULL", call("TRIM", {s("   ")}));
  EXPECT_EQ("NULL", call("LTRIM", {s("aaa"), s("a")}));
  EXPECT_EQ("NULL", call("SUBSTR", {s("abc"), n("4")}));
  EXPECT_EQ("NULL", call("REPLACE", {s("aaa"), s("a")}));
  EXPECT_EQ("NULL", call("LPAD", {s("abc"), n("0")}));
  EXPECT_EQ("NULL", call("TRANSLATE", {s("aa"), s("xa"), s("x")}));
}

TEST(TextFunctions, numbersBecomeTextWithoutALeadingZero) {
  EXPECT_EQ("2", call("LENGTH", {n("0.5")}));
  EXPECT_EQ(".", call("SUBSTR", {n("0.75"), n("1"), n("1")}));
  EXPECT_EQ("1", call("INSTR", {n("0.75"), s(".")}));
  EXPECT_EQ(",5", call("REPLACE", {n("0.5"), s("."), s(",")}));
  EXPECT_EQ("5", call("INSTRB", {n("20121209"), n("12"), n("1"), n("2")}));
}

TEST(TextFunctions, lengthCountsCharactersOrBytes) {
  EXPECT_EQ("5", call("LENGTH", {s("abc  ")}));
  EXPECT_EQ("2", call("LENGTH", {s("今天")}));
  EXPECT_EQ("6", call("LENGTHB", {s("今天")}));
  EXPECT_EQ("3", call("LENGTH", {s("a\xFFz")}));
}

TEST(TextFunctions, substringCountsFromEitherEnd) {
  EXPECT_EQ("567", call("SUBSTR", {s("1234567890"), n("5"), n("3")}));
  EXPECT_EQ("abc", call("SUBSTR", {s("abc"), n("0")}));
  EXPECT_EQ("c", call("SUBSTR", {s("abc"), n("-1")}));
  EXPECT_EQ("ab", call("SUBSTR", {s("abc"), n("-3"), n("2")}));
  EXPECT_EQ("NULL", call("SUBSTR", {s("abc"), n("-4")}));
  EXPECT_EQ("NULL", call("SUBSTR", {s("abc"), n("2"), n("0")}));
  EXPECT_EQ("NULL", call("SUBSTR", {s("abc"), n("1"), n("-1")}));
  EXPECT_EQ("cde", call("SUBSTR", {s("abcdef"), n("3.5"), n("3.5")}));
  EXPECT_EQ("天", call("SUBSTR", {s("今天x"), n("2"), n("1")}));
  EXPECT_EQ("天x", call("SUBSTR", {s("今天x"), n("-2"), n("9")}));
  EXPECT_EQ("abc", call("SUBSTR", {s("abc"), n("1"), n("1e30")}));
}

TEST(TextFunctions, substringOfBytesBlanksTheCharactersThatItCuts) {
  EXPECT_EQ("EFG", call("SUBSTRB", {s("ABCDEFG"), n("5"), n("4.2")}));
  EXPECT_EQ("今", call("SUBSTRB", {s("今天x"), n("1"), n("3")}));
  EXPECT_EQ("今 ", call("SUBSTRB", {s("今天x"), n("1"), n("4")}));
  EXPECT_EQ("  天x", call("SUBSTRB", {s("今天x"), n("2")}));
  EXPECT_EQ(" ", call("SUBSTRB", {s("今天x"), n("2"), n("1")}));
  EXPECT_EQ("x", call("SUBSTRB", {s("今天x"), n("-1")}));
}

TEST(TextFunctions, positionSearchesFromEitherEnd) {
  EXPECT_EQ("14", call("INSTR", {s("CORPORATE FLOOR"), s("OR"), n("3"), n("2")}));
  EXPECT_EQ("4", call("INSTR", {s("abcabcabc"), s("abca"), n("-1")}));
  EXPECT_EQ("1", call("INSTR", {s("abcabcabc"), s("abca"), n("-8")}));
  EXPECT_EQ("0", call("INSTR", {s("abcabcabc"), s("abca"), n("-10")}));
  EXPECT_EQ("2", call("INSTR", {s("CORPORATE FLOOR"), s("OR"), n("-3"), n("2")}));
  EXPECT_EQ("0", call("INSTR", {s("abc"), s("a"), n("0")}));
  EXPECT_EQ("0", call("INSTR", {s("abc"), s("a"), n("9")}));
  EXPECT_EQ("2", call("INSTR", {s("aaaa"), s("aa"), n("1"), n("2")}));
  EXPECT_EQ("2", call("INSTR", {s("今天"), s("天")}));
  EXPECT_EQ("4", call("INSTRB", {s("今天"), s("天")}));
  EXPECT_EQ(1428, callError("INSTR", {s("abc"), s("a"), n("1"), n("0")}));
}

TEST(TextFunctions, paddingCountsColumnsOfTheScreen) {
  EXPECT_EQ("*.*.*.*.*Page 1", call("LPAD", {s("Page 1"), n("15"), s("*.")}));
  EXPECT_EQ("  X", call("LPAD", {s("X"), n("3")}));
  EXPECT_EQ("ab", call("RPAD", {s("abc"), n("2")}));
  EXPECT_EQ("ab", call("LPAD", {s("abc"), n("2")}));
  EXPECT_EQ("あbcd     ", call("RPAD", {s("あbcd"), n("10")}));
  EXPECT_EQ("あbcdxいx ", call("RPAD", {s("あbcd"), n("10"), s("xい")}));
  EXPECT_EQ("あ ", call("RPAD", {s("ああ"), n("3")}));
  EXPECT_EQ("ｱ ", call("RPAD", {s("ｱ"), n("2")}));
  EXPECT_EQ("NULL", call("LPAD", {s("abc"), n("-1")}));
}

TEST(TextFunctions, trimmingTakesASetOfCharacters) {
  EXPECT_EQ("b ab ", call("LTRIM", {s("  b ab ")}));
  EXPECT_EQ("cab", call("LTRIM", {s("abacab"), s("ab")}));
  EXPECT_EQ("abac", call("RTRIM", {s("abacab"), s("ba")}));
  EXPECT_EQ("x", call("RTRIM", {s("xああ"), s("あ")}));
  EXPECT_EQ("x", call("LTRIM", {s("ああx"), s("い あ")}));
  EXPECT_EQ("98723489", call("TRIM", {n("0009872348900"), n("0")}));
  EXPECT_EQ("1 ", call("TRIM", {s(" 1 "), s(" "), s("LEADING")}));
  EXPECT_EQ(" 1", call("TRIM", {s(" 1 "), s(" "), s("TRAILING")}));
  EXPECT_EQ("1", call("TRIM", {s(" 1 "), s(" "), s("BOTH")}));
  EXPECT_EQ(30001, callError("TRIM", {s("abc"), s("ab")}));
}

TEST(TextFunctions, replaceWithNothingRemoves) {
  EXPECT_EQ("NULL", call("REPLACE", {null, s("a"), s("b")}));
  EXPECT_EQ("ab", call("REPLACE", {s("ab"), null, s("b")}));
  EXPECT_EQ("b", call("REPLACE", {s("ab"), s("a"), null}));
  EXPECT_EQ("xxyxx", call("REPLACE", {s("ayxx"), s("a"), s("xx")}));
  EXPECT_EQ("ba", call("REPLACE", {s("aaa"), s("aa"), s("b")}));
}

TEST(TextFunctions, translateDeletesCharactersWithoutAPartner) {
  EXPECT_EQ("SQL_Plus_Users_Guide", call("TRANSLATE", {s("SQL*Plus User's Guide"), s(" */'"), s("___")}));
  EXPECT_EQ("#sf#sf###", call("TRANSLATE", {s("asdfasdfaaa"), s("ad"), s("#")}));
  EXPECT_EQ("1b", call("TRANSLATE", {s("ab"), s("aa"), s("12")}));
  EXPECT_EQ("い", call("TRANSLATE", {s("あ"), s("あ"), s("い")}));
}

TEST(TextFunctions, caseChangesLettersBeyondAsciiToo) {
  EXPECT_EQ("ÄÖÜ ЖΩＡ Ž1", call("UPPER", {s("äöü жωａ ž1")}));
  EXPECT_EQ("äöü жωａ ž1", call("LOWER", {s("ÄÖÜ ЖΩＡ Ž1")}));
  EXPECT_EQ("The Soap-Box O'Neill 2nd", call("INITCAP", {s("the SOAP-box o'neill 2ND")}));
}

TEST(TextFunctions, characterCodesAreTheirBytes) {
  EXPECT_EQ("97", call("ASCII", {s("ab")}));
  EXPECT_EQ("14909826", call("ASCII", {s("あ")}));  // E3 81 82
  EXPECT_EQ("あ", call("CHR", {n("14909826")}));
  EXPECT_EQ("\n", call("CHR", {n("10")}));
  EXPECT_EQ(1428, callError("CHR", {n("-1")}));
}

TEST(TextFunctions, concatenationTakesNullAsEmpty) {
  EXPECT_EQ("b", shown(concatenate(null, s("b"))));
  EXPECT_EQ("a", shown(concatenate(s("a"), null)));
  EXPECT_EQ("NULL", shown(concatenate(null, null)));
  EXPECT_EQ(".25x", shown(concatenate(n("0.25"), s("x"))));
  EXPECT_EQ("FF15-JUN-24", shown(concatenate(Value::raw("\xFF"), kNow)));
  EXPECT_EQ("ab", call("CONCAT", {s("a"), s("b")}));
}

TEST(Like, caseCountsAndWildcardsMatchCharacters) {
  EXPECT_FALSE(like("ABC", "abc"));
  EXPECT_TRUE(like("axb", "a_b"));
  EXPECT_TRUE(like("123456", "123%"));
  EXPECT_TRUE(like("", "%"));
  EXPECT_FALSE(like("", "_"));
  EXPECT_TRUE(like("今天", "__"));
  EXPECT_TRUE(like("x今y", "%_y"));
  EXPECT_FALSE(like("abc", "ab"));
  EXPECT_TRUE(like("aXbXc", "%X%c"));
  EXPECT_FALSE(like("aXbXd", "%X%c"));
  EXPECT_TRUE(like("mississippi", "m%iss%pi"));
  EXPECT_TRUE(like("a\\b", "a\\b"));
}

TEST(Like, escapeStandsOnlyBeforeWildcardsAndItself) {
  EXPECT_TRUE(like("a_b", "a\\_b", "\\"));
  EXPECT_FALSE(like("axb", "a\\_b", "\\"));
  EXPECT_TRUE(like("100%", "100!%", "!"));
  EXPECT_TRUE(like("a!b", "a!!b", "!"));
  EXPECT_EQ(1424, errorOf([] { like("a", "a!b", "!"); }));
  EXPECT_EQ(1424, errorOf([] { like("x", "a!", "!"); }));
  EXPECT_EQ(1425, errorOf([] { like("a", "a", "!!"); }));
}

TEST(Like, manyWildcardsStayQuick) {
  std::string pattern;
  for (int i = 0; i < 60; ++i) {
    pattern += "%a";
  }
  EXPECT_FALSE(like(std::string(3000, 'a') + "b", pattern));
}

// The simple case mappings of the Unicode standard.
TEST(TextFunctions, lettersBeyondAsciiHaveTheirCase) {
  EXPECT_EQ("ΆΈΉΊΌΎΏΣ", call("UPPER", {s("άέήίόύώς")}));
  EXPECT_EQ("άέήίόύώσ", call("LOWER", {s("ΆΈΉΊΌΎΏΣ")}));
  EXPECT_EQ("ⅠⅫⒶÄЁԱẾǍ", call("UPPER", {s("ⅰⅻⓐäёաếǎ")}));
  EXPECT_EQ("ⅰⅻⓐäёաếǎ", call("LOWER", {s("ⅠⅫⒶÄЁԱẾǍ")}));
  EXPECT_EQ("STRAßE", call("UPPER", {s("straße")}));
}

}  // namespace
}  // namespace oracle_sql
