#include "repository_file/writing/indexes.h"

#include <gtest/gtest.h>

namespace kestrelix::repository_file {
namespace {

using Names = std::vector<std::string>;
using Lists = std::vector<Names>;

TEST(Indexes, unknownTableIsServedByWhatItHasOfTheSnapshotKey) {
  EXPECT_EQ(indexesOf("my$notes", {"note", "snap_id", "dbid"}), (Lists{{"dbid"}}));
  EXPECT_EQ(indexesOf("my$notes", {"note"}), Lists{});
}

TEST(Indexes, anIndexEndsAtTheFirstColumnThatIsMissing) {
  EXPECT_EQ(indexesOf("stats$event_histogram",
                      {"snap_id", "dbid", "instance_number", "wait_time_milli", "wait_count"}),
            (Lists{{"dbid", "instance_number", "snap_id"}}));
}

TEST(Indexes, naturalKeyStandsBehindTheSnapshotKey) {
  EXPECT_EQ(indexesOf("stats$sysstat", {"snap_id", "dbid", "instance_number", "statistic#", "name", "value"}),
            (Lists{{"dbid", "instance_number", "snap_id", "name"}}));
}

TEST(Indexes, aTableWhoseKeyChangedIsServedForEachRelease) {
  EXPECT_EQ(indexesOf("stats$sqltext", {"old_hash_value", "hash_value", "text_subset", "piece", "sql_text"}),
            (Lists{{"old_hash_value", "text_subset", "piece"}, {"hash_value", "text_subset", "piece"}}));
}

TEST(Indexes, snapshotsAreFoundByTheirIdAloneAsWell) {
  EXPECT_EQ(indexesOf("stats$snapshot", {"snap_id", "dbid", "instance_number", "snap_time"}),
            (Lists{{"dbid", "instance_number", "snap_id"}, {"snap_id"}}));
}

TEST(Indexes, namesOfStatisticsAreFoundByNumberAndByName) {
  EXPECT_EQ(indexesOf("stats$osstatname", {"osstat_id", "stat_name", "cumulative"}),
            (Lists{{"osstat_id"}, {"stat_name"}}));
  EXPECT_EQ(indexesOf("stats$time_model_statname", {"stat_id", "stat_name"}),
            (Lists{{"stat_id"}, {"stat_name"}}));
}

}  // namespace
}  // namespace kestrelix::repository_file
