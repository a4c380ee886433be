#include "oracle_sql/number/number_format.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

struct Case {
  const char* number;
  const char* model;
  const char* text;
};

void expectAll(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(c.text, formatNumber(*Number::parse(c.number), c.model)) << c.number << " with " << c.model;
  }
}

TEST(NumberFormat, modelThatIsNoneIsRefused) {
  for (const char* model : {"Q", "9.9.9", ",999", "9.9,9", "99MI9", "S99MI", "999EEEE9", "9,9EEEE", "$$9",
                            "9 9", "FM", "$", "XX9", "RN9", "9V9.9", "abc", "9G999.99", "9,999D99"}) {
    EXPECT_EQ(1481, errorOf([&] { formatNumber(Number(1), model); })) << model;
  }
}

TEST(NumberFormat, onePositionIsAlwaysTheSigns) {
  expectAll({{"1", "9999", "    1"},
             {"-1", "9999", "   -1"},
             {"12345", "99999", " 12345"},
             {"-12345", "99999", "-12345"},
             {"0", "9999", "    0"},
             {"-0.4", "9999", "   -0"}});
}

TEST(NumberFormat, tooLargeAValueIsHashesOverTheWholeWidth) {
  expectAll({{"12345", "9999", "#####"},
             {"-12345", "999", "####"},
             {"12345", "9,999", "######"},
             {"12345", "$9999", "######"},
             {"999.96", "999.9", "######"},
             {"99.96", "99.9", "#####"},
             {"1000", "999MI", "####"},
             {"1000", "999PR", "#####"},
             {"1000", "FM999", "####"},
             {"1234", "999V99", "######"},
             {"1e125", "9", "##"}});
}

TEST(NumberFormat, aNoughtBeforeThePointShowsOnlyWhereTheModelForcesIt) {
  expectAll({{"0", "99.99", "   .00"},
             {"0.3", "99.99", "   .30"},
             {"0.3", "90.99", "  0.30"},
             {"-0.2", "90.99", " -0.20"},
             {"0.3", "00.99", " 00.30"},
             {"0", "99.", "  0."},
             {"12345", "09999999", " 00012345"},
             {"7", "9990", "    7"},
             {"0", "9990", "    0"},
             {"0.5", ".99", " .50"}});
}

TEST(NumberFormat, roundingIsHalfAwayFromZero) {
  expectAll({{"0.7", "999", "   1"},
             {"2.5", "9", " 3"},
             {"-2.5", "9", "-3"},
             {"2.675", "9.99", " 2.68"},
             {"12345.345", "99999.99", " 12345.35"},
             {"-0.001", "9.99", " -.00"}});
}

TEST(NumberFormat, groupsShowOnceADigitStands) {
  expectAll({{"1222333.444", "999,999,999", "   1,222,333"},
             {"123", "999,999,999", "         123"},
             {"0.7", "000,000,000.00", " 000,000,000.70"},
             {"-1234567", "9G999G999D9", "-1,234,567.0"},
             {"12345.345", "FM99,999,999.99", "12,345.35"}});
}

TEST(NumberFormat, fillModeDropsBlanksAndNoughtsThatNinesStandFor) {
  expectAll({{"13", "FM99.99", "13."},
             {"0.25", "FM99.99", ".25"},
             {"-70", "FM99.99", "-70."},
             {"123.45", "FM999.009", "123.45"},
             {"0", "FM0D099", "0.0"},
             {"0", "FM0D9", "0."},
             {"1.1234", "FM0.099", "1.123"},
             {"5", "FM0000", "0005"},
             {"230", "FM999PR", "230"},
             {"230", "FM999MI", "230"},
             {"11", "FMRN", "XI"}});
}

// As PostgreSQL's to_char notes of the same model: '0' with FM9.9 is '0.'.
TEST(NumberFormat, fillModeKeepsANoughtWhereNoDigitWouldStand) {
  expectAll({{"0", "FM99.99", "0."},
             {"0.001", "FM9.99", "0."},
             {"-0.001", "FM9.99", "-0."},
             {"0", "FM.99", "."},
             {"0", "FM99.90", ".00"},
             {"0.25", "FM99.99", ".25"}});
}

TEST(NumberFormat, signsStandWhereTheModelSays) {
  expectAll({{"42", "S999", " +42"},
             {"-42", "S999", " -42"},
             {"42", "999S", " 42+"},
             {"-42", "999S", " 42-"},
             {"-230", "999MI", "230-"},
             {"230", "999MI", "230 "},
             {"-230", "999PR", "<230>"},
             {"87", "999PR", "  87 "},
             {"-123.45", "9999.99pr", " <123.45>"},
             {"0.7", "S9999.99", "    +.70"}});
}

TEST(NumberFormat, currencyFloatsBeforeTheDigits) {
  expectAll(
      {{"12345.345", "$99,999,999.99", "     $12,345.35"}, {"-5", "$999", "  -$5"}, {"5", "FM$999", "$5"}});
  for (const char* model : {"L999", "9C", "FMU9"})
    EXPECT_TRUE(isRefused([&] { formatNumber(Number(5), model); })) << model;
}

TEST(NumberFormat, blankForNoughtLeavesOnlyANoughtOut) {
  expectAll({{"0", "B999", "    "},
             {"0.3", "B00.99", " 00.30"},
             {"0.7", "B99,999,999.00", "           .70"},
             {"42", "B999", "  42"},
             {"0", "FMB999", ""}});
}

