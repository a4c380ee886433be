#include "platform/decimal.h"

#include <gtest/gtest.h>

namespace kestrelix {
namespace {

std::string text(std::string_view of) { return Decimal::ofPrefix(of).text(); }
std::string rounded(std::string_view of) { return Decimal::ofPrefix(of).roundedUpToOneDigit().text(); }

TEST(Decimal, textWithoutANumberIsZero) {
  for (const char* nothing : {"", " ", "-", "+", ".", "-.", "e5", "K10", "#####", "\t1"})
    EXPECT_EQ(text(nothing), "0") << nothing;
}

TEST(Decimal, readsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(text("10K"), "10");
  EXPECT_EQ(text("1.5.7"), "1.5");
  EXPECT_EQ(text("12 34"), "12");
  EXPECT_EQ(text("  42 "), "42");
  EXPECT_EQ(text("3e"), "3");
  EXPECT_EQ(text("3e+"), "3");
  EXPECT_EQ(text("--3"), "0");
}

TEST(Decimal, keepsEveryDigit) {
  EXPECT_EQ(text("0.07"), "0.07");
  EXPECT_EQ(text("1234567890123456789012345678901234567890.1"), "1234567890123456789012345678901234567890.1");
  EXPECT_EQ(text(".0416666666666666666666666666666666666667"), "0.0416666666666666666666666666666666666667");
}

TEST(Decimal, textHasADigitBeforeThePointAndNoneToTrim) {
  EXPECT_EQ(text(".5"), "0.5");
  EXPECT_EQ(text("-.25"), "-0.25");
  EXPECT_EQ(text("007.50"), "7.5");
  EXPECT_EQ(text("100"), "100");
  EXPECT_EQ(text("5."), "5");
  EXPECT_EQ(text("+3"), "3");
  EXPECT_EQ(text("-0.00"), "0");
}

TEST(Decimal, takesAnExponent) {
  EXPECT_EQ(text("1.5E3"), "1500");
  EXPECT_EQ(text("25e-4"), "0.0025");
  EXPECT_EQ(text("0e9"), "0");
}

TEST(Decimal, comparesByValue) {
  const auto less = [](const char* a, const char* b) { return Decimal::ofPrefix(a) < Decimal::ofPrefix(b); };
  EXPECT_TRUE(less("9", "10"));
  EXPECT_TRUE(less("0.09", "0.1"));
  EXPECT_TRUE(less("1.19", "1.2"));
  EXPECT_TRUE(less("-2", "-1"));
  EXPECT_TRUE(less("-10", "-9.5"));
  EXPECT_TRUE(less("-0.1", "0"));
  EXPECT_TRUE(less("0", "0.0001"));
  EXPECT_FALSE(less("1.20", "1.2"));
  EXPECT_EQ(Decimal::ofPrefix("1.20"), Decimal::ofPrefix("1.2"));
  EXPECT_EQ(Decimal::ofPrefix("-0"), Decimal::ofPrefix("0"));
}

TEST(Decimal, roundsUpToOneDigitAtItsOwnMagnitude) {
  EXPECT_EQ(rounded("1234.5"), "2000");
  EXPECT_EQ(rounded("9.2"), "10");
  EXPECT_EQ(rounded("100"), "100");
  EXPECT_EQ(rounded("100.01"), "200");
  EXPECT_EQ(rounded("0.0234"), "0.03");
  EXPECT_EQ(rounded("0.07"), "0.07");
  EXPECT_EQ(rounded("0.99"), "1");
  EXPECT_EQ(rounded("1"), "1");
  EXPECT_EQ(rounded("9"), "9");
  EXPECT_EQ(rounded("99999999999999999999"), "100000000000000000000");
  EXPECT_EQ(rounded("0"), "0");
}

}  // namespace
}  // namespace kestrelix
