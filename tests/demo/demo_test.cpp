#include "demo/demo.h"

#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

#include "demo/demo_support.h"
#include "platform/code_page.h"
#include "repository_file/local_session.h"
#include "statspack/release.h"
#include "support/answering_progress.h"
#include "support/test_folder.h"

namespace kestrelix::demo {
namespace {

std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST_F(DemoTest, fewerThanTwoSnapshotsAreRefused) {
  const auto file = std::filesystem::temp_directory_path() / "kestrelix-demo-refused.sqlite";
  EXPECT_THROW(makeDemo(file, {.snapshots = 1}), std::invalid_argument);
  EXPECT_THROW(makeDemo(file, {.snapshots = 100001}), std::invalid_argument);
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(DemoTest, aDemoThatIsToldToEndLeavesNothingBehind) {
  const testing_support::TestFolder folder;
  std::int64_t written = 0;
  // Two databases of one instance and two of two, three snapshots each.
  testing_support::AnsweringProgress progress([&](std::int64_t done, std::int64_t all) {
    EXPECT_EQ(done, ++written);
    EXPECT_EQ(all, 18);
    return done < 4;
  });
  EXPECT_THROW(makeDemo(folder / "demo.sqlite", {.snapshots = 3}, progress), Cancelled);
  EXPECT_EQ(written, 4);
  EXPECT_EQ(folder.files(), 0);
}

TEST_F(DemoTest, theSeedDecidesTheBytes) {
  const auto folder =
      std::filesystem::temp_directory_path() / ("kestrelix-demo-seeds-" + std::to_string(::getpid()));
  std::filesystem::create_directory(folder);
  makeDemo(folder / "a", {.snapshots = 3, .seed = 7});
  makeDemo(folder / "b", {.snapshots = 3, .seed = 7});
  makeDemo(folder / "c", {.snapshots = 3, .seed = 8});
  EXPECT_TRUE(bytesOf(folder / "a") == bytesOf(folder / "b"));
  EXPECT_FALSE(bytesOf(folder / "a") == bytesOf(folder / "c"));
  std::filesystem::remove_all(folder);
}

TEST_F(DemoTest, opensWithItsAccountAlone) {
  repository_file::LocalFileSession session(path());
  EXPECT_NO_THROW(session.OpenDatabase("DEMO", "PERFSTAT/perfstat", 1));
  EXPECT_THROW(session.OpenDatabase("DEMO", "PERFSTAT/other", 1), DatabaseError);
}

TEST_F(DemoTest, hasItsFourDatabases) {
  EXPECT_EQ(ask(R"(select distinct version||' '||parallel||' '||instance_number from "stats$database_instance"
                   order by dbid, instance_number)"),
            (Texts{"9.2.0.8.0 NO 1", "10.2.0.5.0 YES 1", "10.2.0.5.0 YES 2", "11.2.0.4.0 YES 1",
                   "11.2.0.4.0 YES 2", "11.2.0.4.0 NO 1"}));
}

TEST_F(DemoTest, isOfModerateSize) { EXPECT_LT(std::filesystem::file_size(path()), 60'000'000u); }

TEST_F(DemoTest, everyInstanceHasSixtySnapshotsWithIdsOfTheirOwn) {
  EXPECT_EQ(
      ask(R"(select distinct n from (select count(*) n from "stats$snapshot" group by dbid, instance_number))"),
      (Texts{"60"}));
  EXPECT_EQ(ask(R"(select count(distinct snap_id) from "stats$snapshot")"), (Texts{"360"}));
}

// What happens to each instance, as the pairs of neighbouring snapshots show it.
TEST_F(DemoTest, everyInstanceRestartsOnceAndChangesItsLevelTwiceAndLosesASnapshot) {
  const std::string pairs =
      R"(with p as (select dbid, instance_number, snap_id, snap_time, startup_time, snap_level,
           lag(snap_id) over w b, lag(snap_time) over w bt, lag(snap_level) over w bl
         from "stats$snapshot" window w as (partition by dbid, instance_number order by snap_id)) )";
  const Texts once(6, "1");
  EXPECT_EQ(ask(pairs + "select sum(bt < startup_time) from p group by dbid, instance_number"), once);
  EXPECT_EQ(ask(pairs + "select sum(snap_level <> bl) from p group by dbid, instance_number"), Texts(6, "2"));
  EXPECT_EQ(ask(pairs + "select sum(snap_time - bt > 7000) from p group by dbid, instance_number"), once);
  EXPECT_EQ(ask(pairs + R"(select sum(snap_id - b > (select max(instance_number) from "stats$snapshot" s
                                                     where s.dbid = p.dbid)) from p group by dbid, instance_number)"),
            once);
  EXPECT_EQ(ask(R"(select count(ucomment) from "stats$snapshot" group by dbid, instance_number)"), once);
}