TEST(NumberFormat, scientificKeepsRoomForThreeDigitsOfExponent) {
  expectAll({{"123.456", "9.9EEEE", "  1.2E+02"},
             {"123.456", "FM9.9EEEE", "1.2E+02"},
             {"121.976", "99.99EEEE", "  1.22E+02"},
             {"-0.00456", "9.99EEEE", " -4.56E-03"},
             {"9.96", "9.9EEEE", "  1.0E+01"},
             {"1e125", "9EEEE", " 1E+125"}});
}

TEST(NumberFormat, romanAndHexadecimalNumbers) {
  expectAll({{"42", "RN", "           XLII"},
             {"1994", "FMrn", "mcmxciv"},
             {"0", "RN", "###############"},
             {"4000", "RN", "###############"},
             {"123", "XXXX", "   7B"},
             {"123", "FMxx", "7b"},
             {"123", "Xx", " 7b"},
             {"123", "000X", " 007B"},
             {"123", "X", "##"},
             {"123456789", "FMXXX", "####"},
             {"10", "0XXX", " 000A"},
             {"-1", "XX", "###"},
             {"0", "X", " 0"}});
}

TEST(NumberFormat, hexadecimalGoesBeyond64Bits) {
  expectAll({{"9223372036854775808", "XXXXXXXXXXXXXXXX", " 8000000000000000"},
             {"18446744073709551615", "FMxxxxxxxxxxxxxxxx", "ffffffffffffffff"},
             {"18446744073709551616", "XXXXXXXXXXXXXXXX", "#################"},
             {"18446744073709551616", "XXXXXXXXXXXXXXXXXX", "  10000000000000000"},
             {"0", "XX", "  0"},
             {"-1", "XX", "###"}});
}

TEST(NumberFormat, textMinimumIsTheNumberAsItStands) {
  expectAll({{"0.7", "TM9", ".7"},
             {"-17.1717", "tm", "-17.1717"},
             {"42", "TM9", "42"},
             {"12345", "TME", "1.2345E+04"},
             {"0.05", "TME", "5E-02"}});
  EXPECT_EQ("1" + std::string(50, '0'), formatNumber(*Number::parse("1e50"), "TM9"));
  EXPECT_EQ("1E+70", formatNumber(*Number::parse("1e70"), "TM9"));
}

TEST(NumberFormat, shiftMultipliesByAPowerOfTen) {
  expectAll({{"12.345", "99V99", " 1235"}, {"1", "9V999", " 1000"}});
}

TEST(NumberParse, textThatDoesNotFitTheModelIsNoNumber) {
  const std::pair<const char*, const char*> cases[] = {{"12345", "9999"}, {"1.23", "9.9"}, {"1,2", "99"},
                                                       {"x", "9"},        {"", "9"},       {"1-", "S9"},
                                                       {"<5", "9PR"},     {"G", "X"},      {"1.5", "99"}};
  for (const auto& [text, model] : cases) {
    EXPECT_EQ(1722, errorOf([&, t = text, m = model] { parseNumber(t, m); })) << text << " with " << model;
  }
}

// Notes taken at a server (a tour of the conversion functions by almazer-dev): a 0 of the model wants its
// digit, a blank behind stands for the plus of MI and is no part of a number elsewhere.
TEST(NumberParse, noughtsOfTheModelAndBlanksBehindCount) {
  EXPECT_EQ("7.3", parseNumber("007.3", "009.9").toPlainText());
  EXPECT_EQ(1722, errorOf([] { parseNumber("07.3", "009.9"); }));
  EXPECT_EQ("1", parseNumber("1 ", "9MI").toPlainText());
  EXPECT_EQ(1722, errorOf([] { parseNumber("1 ", "9"); }));
  EXPECT_EQ("5", parseNumber("5", "S9").toPlainText());
  EXPECT_EQ("1", parseNumber("1", "99PR").toPlainText());
}

// Oracle Support, document 815516.1: the place that MI keeps for the sign must be there, as "-" or a blank.
TEST(NumberParse, placeOfMiMustBeThere) {
  EXPECT_EQ("99", parseNumber("99.00 ", "9999D99MI").toPlainText());
  EXPECT_EQ("-1100", parseNumber("1100.00-", "9999D99MI").toPlainText());
  EXPECT_EQ(1722, errorOf([] { parseNumber("99.00", "9999D99MI"); }));
  EXPECT_EQ("99", parseNumber("99.00", "FM9999D99MI").toPlainText());  // as TO_CHAR writes it
}

TEST(NumberParse, textIsReadAsTheModelWritesIt) {
  const std::vector<Case> cases = {{"1234.5", "9,999.9", "1,234.5"},
                                   {"-12.3", "99.9", " -12.3"},
                                   {"-5", "9MI", "5-"},
                                   {"-5", "9PR", "<5>"},
                                   {"5", "S9", "+5"},
                                   {"-5", "9S", "5-"},
                                   {"1234", "$9,999", "$1,234"},
                                   {"255", "XX", "fF"},
                                   {"1200", "9.9EEEE", "1.2E3"},
                                   {"0.5", "99.9", ".5"},
                                   {"12.34", "99V99", "1234"}};
  for (const Case& c : cases) {
    EXPECT_EQ(c.number, parseNumber(c.text, c.model).toPlainText()) << c.text << " with " << c.model;
  }
}

}  // namespace
}  // namespace oracle_sql
