#include "documents/csv.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrelix::documents {
namespace {

std::string csv(const Table& table) {
  std::ostringstream out;
  writeCsv(out, table);
  return out.str();
}

TEST(Csv, whatWouldBreakALineIsQuoted) {
  EXPECT_EQ(csv({{"a,b", "\"", "say \"no\"", "one\ntwo", "\r"}}),
            "\"a,b\",\"\"\"\",\"say \"\"no\"\"\",\"one\ntwo\",\"\r\"\r\n");
}

TEST(Csv, whatBreaksNoLineStaysAsItIs) {
  EXPECT_EQ(csv({{" a ", "'b'", "c;d", "表", "\t"}}), " a ,'b',c;d,表,\t\r\n");
}

TEST(Csv, linesMayDifferInLength) {
  EXPECT_EQ(csv({{"TITLE", "x"}, {"1", "2", "3"}, {}, {""}}), "TITLE,x\r\n1,2,3\r\n\r\n\r\n");
}

TEST(Csv, noLinesAreNoText) { EXPECT_EQ(csv({}), ""); }

TEST(Csv, nullIsAnEmptyField) {
  std::ostringstream out;
  const std::vector<std::optional<std::string>> row{std::nullopt, "a", std::nullopt, "b,"};
  writeCsvLine(out, row);
  EXPECT_EQ(out.str(), ",a,,\"b,\"\r\n");
}

}  // namespace
}  // namespace kestrelix::documents
