#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster_support.h"
#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const std::initializer_list<std::string_view> kRowCache = {
    "snap_id",    "parameter",     "usage",        "gets",          "getmisses",   "scans",
    "scanmisses", "modifications", "dlm_requests", "dlm_conflicts", "dlm_releases"};

void dictionaryCaches(FixtureRepository& repository) {
  repository.rows("stats$rowcache_summary", kRowCache,
                  {{"1", "DC_SEGMENTS", "5", "100", "1", "0", "0", "2", "10", "1", "3"},
                   {"2", "DC_SEGMENTS", "8", "300", "4", "0", "0", "5", "25", "3", "9"},
                   {"1", "dc_objects", "5", "0", "0", "10", "0", "0", "7", "0", "0"},
                   {"2", "dc_objects", "6", "400", "0", "30", "3", "0", "7", "0", "0"},
                   // Scans and no gets.
                   {"1", "dc_users", "5", "9", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "dc_users", "5", "9", "0", "50", "0", "0", "2", "1", "1"},
                   // At one end alone.
                   {"2", "dc_new", "5", "9", "0", "50", "0", "0", "2", "1", "1"}});
}

TEST(DictionaryCacheStats, cachesWithGetsShowByTheirLoweredName) {
  InstanceRepository repository("9");
  dictionaryCaches(repository);
  OpenReport report(repository);
  // Segments: 3 misses in 200 gets 1.5 %, no scans. Objects: 3 misses in 20 scans 15 %.
  EXPECT_EQ(report.all("Dictionary Cache Stats[1]", 0),
            "NO|CACHE|GET REQUESTS|PCT MISS|SCAN REQS|PCT MISS|MOD REQS|FINAL USAGE\n"
            "1|dc_objects|400|0|20|15|0|6\n"
            "2|dc_segments|200|1.5|0| |3|8\n");
  EXPECT_EQ(report.col(2),
            "NO|CACHE|END TIME|GET REQUESTS|PCT MISS|SCAN REQS|PCT MISS|MOD REQS|FINAL USAGE|STATUS\n"
            "1|dc_segments|2026-01-05 11:00:00|200|1.5|0| |3|8|OK\n"
            "2||2026-01-05 12:00:00|||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(DictionaryCacheStats, thoseOfTheClusterGoByTheLocks) {
  ClusterRepository repository("10");
  dictionaryCaches(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Dictionary Cache Stats[2]", 0),
            "NO|CACHE|GES REQUESTS|GES CONFLICTS|GES RELEASES\n"
            "1|dc_segments|15|2|6\n"
            "2|dc_users|2|1|1\n");
  EXPECT_EQ(report.col(1),
            "NO|CACHE|END TIME|GES REQUESTS|GES CONFLICTS|GES RELEASES|STATUS\n"
            "1|dc_segments|2026-01-05 11:00:00|15|2|6|OK\n"
            "2||2026-01-05 12:00:00||||DB RESTART\n");
  EXPECT_EQ(report.all("Dictionary Cache Stats[2]", 1), "NO|CACHE|GES REQUESTS|GES CONFLICTS|GES RELEASES\n");
}

const std::initializer_list<std::string_view> kLibrary = {"snap_id",
                                                          "namespace",
                                                          "gets",
                                                          "gethits",
                                                          "pins",
                                                          "pinhits",
                                                          "reloads",
                                                          "invalidations",
                                                          "dlm_lock_requests",
                                                          "dlm_pin_requests",
                                                          "dlm_pin_releases",
                                                          "dlm_invalidation_requests",
                                                          "dlm_invalidations"};

void libraryCache(FixtureRepository& repository) {
  repository.rows("stats$librarycache", kLibrary,
                  {{"1", "SQL AREA", "100", "90", "1000", "990", "1", "0", "1", "1", "1", "1", "1"},
                   {"2", "SQL AREA", "500", "465", "4000", "3960", "5", "2", "11", "10", "9", "8", "7"},
                   // Gets and no pins.
                   {"1", "CLUSTER", "10", "10", "7", "7", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "CLUSTER", "13", "12", "7", "7", "0", "0", "0", "0", "0", "0", "0"},
                   // Locks and no gets.
                   {"1", "BODY", "5", "5", "5", "5", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "BODY", "5", "5", "9", "9", "0", "0", "99", "0", "0", "0", "0"},
                   // At one end alone.
                   {"2", "TRIGGER", "5", "5", "9", "9", "0", "0", "99", "0", "0", "0", "0"}});
}

TEST(LibraryCacheActivity, namespacesWithGetsShow) {
  InstanceRepository repository("9");
  libraryCache(repository);
  OpenReport report(repository);
  report.all("Library Cache Activity[1]", 0);
  // SQL AREA: 375 hits in 400 gets, 6.25 -> 6.3 % missed; 2970 in 3000 pins, 1 %. CLUSTER: 2 of 3, 33.3 %.
  EXPECT_THAT(report.rowsInAnyOrder(),
              UnorderedElementsAre("SQL AREA|400|6.3|3000|1|4|2", "CLUSTER|3|33.3|0| |0|0"));
  EXPECT_THAT(printed(report.grid()),
              testing::StartsWith(
                  "NO|NAMESPACE|GET REQUESTS|PCT MISS|PIN REQUESTS|PCT MISS|RELOADS|INVALIDATIONS\n"));
}

TEST(LibraryCacheActivity, aSeriesFollowsTheNamespace) {
  InstanceRepository repository("11");
  libraryCache(repository);
  OpenReport report(repository);
  report.all("Library Cache Activity[1]", 0);
  const int row = report.grid().TextMatrix(1, 1) == "SQL AREA" ? 1 : 2;
  EXPECT_EQ(report.col(row),
            "NO|NAMESPACE|END TIME|GET REQUESTS|PCT MISS|PIN REQUESTS|PCT MISS|RELOADS|INVALIDATIONS|STATUS\n"
            "1|SQL AREA|2026-01-05 11:00:00|400|6.3|3000|1|4|2|OK\n"
            "2||2026-01-05 12:00:00|||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||OK\n");
}

TEST(LibraryCacheActivity, thatOfTheClusterGoesByTheGetsToo) {
  ClusterRepository repository;
  libraryCache(repository);
  OpenReport report(repository);
  report.all("Library Cache Activity[2]", 0);
  EXPECT_THAT(report.rowsInAnyOrder(), UnorderedElementsAre("SQL AREA|10|9|8|7|6", "CLUSTER|0|0|0|0|0"));
  EXPECT_EQ(report.grid().TextMatrix(0, 5), "GES INVAL REQUESTS");
  EXPECT_EQ(report.all("Library Cache Activity[2]", 1),
            "NO|NAMESPACE|GES LOCK REQUESTS|GES PIN REQUESTS|GES PIN RELEASES|GES INVAL REQUESTS|GES "
            "INVALIDATIONS\n");
}

TEST(ResourceLimitStats, limitsAreTextsOfTheEnd) {
  InstanceRepository repository("10");
  repository.rows("stats$resource_limit",
                  {"snap_id", "resource_name", "current_utilization", "max_utilization", "initial_allocation",
                   "limit_value"},
                  {{"1", "sessions", "9", "9", "9", "9"},
                   {"2", "sessions", "40", "55", "       170", "       170"},
                   {"2", "gcs_resources", "0", "0", "         0", " UNLIMITED"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Resource Limit Stats", 0),
            "NO|RESOURCE NAME|CURRENT UTILIZATION|MAXIMUM UTILIZATION|INITIAL ALLOCATION|LIMIT\n"
            "1|gcs_resources|0|0|         0| UNLIMITED\n"
            "2|sessions|40|55|       170|       170\n");
  EXPECT_EQ(
      report.col(1),
      "NO|RESOURCE NAME|END TIME|CURRENT UTILIZATION|MAXIMUM UTILIZATION|INITIAL ALLOCATION|LIMIT|STATUS\n"
      "1|gcs_resources|2026-01-05 11:00:00|0|0|         0| UNLIMITED|OK\n"
      "2||2026-01-05 12:00:00|||||DB RESTART\n"
      "3||2026-01-05 13:30:00|||||OK\n");
}

const std::initializer_list<std::string_view> kParameter = {"snap_id", "name", "value", "isdefault",
                                                            "ismodified"};

TEST(InitParameters, thoseAtTheirDefaultAreHiddenAndOnlyAChangeHasAnEnd) {
  InstanceRepository repository("11");
  repository.rows("stats$parameter", kParameter,
                  {{"1", "aq_tm_processes", "0", "TRUE", "FALSE"},  // at its default
                   {"2", "aq_tm_processes", "0", "TRUE", "FALSE"},
                   {"1", "control_files", "/a/b.ctl", "FALSE", "FALSE"},  // set and unchanged
                   {"2", "control_files", "/a/b.ctl", "FALSE", "FALSE"},
                   {"1", "open_cursors", "300", "TRUE", "FALSE"},  // changed
                   {"2", "open_cursors", "500", "TRUE", "MODIFIED"},
                   {"2", "new_one", "x", "TRUE", "FALSE"},  // new at the end
                   {"1", "_small_table", "5", "FALSE", "FALSE"},
                   {"2", "_small_table", "5", "FALSE", "FALSE"},
                   {"1", "__db_cache_size", "1", "FALSE", "FALSE"},  // two underscores
                   {"2", "__db_cache_size", "2", "FALSE", "FALSE"},
                   {"1", "log_archive_dest", "", "FALSE", "FALSE"},
                   {"2", "log_archive_dest", "", "FALSE", "FALSE"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("init.ora Parameters", 0),
            "NO|PARAMETER NAME|START VALUE|END VALUE\n"
            "1|_small_table|5| \n"
            "2|control_files|/a/b.ctl| \n"
            "3|log_archive_dest| | \n"
            "4|new_one| |x\n"
            "5|open_cursors|300|500\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(InitParameters, aPairInWhichTheParameterDoesNotQualifyIsBlankInItsSeries) {
  InstanceRepository repository("9");
  repository.rows("stats$parameter", kParameter,
                  {{"1", "open_cursors", "300", "TRUE", "FALSE"},
                   {"2", "open_cursors", "500", "TRUE", "MODIFIED"},
                   {"3", "open_cursors", "300", "TRUE", "FALSE"},
                   {"4", "open_cursors", "300", "TRUE", "FALSE"}});
  OpenReport report(repository);
  report.all("init.ora Parameters", 0);
  EXPECT_EQ(report.col(1),
            "NO|PARAMETER NAME|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|open_cursors|2026-01-05 11:00:00|300|500|OK\n"
            "2||2026-01-05 12:00:00|||DB RESTART\n"
            "3||2026-01-05 13:30:00|||OK\n");
}

TEST(InitParameters, aMissingTableFailsInItsMember) {
  InstanceRepository repository("9");
  repository.without("stats$parameter");
  OpenReport report(repository);
  report.all("init.ora Parameters", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsinitParameters){getINIT_PARAMETERS_ALL} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
