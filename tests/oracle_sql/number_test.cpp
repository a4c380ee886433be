#include "oracle_sql/number/number.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

Number num(const char* text) { return *Number::parse(text); }

std::string plain(const Number& number) { return number.toPlainText(); }

std::string hex(const Number& number) {
  std::uint8_t bytes[Number::kMaxBytes];
  const std::size_t size = number.toBytes(bytes);
  return toText(Value::raw(std::string(bytes, bytes + size)));
}

TEST(Number, textThatIsNoNumberIsNone) {
  for (const char* text : {"",     " ",   "-",     ".",  "+.",    "1 2", "- 1", "1e",    "1e+", "e5",
                           "0x10", "1,5", "1.2.3", "1-", "#####", "10K", "--1", "1e5.0", "nan", "inf"}) {
    EXPECT_FALSE(Number::parse(text)) << text;
  }
}

TEST(Number, textMayHaveBlanksSignPointAndExponent) {
  EXPECT_EQ("42", plain(num(" 42 ")));
  EXPECT_EQ("-0.5", plain(num("-.5")));
  EXPECT_EQ("5", plain(num("+5.")));
  EXPECT_EQ("1500", plain(num("1.5e3")));
  EXPECT_EQ("0.0015", plain(num("1.5E-3")));
  EXPECT_EQ("7", plain(num("007")));
  EXPECT_EQ("0", plain(num("-0.000")));
}

TEST(Number, textOfTooLargeANumberOverflows) {
  EXPECT_EQ(1426, errorOf([] { Number::parse("1e126"); }));
  EXPECT_EQ(1426, errorOf([] { Number::parse("1e999999999999"); }));
  EXPECT_EQ("0", plain(num("1e-131")));
  EXPECT_EQ("0", plain(num("1e-999999999999")));
  EXPECT_FALSE(num("9.99e125").isZero());
  EXPECT_FALSE(num("1e-130").isZero());
}

// 41 digits: the last pair of base-100 digits that is kept ends at an even place before the point.
TEST(Number, textIsRoundedAtTheTwentiethPairOfDigits) {
  EXPECT_EQ("1234567890123456789012345678901234567900",
            plain(num("1234567890123456789012345678901234567900")));
  EXPECT_EQ("12345678901234567890123456789012345679000",
            plain(num("12345678901234567890123456789012345678950")));
  EXPECT_EQ("12345678901234567890123456789012345678900",
            plain(num("12345678901234567890123456789012345678949")));
}

TEST(Number, arithmeticOfWholeNumbersLeavesTheRangeOf64BitsExactly) {
  const Number most = std::numeric_limits<std::int64_t>::max();
  const Number least = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ("9223372036854775808", plain(most + Number(1)));
  EXPECT_EQ("-9223372036854775809", plain(least - Number(1)));
  EXPECT_EQ("85070591730234615847396907784232501249", plain(most * most));
  EXPECT_EQ("9223372036854775808", plain(-least));
  EXPECT_EQ("9223372036854775808", plain(least.abs()));
  EXPECT_EQ("9223372036854775808", plain(least / Number(-1)));
  EXPECT_EQ(least, -(-least));
  EXPECT_TRUE((most + Number(1) - Number(1)).isInt64());
}

TEST(Number, divisionDoesNotTruncate) {
  EXPECT_EQ("2.5", plain(Number(5) / Number(2)));
  EXPECT_EQ("-3.5", plain(Number(-7) / Number(2)));
  EXPECT_EQ("5", plain(Number(10) / Number(2)));
  EXPECT_EQ("0.3333333333333333333333333333333333333333", plain(Number(1) / Number(3)));
  EXPECT_EQ("0.6666666666666666666666666666666666666667", plain(Number(2) / Number(3)));
  // An hour in days, and a second: the first pair of digits that counts stands two places further right.
  EXPECT_EQ("0.0416666666666666666666666666666666666667", plain(Number(1) / Number(24)));
  EXPECT_EQ("0.00001157407407407407407407407407407407407407", plain(Number(1) / Number(86400)));
  EXPECT_EQ("0.5", plain(num(".25") / num(".5")));
}

