// What a long way to the server costs: round trips are counted on the line itself.
#include <gtest/gtest.h>

#include "navigation/clsSnapId.h"
#include "odbc/delaying_proxy.h"
#include "odbc/odbc_session.h"
#include "odbc/postgres_cluster.h"
#include "report/SectionObject.h"

namespace kestrelix {
namespace {

using namespace std::chrono_literals;
using testing_support::DelayingProxy;
using testing_support::PostgresCluster;

/// A Section of 500 rows in a SQL that the server knows.
class FiveHundredRows : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(I, SQUARE)
  FiveHundredRows()
      : ListSectionObject("FiveHundredRows", fieldNames(), {argument("B5", ServerType::String)}) {
    all("getALL_ROWS",
        fold("select i AS I, i * i AS SQUARE from generate_series(1, 500) as t(i) where :B1 > 0"));
    col("getONE_ROW", fold("select i AS I, i * i AS SQUARE from generate_series(1, 500) as t(i) where cast(i "
                           "as text) = :B5"));
  }
};

class RoundTrips : public testing::Test {
 protected:
  void SetUp() override {
    server = PostgresCluster::instance();
    if (server == nullptr) GTEST_SKIP() << PostgresCluster::whyNot();
    proxy = std::make_unique<DelayingProxy>(server->port(), 20ms);
    database = std::make_unique<odbc::OdbcDatabase>(server->connectionText(proxy->port()));
    ASSERT_TRUE(server->run(
        "drop table if exists stats$snapshot; create table stats$snapshot(snap_id numeric, dbid numeric, "
        "instance_number numeric, snap_time timestamp(0), startup_time timestamp(0), snap_level numeric);"
        "insert into stats$snapshot select i, 7, 1, timestamp '2026-01-05 00:00:00' + i * interval '1 hour', "
        "timestamp '2026-01-01 00:00:00', 7 from generate_series(1, 8) as t(i)"));
    pairs.Initialize(*database, failures);
    ASSERT_TRUE(pairs.setBAIND_VALUE("7", "1", "", ""));
    ASSERT_TRUE(pairs.getSTART_END_SNAP_ID(false));
    ASSERT_TRUE(pairs.unsetBAIND_VALUE());
    section.Initialize(*database, pairs, failures, "10");
  }

  PostgresCluster* server = nullptr;
  std::unique_ptr<DelayingProxy> proxy;
  std::unique_ptr<odbc::OdbcDatabase> database;
  Failures failures;
  clsSnapId pairs;
  FiveHundredRows section;
};

TEST_F(RoundTrips, aSectionOfFiveHundredRowsTakesFourAtMost) {
  const int before = proxy->roundTrips();
  ASSERT_TRUE(section.setBAIND_VALUE(pairs.keys(0), {"1"}));
  ASSERT_TRUE(section.get("getALL_ROWS", 0));
  ASSERT_TRUE(section.unsetBAIND_VALUE());
  EXPECT_EQ(section.rownum(), 500);
  EXPECT_EQ(section.SQUARE(499, 0), "250000");
  EXPECT_LE(proxy->roundTrips() - before, 4);
  EXPECT_GE(proxy->roundTrips() - before, 1);
}

TEST_F(RoundTrips, aColViewTakesOneForEachPairAndStatement) {
  ASSERT_EQ(pairs.rownum(), 7);
  int first = 0;
  const int before = proxy->roundTrips();
  for (int i = 0; i < pairs.rownum(); ++i) {
    ASSERT_TRUE(section.setBAIND_VALUE(pairs.keys(i), {"12"}));
    ASSERT_TRUE(section.get("getONE_ROW", i));
    ASSERT_TRUE(section.unsetBAIND_VALUE());
    if (i == 0) first = proxy->roundTrips() - before;
  }
  EXPECT_EQ(section.SQUARE(6, 6), "144");
  EXPECT_LE(first, 3) << "the first one prepares";
  EXPECT_EQ(proxy->roundTrips() - before - first, 6);
}

}  // namespace
}  // namespace kestrelix