/// The dbids of the databases of a release.
std::string databasesOf(const std::string& major) {
  return "(select dbid from \"stats$database_instance\" where version like '" + major + ".%')";
}

const char* const kMajors[] = {"9", "10", "11"};

TEST_F(DemoTest, theKeysOfTheReleasesHold) {
  for (const std::string major : kMajors) {
    for (const statspack::Table& table : statspack::release(major).tables()) {
      std::string key;
      for (const std::string& column : table.key()) key += (key.empty() ? "\"" : ", \"") + column + "\"";
      if (key.empty() || !table.column("dbid")) continue;
      EXPECT_EQ(breaches("select '" + table.name + "' from \"" + table.name + "\" where dbid in " +
                         databasesOf(major) + " group by " + key + " having count(*) > 1"),
                kNone);
    }
  }
}

TEST_F(DemoTest, whatMustNotBeNullIsNot) {
  for (const std::string major : kMajors)
    for (const statspack::Table& table : statspack::release(major).tables())
      for (const statspack::Column& column : table.columns)
        if (!column.nullable && table.column("dbid") && !table.view) {
          EXPECT_EQ(breaches("select '" + table.name + "." + column.name + "' from \"" + table.name +
                             "\" where \"" + column.name + "\" is null and dbid in " + databasesOf(major)),
                    kNone);
        }
}

// Tables that no Section reads, and columns that a healthy database leaves empty.
bool mayBeEmpty(const std::string& table, const std::string& column) {
  static const std::set<std::string> tables = {
      "stats$buffered_queues", "stats$buffered_subscribers", "stats$latch_children",
      "stats$latch_parent",    "stats$propagation_receiver", "stats$propagation_sender",
      "stats$rule_set",        "stats$sess_time_model",      "stats$session_event",
      "stats$sesstat",         "stats$streams_apply_sum",    "stats$streams_capture",
      "stats$temp_sqlstats"};
  static const std::set<std::string> columns = {"stats$statspack_parameter.last_modified",
                                                "stats$statspack_parameter.ucomment",
                                                "stats$statspack_parameter.job",
                                                "stats$sql_summary.outline_sid",
                                                "stats$sql_summary.outline_category",
                                                "stats$sql_summary.sql_profile",
                                                "stats$sql_plan.other",
                                                "stats$sql_plan.remarks",
                                                "stats$instance_recovery.fast_start_io_target_redo_blks",
                                                "stats$instance_recovery.log_chkpt_interval_redo_blks",
                                                "stats$rollstat.optsize",
                                                "stats$memory_resize_ops.end_time"};
  return tables.contains(table) || columns.contains(table + "." + column);
}

TEST_F(DemoTest, everyColumnThatAReleaseHasIsFilled) {
  for (const std::string major : kMajors) {
    for (const statspack::Table& table : statspack::release(major).tables()) {
      // The cluster's messages are not counted in the single instance of release 9.
      if (major == "9" && table.name == "stats$dlm_misc") continue;
      std::string filled;
      for (const statspack::Column& column : table.columns) {
        if (mayBeEmpty(table.name, column.name)) continue;
        // The thresholds of blocks served gave way to those of blocks received.
        if (table.name == "stats$snapshot" && column.name.ends_with("_sd_th") && major != "9") continue;
        filled += (filled.empty() ? "" : "||") +
                  ("case when count(\"" + column.name + "\") = 0 then ' " + column.name + "' else '' end");
      }
      if (filled.empty()) continue;
      const std::string rows = table.column("dbid") ? " where dbid in " + databasesOf(major) : std::string();
      EXPECT_EQ(ask("select " + filled + " from \"" + table.name + "\"" + rows), (Texts{""}))
          << major << " " << table.name;
    }
  }
}