TEST(Number, divisionByZeroFails) {
  EXPECT_EQ(1476, errorOf([] { (void)(Number(1) / Number(0)); }));
  EXPECT_EQ(1476, errorOf([] { (void)(num(".1") / Number(0)); }));
  EXPECT_EQ(1476, errorOf([] { (void)(Number(0) / Number(0)); }));
}

TEST(Number, resultsOutsideTheRangeOverflowOrVanish) {
  EXPECT_EQ(1426, errorOf([] { (void)(num("1e125") * Number(10)); }));
  EXPECT_EQ(1426, errorOf([] { (void)(num("9.99e125") + num("1e124")); }));
  EXPECT_EQ("0", plain(num("1e-130") / Number(10)));
  EXPECT_EQ("0", plain(num("1e-70") * num("1e-70")));
}

TEST(Number, decimalFractionsAreExact) {
  EXPECT_EQ("0.3", plain(num(".1") + num(".2")));
  EXPECT_EQ("0", plain(num(".3") - num(".1") - num(".2")));
  EXPECT_EQ("0.02", plain(num(".1") * num(".2")));
  EXPECT_EQ("9007199254740993", plain(Number(9007199254740992) + Number(1)));
}

// A whole hour times 1440 times 60 is a trace over 3600: the trace decides ties.
TEST(Number, anHourInDaysComesBackWithATrace) {
  const Number seconds = Number(1) / Number(24) * Number(1440) * Number(60);
  EXPECT_EQ(1, compare(seconds, Number(3600)));
  EXPECT_EQ("0", plain((Number(18) / seconds).round(2)));
  EXPECT_EQ("0.01", plain((Number(18) / Number(3600)).round(2)));
}

TEST(Number, roundIsHalfAwayFromZeroOnTheDecimalValue) {
  struct Case {
    const char* value;
    int places;
    const char* rounded;
    const char* truncated;
  };
  for (const Case& c :
       std::vector<Case>{{"2.675", 2, "2.68", "2.67"},
                         {"1.005", 2, "1.01", "1"},
                         {"-2.5", 0, "-3", "-2"},
                         {"2.5", 0, "3", "2"},
                         {"0.5", 0, "1", "0"},
                         {"0.49", 0, "0", "0"},
                         {"99.96", 1, "100", "99.9"},
                         {"99.5", 0, "100", "99"},
                         {"5", -1, "10", "0"},
                         {"4", -1, "0", "0"},
                         {"55", -3, "0", "0"},
                         {"55", -2, "100", "0"},
                         {"1250", -2, "1300", "1200"},
                         {"15.79", -1, "20", "10"},
                         {"12", 2, "12", "12"},
                         {"123456789012345.675", 2, "123456789012345.68", "123456789012345.67"},
                         {"0.000049", 5, "0.00005", "0.00004"},
                         {"9223372036854775807", -1, "9223372036854775810", "9223372036854775800"},
                         {"1", 1000, "1", "1"},
                         {"1", -1000, "0", "0"}}) {
    EXPECT_EQ(c.rounded, plain(num(c.value).round(c.places))) << c.value << ", " << c.places;
    EXPECT_EQ(c.truncated, plain(num(c.value).trunc(c.places))) << c.value << ", " << c.places;
  }
}

TEST(Number, floorAndCeilingGoDownAndUp) {
  EXPECT_EQ("15", plain(num("15.7").floor()));
  EXPECT_EQ("16", plain(num("15.7").ceil()));
  EXPECT_EQ("-16", plain(num("-15.7").floor()));
  EXPECT_EQ("-15", plain(num("-15.7").ceil()));
  EXPECT_EQ("15", plain(num("15").floor()));
  EXPECT_EQ("0", plain(num("-.5").ceil()));
  EXPECT_EQ("-1", plain(num("-.5").floor()));
}

