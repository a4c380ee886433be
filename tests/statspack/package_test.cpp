#include <gtest/gtest.h>

#include "oracle_sql/function_support.h"
#include "statspack/package.h"

namespace kestrelix::statspack {
namespace {

using namespace oracle_sql;

std::string answer(std::initializer_list<Value> arguments) {
  const std::vector<Value> values(arguments);
  return shown(packageFunction("Statspack.v1024")->call(values, {kNow}));
}

std::string v1024(const char* number, const char* unit, const char* least, const char* precision,
                  const char* factor) {
  return answer({n(number), s(unit), s(least), n(precision), n(factor)});
}

TEST(StatspackV1024, onlyNullAndNoughtAreBlank) {
  EXPECT_EQ(" ", answer({null, s("M"), s("M"), n("0"), n("1024")}));
  EXPECT_EQ(" ", v1024("0", "M", "M", "0", "1024"));
  EXPECT_EQ("    0M", v1024("0.4", "M", "M", "0", "1024"));
  EXPECT_EQ("     .0M", v1024("0.0444", "M", "M", "1", "1024"));
  EXPECT_EQ("     .0 ", v1024("0.0222", "B", "B", "1", "1000"));
}

TEST(StatspackV1024, climbsOnlyWhenFourDigitsDoNotDo) {
  EXPECT_EQ(" 8110M", v1024("8110", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9999M", v1024("9999", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9999M", v1024("9999.4", "M", "M", "0", "1024"));
  EXPECT_EQ("   10G", v1024("9999.5", "M", "M", "0", "1024"));
  EXPECT_EQ("   10G", v1024("10000", "M", "M", "0", "1024"));
  EXPECT_EQ("   10G", v1024("10239", "M", "M", "0", "1024"));
  EXPECT_EQ("   11G", v1024("10752", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9766G", v1024("1e7", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9999G", v1024("10239487", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9999G", v1024("10238976", "M", "M", "0", "1024"));
  EXPECT_EQ(" 9999.0M", v1024("9999.04", "M", "M", "1", "1024"));
  EXPECT_EQ("    9.8G", v1024("9999.06", "M", "M", "1", "1024"));
}

TEST(StatspackV1024, onesHaveABlankForTheirLetter) {
  EXPECT_EQ("  578.1 ", v1024("578.06", "B", "B", "1", "1000"));
  EXPECT_EQ("   10.0K", v1024("9999.9", "B", "B", "1", "1000"));
  EXPECT_EQ("   12.3K", v1024("12345.6", "B", "B", "1", "1000"));
  EXPECT_EQ(" 2771 ", v1024("2771", "B", "B", "0", "1000"));
  EXPECT_EQ(" 9999 ", v1024("9999", "B", "B", "0", "1000"));
  EXPECT_EQ("   10K", v1024("10000", "B", "B", "0", "1000"));
  EXPECT_EQ("  520K", v1024("520240", "B", "B", "0", "1000"));
  EXPECT_EQ(" 9999K", v1024("9999499", "B", "B", "0", "1000"));
  EXPECT_EQ("   10M", v1024("9999500", "B", "B", "0", "1000"));
  EXPECT_EQ("   12M", v1024("12345678", "B", "B", "0", "1000"));
  EXPECT_EQ("    3 ", v1024("3", "B", "B", "0", "1000"));
}

TEST(StatspackV1024, neverFallsBelowTheLeastUnit) {
  EXPECT_EQ("    1M", v1024("1", "M", "M", "0", "1024"));
  EXPECT_EQ("   -5M", v1024("-5", "M", "M", "0", "1024"));
  EXPECT_EQ("    4.5M", v1024("4.5267", "M", "M", "1", "1024"));
  EXPECT_EQ("     .1M", v1024("0.05", "M", "M", "1", "1024"));
  EXPECT_EQ(" 1024M", v1024("1", "G", "M", "0", "1024"));
  EXPECT_EQ("   20.0T", v1024("20", "T", "B", "1", "1024"));
  EXPECT_EQ(" 1536.00K", v1024("1536", "K", "K", "2", "1024"));
}

TEST(StatspackV1024, moreThanTheLargestUnitHoldsIsHashes) {
  EXPECT_EQ("#####P", v1024("1e20", "B", "B", "0", "1024"));
}

}  // namespace
}  // namespace kestrelix::statspack