// The statistics and the rest that Sections ask for by name, with the release that has them first.
TEST_F(DemoTest, whatIsAskedForByNameIsThereAtEverySnapshot) {
  struct Named {
    const char* table;
    const char* column;
    int first;
    std::vector<const char*> names;
    bool clusterOnly = false;
  };
  const std::vector<Named> all = {
      {"stats$sysstat",
       "name",
       9,
       {"CPU used by this session",
        "consistent gets",
        "db block changes",
        "db block gets",
        "execute count",
        "logons cumulative",
        "logons current",
        "opened cursors current",
        "parse count (hard)",
        "parse count (total)",
        "parse time cpu",
        "parse time elapsed",
        "physical reads",
        "physical reads direct",
        "physical reads direct (lob)",
        "physical writes",
        "recursive calls",
        "redo entries",
        "redo log space requests",
        "redo size",
        "session cursor cache count",
        "session logical reads",
        "sorts (disk)",
        "sorts (memory)",
        "sorts (rows)",
        "user calls",
        "user commits",
        "user rollbacks",
        "workarea memory allocated"}},
      {"stats$sysstat",
       "name",
       10,
       {"DBWR fusion writes",          "consistent gets from cache", "db block gets from cache",
        "gc cr block build time",      "gc cr block flush time",     "gc cr block receive time",
        "gc cr block send time",       "gc cr blocks received",      "gc cr blocks served",
        "gc current block flush time", "gc current block pin time",  "gc current block receive time",
        "gc current block send time",  "gc current blocks received", "gc current blocks served",
        "gcs messages sent",           "ges messages sent",          "global enqueue get time",
        "global enqueue gets async",   "global enqueue gets sync",   "physical reads cache"}},
      {"stats$dlm_misc",
       "name",
       10,
       {"gcs msgs received", "ges msgs received", "msgs sent queued", "msgs sent queue time (ms)",
        "msgs sent queued on ksxp", "msgs sent queue time on ksxp (ms)", "msgs received queued",
        "msgs received queue time (ms)", "gcs msgs process time(ms)", "ges msgs process time(ms)",
        "messages sent directly", "messages sent indirectly", "messages flow controlled"},
       true},
      {"stats$parameter",
       "name",
       9,
       {"timed_statistics", "db_block_size", "db_block_buffers", "db_keep_cache_size",
        "db_recycle_cache_size", "db_2k_cache_size", "db_4k_cache_size", "db_8k_cache_size",
        "db_16k_cache_size", "db_32k_cache_size", "db_cache_size", "shared_pool_size", "log_buffer",
        "buffer_pool_keep", "buffer_pool_recycle", "pga_aggregate_target"}},
      {"stats$parameter",
       "name",
       10,
       {"__db_cache_size", "__shared_pool_size", "__large_pool_size", "__java_pool_size",
        "__streams_pool_size"}},
      {"stats$pgastat",
       "name",
       9,
       {"bytes processed", "extra bytes read/written", "total PGA allocated",
        "total PGA used for auto workareas", "total PGA used for manual workareas", "global memory bound",
        "aggregate PGA auto target"}},
  };
  for (const Named& named : all)
    for (const char* name : named.names)
      EXPECT_EQ(breaches(R"(select i.version||' )" + std::string(name) + R"(' from "stats$snapshot" s
                  join "stats$database_instance" i on i.dbid = s.dbid and i.instance_number = s.instance_number
                    and i.startup_time = s.startup_time
                  where cast(i.version as integer) >= )" +
                         std::to_string(named.first) + (named.clusterOnly ? " and i.parallel = 'YES'" : "") +
                         R"( and not exists (select 1 from ")" + named.table +
                         R"(" x where x.dbid = s.dbid and x.instance_number = s.instance_number
                  and x.snap_id = s.snap_id and x.")" +
                         named.column + "\" = '" + name + "')"),
                kNone);
}

TEST_F(DemoTest, hostAndTimeStatisticsHaveTheirNames) {
  EXPECT_EQ(
      ask(R"(select count(*) from "stats$osstatname" where stat_name in ('NUM_CPUS','IDLE_TIME','BUSY_TIME',
                   'USER_TIME','SYS_TIME','IOWAIT_TIME','OS_CPU_WAIT_TIME','RSRC_MGR_CPU_WAIT_TIME','LOAD',
                   'PHYSICAL_MEMORY_BYTES','VM_IN_BYTES','VM_OUT_BYTES'))"),
      (Texts{"12"}));
  EXPECT_EQ(ask(R"(select count(*) from "stats$time_model_statname"
                   where stat_name in ('DB time','DB CPU','background cpu time','background elapsed time'))"),
            (Texts{"4"}));
  EXPECT_EQ(breaches(R"(select osstat_id from "stats$osstat"
                        where osstat_id not in (select osstat_id from "stats$osstatname"))"),
            kNone);
  EXPECT_EQ(breaches(R"(select stat_id from "stats$sys_time_model"
                        where stat_id not in (select stat_id from "stats$time_model_statname"))"),
            kNone);
}

}  // namespace
}  // namespace kestrelix::demo