TEST(Number, modTakesTheSignOfTheDividend) {
  EXPECT_EQ("3", plain(mod(Number(11), Number(-4))));
  EXPECT_EQ("-3", plain(mod(Number(-11), Number(4))));
  EXPECT_EQ("1.5", plain(mod(num("10.5"), Number(3))));
  EXPECT_EQ("-1.5", plain(mod(num("-7.5"), Number(2))));
  EXPECT_EQ("5", plain(mod(Number(5), Number(0))));
  EXPECT_EQ("0", plain(mod(std::numeric_limits<std::int64_t>::min(), Number(-1))));
  EXPECT_EQ("0.1", plain(mod(num("1e30") + num(".1"), Number(1))));
  EXPECT_EQ("1", plain(mod(num("1e40"), Number(3))));  // 10 leaves 1 over 3, and so does each power of it
}

TEST(Number, remainderCountsFromTheNearestMultiple) {
  EXPECT_EQ("-1", plain(remainder(Number(11), Number(4))));
  EXPECT_EQ("1", plain(remainder(Number(-11), Number(4))));
  EXPECT_EQ("1", plain(remainder(Number(5), Number(4))));
  EXPECT_EQ("2", plain(remainder(Number(10), Number(4))));   // 2.5 times: the even 2
  EXPECT_EQ("-2", plain(remainder(Number(14), Number(4))));  // 3.5 times: the even 4
  EXPECT_EQ(1476, errorOf([] { remainder(Number(1), Number(0)); }));
}

TEST(Number, powersRootsAndLogarithmsAreExactWhereTheyCanBe) {
  EXPECT_EQ("9", plain(power(Number(3), Number(2))));
  EXPECT_EQ("-0.125", plain(power(Number(-2), Number(-3))));
  EXPECT_EQ("1", plain(power(Number(0), Number(0))));
  EXPECT_EQ("3", plain(power(Number(9), num(".5"))));
  EXPECT_EQ("1125899906842624", plain(power(Number(1024), Number(5))));
  EXPECT_EQ("12", plain(sqrt(Number(144))));
  EXPECT_EQ("1.41421356237309504880168872420969807857", plain(sqrt(Number(2))));  // ..785696718: 38 places
  EXPECT_EQ("2", plain(log(Number(10), Number(100))));
  EXPECT_EQ("10", plain(log(Number(2), Number(1024))));
  EXPECT_EQ("0", plain(ln(Number(1))));
  EXPECT_EQ("1", plain(exp(Number(0))));
  EXPECT_EQ("54.59815", plain(exp(Number(4)).round(5)));
}

TEST(Number, functionsRefuseArgumentsWithoutARealResult) {
  EXPECT_EQ(1428, errorOf([] { sqrt(Number(-1)); }));
  EXPECT_EQ(1428, errorOf([] { ln(Number(0)); }));
  EXPECT_EQ(1428, errorOf([] { log(Number(1), Number(2)); }));
  EXPECT_EQ(1428, errorOf([] { power(Number(-8), num(".5")); }));
  EXPECT_EQ(1428, errorOf([] { power(Number(0), Number(-1)); }));
  EXPECT_EQ(1426, errorOf([] { exp(Number(1000)); }));
  EXPECT_EQ(1426, errorOf([] { power(Number(10), Number(126)); }));
  EXPECT_EQ("0", plain(power(Number(10), Number(-1000000))));
  EXPECT_EQ("0", plain(power(Number(-3), std::numeric_limits<std::int64_t>::min())));
  EXPECT_EQ("-1", plain(power(Number(-1), num("9223372036854775807"))));
  EXPECT_EQ("1", plain(power(Number(-1), num("1e30"))));
  EXPECT_EQ(1426, errorOf([] { power(Number(2), num("1e30")); }));
  EXPECT_EQ("2.71828", plain(power(num("1.000000000000000000001"), num("1e21")).round(5)));
}

TEST(Number, textOfItsOwnHasNoLeadingZeroAndNoTrailingOnes) {
  const std::pair<const char*, const char*> cases[] = {{"0.5", ".5"},
                                                       {"-0.25", "-.25"},
                                                       {"4.001", "4.001"},
                                                       {"10.0", "10"},
                                                       {"0", "0"},
                                                       {"1e20", "100000000000000000000"},
                                                       {"12345678901234567890", "12345678901234567890"},
                                                       {"0.0000001", ".0000001"},
                                                       {"-1234.5", "-1234.5"}};
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(text, num(value).toText()) << value;
  }
}

