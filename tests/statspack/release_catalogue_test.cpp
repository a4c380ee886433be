#include "statspack/release_catalogue.h"

#include <gtest/gtest.h>

namespace kestrelix::statspack {
namespace {

using oracle_sql::TypeKind;

TEST(ReleaseCatalogue, lowerCaseAndForeignNamesAreNotThere) {
  const ReleaseCatalogue catalogue("10");
  EXPECT_EQ(catalogue.table("", "stats$sysstat"), nullptr);
  EXPECT_EQ(catalogue.table("", "STATS$SYSSTATS"), nullptr);
  EXPECT_EQ(catalogue.table("SCOTT", "STATS$SYSSTAT"), nullptr);
}

TEST(ReleaseCatalogue, tablesBelongToPerfstatAndTheLockTypesToSys) {
  const ReleaseCatalogue catalogue("10");
  const auto* table = catalogue.table("", "STATS$SYSSTAT");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(catalogue.table("PERFSTAT", "STATS$SYSSTAT"), table);
  EXPECT_NE(catalogue.table("SYS", "V$LOCK_TYPE"), nullptr);
  EXPECT_EQ(catalogue.table("PERFSTAT", "V$LOCK_TYPE"), nullptr);
}

TEST(ReleaseCatalogue, columnsHaveUpperCaseNamesAndTheirTypes) {
  const ReleaseCatalogue catalogue("9");
  const auto* table = catalogue.table("", "STATS$SQLTEXT");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->columns[0].name, "HASH_VALUE");
  EXPECT_EQ(table->columns[0].type.kind, TypeKind::Number);
  EXPECT_FALSE(table->columns[0].type.integral);
  EXPECT_EQ(table->columns[1].type.kind, TypeKind::Varchar2);
  EXPECT_EQ(table->columns[4].name, "ADDRESS");
  EXPECT_EQ(table->columns[4].type.kind, TypeKind::Raw);
  const auto* snapshot = catalogue.table("", "STATS$SNAPSHOT");
  EXPECT_EQ(snapshot->columns[3].name, "SNAP_TIME");
  EXPECT_EQ(snapshot->columns[3].type.kind, TypeKind::Date);
}

TEST(ReleaseCatalogue, theUnitTextFunctionCameWithRelease11) {
  EXPECT_EQ(ReleaseCatalogue("9").packageFunction("STATSPACK.V1024"), nullptr);
  EXPECT_EQ(ReleaseCatalogue("10").packageFunction("STATSPACK.V1024"), nullptr);
  EXPECT_NE(ReleaseCatalogue("11").packageFunction("STATSPACK.V1024"), nullptr);
  EXPECT_EQ(ReleaseCatalogue("11").packageFunction("STATSPACK.SNAP"), nullptr);
}

}  // namespace
}  // namespace kestrelix::statspack
