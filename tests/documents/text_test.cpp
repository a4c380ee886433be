#include "documents/text.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrelix::documents {
namespace {

std::string text(const Table& table) {
  std::ostringstream out;
  writeText(out, table);
  return out.str();
}

TEST(Text, aColumnIsAsWideAsItsWidestFieldAndTwoBlanks) {
  EXPECT_EQ(text({{"NO", "NAME", "VALUE"}, {"1", "redo size", "7"}}),
            "NO  NAME       VALUE\n"
            "1   redo size  7\n");
}

// 表 and 名 are two wide each, the half-width ｱ is one.
TEST(Text, aJapaneseCharacterIsTwoWide) {
  EXPECT_EQ(text({{"表名", "x"}, {"abcde", "x"}, {"ｱ", "x"}}),
            "表名   x\n"
            "abcde  x\n"
            "ｱ      x\n");
}

TEST(Text, linesMayDifferInLengthAndAreNotPaddedAtTheirEnd) {
  EXPECT_EQ(text({{"TITLE"}, {"a", "long"}, {"b", "", "c"}, {}}),
            "TITLE\n"
            "a      long\n"
            "b            c\n"
            "\n");
}

TEST(Text, noLinesAreNoText) { EXPECT_EQ(text({}), ""); }

}  // namespace
}  // namespace kestrelix::documents
