#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "function_support.h"
#include "oracle_sql/functions/aggregates.h"

namespace oracle_sql {
namespace {

Number number(const char* text) { return *Number::parse(text); }

TEST(Sum, ofNothingIsNull) {
  SumAccumulator sum;
  EXPECT_EQ("NULL", shown(sum.sum()));
  EXPECT_EQ("NULL", shown(sum.average()));
}

TEST(Sum, zeroedMemoryIsAnEmptySum) {
  alignas(SumAccumulator) unsigned char memory[sizeof(SumAccumulator)];
  std::memset(memory, 0, sizeof memory);
  auto* const sum = reinterpret_cast<SumAccumulator*>(memory);
  EXPECT_EQ("NULL", shown(sum->sum()));
  sum->step(number("2.5"));
  EXPECT_EQ("2.5", shown(sum->sum()));
}

TEST(Sum, leaves64BitsAndComesBackExactly) {
  SumAccumulator sum;
  const Number most = number("9223372036854775807");
  for (int i = 0; i < 3; ++i) {
    sum.step(most);
  }
  EXPECT_EQ("27670116110564327421", shown(sum.sum()));
  sum.inverse(most);
  sum.inverse(most);
  EXPECT_EQ("9223372036854775807", shown(sum.sum()));
  sum.step(number("-9223372036854775808"));
  sum.inverse(number("-9223372036854775808"));
  EXPECT_EQ("9223372036854775807", shown(sum.sum()));
}

// 100 + 1/3 keeps 36 digits behind the point (18 of 20 pairs), 1/3 alone 40: what comes first decides the
// last digit.
TEST(Sum, isRoundedRowByRow) {
  SumAccumulator sum;
  for (const Number& number : {Number(100), Number(1) / Number(3), Number(-100)}) {
    sum.step(number);
  }
  EXPECT_EQ("." + std::string(36, '3'), toText(sum.sum()));
}

TEST(Sum, fractionsAreDecimal) {
  SumAccumulator sum;
  for (const char* x : {"0.1", "0.2", "0.3"}) {
    sum.step(number(x));
  }
  EXPECT_EQ(".6", shown(sum.sum()));
  EXPECT_EQ(".2", shown(sum.average()));
  sum.step(number("0.4"));
  EXPECT_EQ("1", shown(sum.sum()));
}

// 2, 4, 4, 4, 5, 5, 7, 9: mean 5, squares of the distances 32.
TEST(Variance, isThatOfASample) {
  VarianceAccumulator variance;
  EXPECT_EQ("NULL", shown(variance.variance()));
  variance.step(number("2"));
  EXPECT_EQ("0", shown(variance.variance()));
  EXPECT_EQ("0", shown(variance.standardDeviation()));
  for (const char* x : {"4", "4", "4", "5", "5", "7", "9"}) {
    variance.step(number(x));
  }
  EXPECT_EQ("4.571", shown(variance.variance().number().round(3)));
  EXPECT_EQ("2.138", shown(variance.standardDeviation().number().round(3)));
  variance.step(number("1000"));
  variance.inverse(number("1000"));
  EXPECT_EQ("4.571", shown(variance.variance().number().round(3)));
}

TEST(Variance, equalValuesHaveNone) {
  VarianceAccumulator variance;
  for (int i = 0; i < 3; ++i) {
    variance.step(Number(1) / Number(3));
  }
  EXPECT_EQ("0", shown(variance.variance().number().round(30)));
  EXPECT_FALSE(variance.variance().number().isNegative());
}

TEST(Extremes, movingWindowForgetsWhatLeavesIt) {
  MovingExtremeAccumulator window;
  for (const char* x : {"3", "1", "2", "1"}) {
    window.step(number(x));
  }
  window.inverse(number("3"));
  window.inverse(number("1"));
  EXPECT_EQ("1", shown(window.minimum()));
  EXPECT_EQ("2", shown(window.maximum()));
  window.inverse(number("2"));
  window.inverse(number("1"));
  EXPECT_EQ("NULL", shown(window.maximum()));
}

}  // namespace
}  // namespace oracle_sql