TEST(Number, textOfItsOwnTurnsToAnExponentBeyondFortyDigits) {
  const std::string zeros(33, '0');
  EXPECT_EQ("1" + std::string(39, '0'), num("1e39").toText());
  EXPECT_EQ("1." + zeros + "0E+40", num("1e40").toText());
  EXPECT_EQ("-1." + zeros + "E+125", num("-1e125").toText());
  EXPECT_EQ("1." + zeros + "0E-45", num("1e-45").toText());
  EXPECT_EQ("." + std::string(39, '0') + "1", num("1e-40").toText());
  EXPECT_EQ("." + std::string(40, '3'), (Number(1) / Number(3)).toText());
  // More places than forty: plain while that keeps more digits than the exponent does.
  EXPECT_EQ(".0000115740740740740740740740740740740741", (Number(1) / Number(86400)).toText());
  EXPECT_EQ("1.1574074074074074074074074074074074E-08", (num("1e-3") / Number(86400)).toText());
  EXPECT_EQ("1." + zeros + "E+126", num("99999999999999999999999999999999999999e88").toText());
}

TEST(Number, orderedBytesAreTheServersOwn) {
  EXPECT_EQ("80", hex(Number(0)));
  EXPECT_EQ("C102", hex(Number(1)));
  EXPECT_EQ("C202", hex(Number(100)));
  EXPECT_EQ("C1020202", hex(num("1.0101")));
  EXPECT_EQ("C033", hex(num(".5")));
  EXPECT_EQ("3E6466", hex(Number(-1)));
  EXPECT_EQ("C2181F", hex(Number(2330)));
  EXPECT_EQ("8002", hex(num("1e-130")));
  EXPECT_EQ("C0" + std::string("2222222222222222222222222222222222222222"), hex(Number(1) / Number(3)));
  // Twenty digits leave no room for the mark that ends a shorter negative number.
  EXPECT_EQ("3F" + std::string("4444444444444444444444444444444444444444"), hex(-(Number(1) / Number(3))));
}

TEST(Number, orderOfTheBytesIsTheNumericOrder) {
  const std::vector<Number> ascending = {
      num("-9.99e125"), num("-1e20"),  num("-1.01"),   num("-1"),   num("-.5"),   num("-1e-130"),
      Number(0),        num("1e-130"), num(".000001"), num(".5"),   num("1"),     num("1.01"),
      num("2"),         num("99.99"),  num("100"),     num("1e20"), num("1e125"), num("9.9999999e125")};
  for (std::size_t i = 0; i + 1 < ascending.size(); ++i) {
    EXPECT_EQ(-1, compare(ascending[i], ascending[i + 1])) << i;
    EXPECT_LT(hex(ascending[i]), hex(ascending[i + 1])) << i;
    EXPECT_EQ(ascending[i], -(-ascending[i]));
  }
}

TEST(Number, bytesThatAreNoNumberAreNone) {
  using Bytes = std::vector<std::uint8_t>;
  for (const Bytes& bytes :
       {Bytes{}, Bytes{0xC1}, Bytes{0x3E}, Bytes{0x3E, 0x66}, Bytes{0xC1, 0x00}, Bytes{0xC1, 0x66},
        Bytes{0xC1, 0x01}, Bytes{0xC2, 0x02, 0x01}, Bytes{0x3E, 0x01}, Bytes(23, 0x10)}) {
    EXPECT_FALSE(Number::fromBytes(bytes)) << bytes.size();
  }
}

TEST(Number, equalNumbersAreWholeOrDecimalAlike) {
  EXPECT_TRUE(num("1e18").isInt64());
  EXPECT_TRUE(num("10.000").isInt64());
  EXPECT_TRUE(num("-9223372036854775808").isInt64());
  EXPECT_FALSE(num("9223372036854775808").isInt64());
  EXPECT_TRUE((num("2.5") * Number(2)).isInt64());
  EXPECT_EQ(num("5"), num("2.5") * Number(2));
  EXPECT_FALSE(num(".5").toInt64());
  EXPECT_EQ(-3, num("-3.9").clampToInt64());
  EXPECT_EQ(std::numeric_limits<std::int64_t>::max(), num("1e30").clampToInt64());
}

}  // namespace
}  // namespace oracle_sql
