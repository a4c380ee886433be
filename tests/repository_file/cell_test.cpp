#include "repository_file/writing/cell.h"

#include <gtest/gtest.h>

namespace kestrelix::repository_file {
namespace {

using statspack::Type;

Cell cellOf(Type type, std::string_view text) {
  static std::string scratch;
  return Cell::fromText(type, text, scratch);
}

TEST(Cell, refusesTextsThatAreNoNumber) {
  for (const char* text : {"abc", "1,000", "--1", "1 2", "0x10", "."})
    EXPECT_THROW(cellOf(Type::Number, text), BadValue) << text;
}

TEST(Cell, refusesDatesThatDoNotExistOrAreWrittenOtherwise) {
  for (const char* text :
       {"2026-02-29", "2026-13-01", "2026-1-1", "2026-01-05T10:00:00", "2026-01-05 24:00:00",
        "2026-01-05 10:60:00", "05-JAN-26", "2026-01-05 10:00", "-026-01-05", "2026-01-00"})
    EXPECT_THROW(cellOf(Type::Date, text), BadValue) << text;
}

TEST(Cell, refusesRawsThatAreNoWholeBytesInHex) {
  EXPECT_THROW(cellOf(Type::Raw, "ABC"), BadValue);
  EXPECT_THROW(cellOf(Type::Raw, "GG"), BadValue);
}

TEST(Cell, emptyTextIsNullOfEveryType) {
  for (const Type type : {Type::Number, Type::Varchar2, Type::Char, Type::Date, Type::Raw})
    EXPECT_EQ(cellOf(type, "").kind(), Cell::Kind::Null);
  EXPECT_EQ(Cell("").kind(), Cell::Kind::Null);
}

TEST(Cell, wholeNumbersStayIntegers) {
  EXPECT_EQ(cellOf(Type::Number, "-42").integer(), -42);
  EXPECT_EQ(cellOf(Type::Number, "9223372036854775807").integer(), 9223372036854775807);
  EXPECT_EQ(cellOf(Type::Number, "9223372036854775807").kind(), Cell::Kind::Integer);
}

// 1970-01-02 is one day of 86400 seconds; 2026-01-05 is 20458 days after 1970-01-01.
TEST(Cell, datesAreSecondsSince1970) {
  EXPECT_EQ(cellOf(Type::Date, "1970-01-01 00:00:00").integer(), 0);
  EXPECT_EQ(cellOf(Type::Date, "1970-01-02").integer(), 86400);
  EXPECT_EQ(cellOf(Type::Date, "1969-12-31 23:59:59").integer(), -1);
  EXPECT_EQ(cellOf(Type::Date, "2026-01-05 10:00:01").integer(), 20458LL * 86400 + 36001);
}

TEST(Cell, rawsAreTheirBytes) {
  EXPECT_EQ(cellOf(Type::Raw, "00aBff").view(), std::string_view("\0\xab\xff", 3));
  EXPECT_EQ(cellOf(Type::Raw, "00aBff").kind(), Cell::Kind::Raw);
}

TEST(Cell, textsStayAsTheyAre) {
  EXPECT_EQ(cellOf(Type::Varchar2, " 010 ").view(), " 010 ");
  EXPECT_EQ(cellOf(Type::Varchar2, "1").kind(), Cell::Kind::Text);
}

}  // namespace
}  // namespace kestrelix::repository_file
