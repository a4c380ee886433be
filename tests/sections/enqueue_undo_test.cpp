#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::initializer_list<std::string_view> kEnqueue = {"snap_id",     "eq_type",       "req_reason",
                                                          "total_req#",  "total_wait#",   "succ_req#",
                                                          "failed_req#", "cum_wait_time", "event#"};

void enqueues(FixtureRepository& repository) {
  repository
      .rows("stats$enqueue_statistics", kEnqueue,
            {{"1", "TX", "row lock contention", "100", "10", "90", "0", "1000", "1"},
             {"2", "TX", "row lock contention", "150", "13", "138", "2", "6501", "1"},
             {"2", "TX", "contention", "7", "1", "7", "0", "5501", "2"},
             {"2", "HW", "-", "9", "2", "9", "0", "40", "3"},
             {"2", "ZZ", "it's new", "1", "4", "1", "0", "0", "4"},
             {"1", "US", "-", "5", "5", "5", "0", "5", "5"},
             {"2", "US", "-", "9", "5", "9", "0", "9", "5"}})
      .rows("v$lock_type", {"type", "name"}, {{"TX", "Transaction"}, {"HW", "Segment High Water Mark"}});
}

TEST(EnqueueActivity, theTypeIsComposedOfLettersNameAndReason) {
  InstanceRepository repository("11");
  enqueues(repository);
  OpenReport report(repository);
  // TX row lock: 3 waits in 5501 ms: 5.5 -> 6 s, 1833.67 ms. TX contention as long in one wait: after it by
  // the waits. HW: .04 s -> 0, 20 ms. ZZ has no name: a dash and a blank.
  EXPECT_EQ(report.all("Enqueue Activity", 0),
            "NO|ENQUEUE TYPE (REQUEST REASON)|REQUESTS|SUCCESS GETS|FAILED GETS|WAITS|WAIT TIME(S)|AVG WAIT "
            "TIME(MS)\n"
            "1|TX-Transaction (row lock contention)|50|48|2|3|6|1833.67\n"
            "2|TX-Transaction|7|7|0|1|6|5501\n"
            "3|HW-Segment High Water Mark|9|9|0|2|0|20\n"
            "4|ZZ-  (it's new)|1|1|0|4|0|0\n");
}

TEST(EnqueueActivity, aSeriesFindsItsRowByTheWholeText) {
  InstanceRepository repository("10");
  enqueues(repository);
  OpenReport report(repository);
  report.all("Enqueue Activity", 0);
  EXPECT_EQ(report.col(1),
            "NO|ENQUEUE TYPE (REQUEST REASON)|END TIME|REQUESTS|SUCCESS GETS|FAILED GETS|WAITS|WAIT "
            "TIME(S)|AVG WAIT "
            "TIME(MS)|STATUS\n"
            "1|TX-Transaction (row lock contention)|2026-01-05 11:00:00|50|48|2|3|6|1833.67|OK\n"
            "2||2026-01-05 12:00:00|||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||OK\n");
  report.all("Enqueue Activity", 0);
  report.col(4);
  EXPECT_EQ(report.grid().TextMatrix(1, 1), "ZZ-  (it's new)");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(EnqueueActivity, version9HasTheBareTypeAndSwapsItsLastColumnsBetweenTheViews) {
  InstanceRepository repository("9");
  repository.rows(
      "stats$enqueue_stat",
      {"snap_id", "eq_type", "total_req#", "total_wait#", "succ_req#", "failed_req#", "cum_wait_time"},
      {{"1", "TX", "1", "1", "1", "0", "0"},
       {"2", "TX", "9", "4", "8", "1", "2501"},
       {"1", "US", "1", "1", "1", "0", "0"},
       {"2", "US", "3", "1", "3", "0", "9"},
       {"2", "CF", "2", "1", "2", "0", "7"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Enqueue Activity", 0),
            "NO|EQ|REQUESTS|SUCCESS GETS|FAILED GETS|WAITS|AVG WAIT TIME(MS)|WAIT TIME(S)\n"
            "1|TX|8|7|1|3|833.67|3\n"
            "2|CF|2|2|0|1|7|0\n");
  EXPECT_EQ(report.col(1),
            "NO|EQ|END TIME|REQUESTS|SUCCESS GETS|FAILED GETS|WAITS|WAIT TIME(S)|AVG WAIT TIME(MS)|STATUS\n"
            "1|TX|2026-01-05 11:00:00|8|7|1|3|3|833.67|OK\n"
            "2||2026-01-05 12:00:00|||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||OK\n");
}

TEST(EnqueueActivity, theBoxSpellsTheClassWithACapitalA) {
  InstanceRepository repository("10");
  repository.without("v$lock_type");
  OpenReport report(repository);
  report.all("Enqueue Activity", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsEnqueueActivity){getENQUEUE_ACTIVITY_ALL} Error"));
}

const std::initializer_list<std::string_view> kRollback = {"snap_id", "usn",   "rssize",  "writes",
                                                           "gets",    "waits", "optsize", "hwmsize",
                                                           "shrinks", "wraps", "extends", "aveactive"};

void rollback(FixtureRepository& repository) {
  repository.rows("stats$rollstat", kRollback,
                  {{"1", "0", "400000", "10", "100", "0", "-4096", "400000", "0", "0", "0", "0"},
                   {"2", "0", "409600", "10", "100", "3", "-4096", "450000", "0", "0", "0", "0"},
                   {"1", "10", "1000", "500", "100", "1", "2000", "9000", "1", "2", "3", "7"},
                   {"2", "10", "1100", "2500", "400", "3", "2100", "9100", "2", "5", "7", "8"},
                   {"2", "11", "5", "5", "5", "5", "5", "5", "5", "5", "5", "5"}});
}

TEST(RollbackSegments, oneCreatedInThePairIsMissing) {
  InstanceRepository repository("9");
  rollback(repository);
  OpenReport report(repository);
  // 2 waits in 300 gets: .67 %.
  EXPECT_EQ(report.all("Rollback Segment Stats", 0),
            "NO|RBS NO|TRANS TABLE GETS|PCT WAITS|UNDO BYTES WRITTEN|WRAPS|SHRINKS|EXTENDS\n"
            "1|0|0| |0|0|0|0\n"
            "2|10|300|.67|2000|3|1|4\n");
  EXPECT_EQ(report.col(2),
            "NO|RBS NO|END TIME|TRANS TABLE GETS|PCT WAITS|UNDO BYTES WRITTEN|WRAPS|SHRINKS|EXTENDS|STATUS\n"
            "1|10|2026-01-05 11:00:00|300|.67|2000|3|1|4|OK\n"
            "2||2026-01-05 12:00:00|||||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||||OK\n");
  EXPECT_EQ(report.all("Rollback Segment Stats", 1),
            "NO|RBS NO|TRANS TABLE GETS|PCT WAITS|UNDO BYTES WRITTEN|WRAPS|SHRINKS|EXTENDS\n");
}

TEST(RollbackSegments, storageIsThatOfTheEndAndNoOptimalSizeIsBlank) {
  InstanceRepository repository("11");
  rollback(repository);
  OpenReport report(repository);
  EXPECT_EQ(report.all("Rollback Segment Storage", 0),
            "NO|RBS NO|SEGMENT SIZE|AVG ACTIVE|OPTIMAL SIZE|MAXIMUM SIZE\n"
            "1|0|409600|0| |450000\n"
            "2|10|1100|8|2100|9100\n");
  EXPECT_EQ(report.col(1),
            "NO|RBS NO|END TIME|SEGMENT SIZE|AVG ACTIVE|OPTIMAL SIZE|MAXIMUM SIZE|STATUS\n"
            "1|0|2026-01-05 11:00:00|409600|0| |450000|OK\n"
            "2||2026-01-05 12:00:00|||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||OK\n");
  EXPECT_EQ(report.all("Rollback Segment Storage", 1),
            "NO|RBS NO|SEGMENT SIZE|AVG ACTIVE|OPTIMAL SIZE|MAXIMUM SIZE\n");
}

const std::initializer_list<std::string_view> kUndo = {
    "snap_id",      "begin_time",     "end_time",     "undotsn",       "undoblks",           "txncount",
    "maxquerylen",  "maxconcurrency", "unxpstealcnt", "unxpblkrelcnt", "unxpblkreucnt",      "expstealcnt",
    "expblkrelcnt", "expblkreucnt",   "ssolderrcnt",  "nospaceerrcnt", "tuned_undoretention"};

// Intervals of ten minutes. The first ends as the pair begins and the last begins as it ends: neither counts.
void undo(FixtureRepository& repository) {
  repository.rows("stats$undostat", kUndo,
                  {{"1", "2026-01-05 09:50:00", "2026-01-05 10:00:00", "1", "9000", "9", "9", "9", "9", "9",
                    "9", "9", "9", "9", "9", "9", "9"},
                   {"2", "2026-01-05 09:55:00", "2026-01-05 10:05:00", "1", "1000", "10", "30", "2", "1",
                    "10", "20", "30", "40", "50", "1", "3", "910"},
                   {"2", "2026-01-05 10:50:00", "2026-01-05 11:00:00", "1", "260", "15", "20", "5", "1", "2",
                    "3", "4", "5", "6", "2", "2", "1000"},
                   {"2", "2026-01-05 11:00:00", "2026-01-05 11:10:00", "1", "9000", "9", "9", "9", "9", "9",
                    "9", "9", "9", "9", "9", "9", "9"}});
}

TEST(UndoSegmentSummary, intervalsThatOverlapThePairCount) {
  InstanceRepository repository("10");
  undo(repository);
  OpenReport report(repository);
  // 1260 blocks: 1.3 thousand. Retention 910 s = 15.17 -> 15.2 and 1000 s = 16.67 -> 16.7 minutes.
  EXPECT_EQ(report.all("Undo Segment Summary", 0),
            "NO|UNDO TS#|NUM UNDO BLOCKS(K)|NUMBER OF TRANSACTIONS|MAX QRY LEN(S)|MAX TX "
            "CONCY|MIN/MAX TR(MINS)|STO/OOS|US/UR/UU/ES/ER/EU\n"
            "1|1|1.3|25|30|5|15.2/16.7|3/5|2/12/23/34/45/56\n");
  EXPECT_EQ(report.col(1),
            "NO|END TIME|UNDO TS#|NUM UNDO BLOCKS(K)|NUMBER OF TRANSACTIONS|MAX QRY LEN(S)|MAX TX "
            "CONCY|MIN/MAX TR(MINS)|STO/OOS|US/UR/UU/ES/ER/EU|STATUS\n"
            "1|2026-01-05 11:00:00|1|1.3|25|30|5|15.2/16.7|3/5|2/12/23/34/45/56|OK\n"
            "2|2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3|2026-01-05 13:30:00|||||||||OK\n");
}

TEST(UndoSegmentSummary, eachUndoTablespaceHasARowAndTheSeriesIsOfEither) {
  InstanceRepository repository("11");
  for (const auto& [tablespace, blocks] : {std::pair{"1", "1000"}, std::pair{"2", "2000"}})
    repository.row("stats$undostat", {{"snap_id", "2"},
                                      {"begin_time", tablespace == std::string("1") ? "2026-01-05 10:10:00"
                                                                                    : "2026-01-05 10:20:00"},
                                      {"end_time", "2026-01-05 10:30:00"},
                                      {"undotsn", tablespace},
                                      {"undoblks", blocks},
                                      {"txncount", "1"},
                                      {"maxquerylen", "1"},
                                      {"maxconcurrency", "1"}});
  OpenReport report(repository);
  report.all("Undo Segment Summary", 0);
  EXPECT_THAT(report.rowsInAnyOrder(),
              testing::UnorderedElementsAre("1|1|1|1|1|/|/|/////", "2|2|1|1|1|/|/|/////"));
  report.col(2);
  EXPECT_EQ(report.grid().Rows(), 4);
  EXPECT_THAT(report.grid().TextMatrix(1, 2) + " " + report.grid().TextMatrix(1, 3),
              testing::AnyOf("1 1", "2 2"));
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(UndoSegmentSummary, aRestartLeavesTheHeadingsAlone) {
  InstanceRepository repository("11");
  undo(repository);
  OpenReport report(repository);
  report.all("Undo Segment Summary", 1);
  EXPECT_EQ(report.grid().Rows(), 1);
  EXPECT_EQ(report.grid().TextMatrix(0, 1), "UNDO TS#");
}

TEST(UndoSegmentSummary, version9HasItsOwnColumns) {
  InstanceRepository repository("9");
  repository.rows("stats$undostat",
                  {"snap_id", "begin_time", "end_time", "undotsn", "undoblks", "txncount", "maxquerylen",
                   "maxconcurrency", "unxpstealcnt", "unxpblkrelcnt", "unxpblkreucnt", "expstealcnt",
                   "expblkrelcnt", "expblkreucnt", "ssolderrcnt", "nospaceerrcnt"},
                  {{"1", "2026-01-05 09:50:00", "2026-01-05 10:00:00", "1", "9000", "9", "9", "9", "9", "9",
                    "9", "9", "9", "9", "9", "9"},
                   {"2", "2026-01-05 09:55:00", "2026-01-05 10:05:00", "1", "1000", "10", "30", "2", "1",
                    "10", "20", "30", "40", "50", "1", "3"},
                   {"2", "2026-01-05 10:50:00", "2026-01-05 11:00:00", "1", "260", "15", "20", "5", "1", "2",
                    "3", "4", "5", "6", "2", "2"},
                   {"2", "2026-01-05 11:00:00", "2026-01-05 11:10:00", "1", "9000", "9", "9", "9", "9", "9",
                    "9", "9", "9", "9", "9", "9"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Undo Segment Summary", 0),
            "NO|UNDO TS#|UNDO BLOCKS|NUM TRANS|MAX QRY LEN(S)|MAX TX CONCURCY|SNAPSHOT TOO OLD|OUT OF "
            "SPACE|US/UR/UU/ES/ER/EU\n"
            "1|1|1260|25|30|5|3|5|2/12/23/34/45/56\n");
  EXPECT_EQ(
      report.col(1),
      "NO|END TIME|UNDO TS#|UNDO BLOCKS|NUM TRANS|MAX QRY LEN(S)|MAX TX CONCURCY|SNAPSHOT TOO OLD|OUT OF "
      "SPACE|US/UR/UU/ES/ER/EU|STATUS\n"
      "1|2026-01-05 11:00:00|1|1260|25|30|5|3|5|2/12/23/34/45/56|OK\n"
      "2|2026-01-05 12:00:00|||||||||DB RESTART\n"
      "3|2026-01-05 13:30:00|||||||||OK\n");
  EXPECT_EQ(report.all("Undo Segment Stats", 0),
            "NO|END TIME|UNDO BLOCKS|NUM TRANS|MAX QRY LEN(S)|MAX TX CONCY|SNAP TOO OLD|OUT OF "
            "SPACE|US/UR/UU/ES/ER/EU\n"
            "1|2026-01-05 11:00|260|15|20|5|2|2|1/2/3/4/5/6\n"
            "2|2026-01-05 10:05|1000|10|30|2|1|3|1/10/20/30/40/50\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(UndoSegmentStats, theNewestIntervalComesFirst) {
  InstanceRepository repository("11");
  undo(repository);
  OpenReport report(repository);
  // Retention 1000 s is 16.67 -> 17 minutes, 910 s 15.17 -> 15.
  EXPECT_EQ(report.all("Undo Segment Stats", 0),
            "NO|END TIME|NUM UNDO BLOCKS|NUMBER OF TRANSACTIONS|MAX QRY LEN(S)|MAX TX CONCY|TUN "
            "RET(MINS)|STO/OOS|US/UR/UU/ES/ER/EU\n"
            "1|2026-01-05 11:00|260|15|20|5|17|2/2|1/2/3/4/5/6\n"
            "2|2026-01-05 10:05|1000|10|30|2|15|1/3|1/10/20/30/40/50\n");
  EXPECT_EQ(report.all("Undo Segment Stats", 1),
            "NO|END TIME|NUM UNDO BLOCKS|NUMBER OF TRANSACTIONS|MAX QRY LEN(S)|MAX TX CONCY|TUN "
            "RET(MINS)|STO/OOS|US/UR/UU/ES/ER/EU\n");
}

TEST(UndoSegmentStats, ofFortyIntervalsTheNewestThirtyFourShow) {
  for (const char* major : {"9", "10"}) {
    InstanceRepository repository(major);
    for (int minute = 0; minute < 40; ++minute) {
      const std::string mm = (minute < 10 ? "0" : "") + std::to_string(minute);
      const std::string begin = "2026-01-05 10:" + mm + ":00";
      const std::string end = "2026-01-05 10:" + mm + ":59";
      std::vector<std::pair<std::string_view, std::string_view>> interval{
          {"snap_id", "2"},      {"begin_time", begin}, {"end_time", end},     {"undotsn", "1"},
          {"undoblks", mm},      {"txncount", "1"},     {"maxquerylen", "1"},  {"maxconcurrency", "1"},
          {"unxpstealcnt", "0"}, {"ssolderrcnt", "0"},  {"nospaceerrcnt", "0"}};
      if (major == std::string("10")) interval.emplace_back("tuned_undoretention", "60");
      repository.row("stats$undostat", interval);
    }
    OpenReport report(repository);
    report.all("Undo Segment Stats", 0);
    ASSERT_EQ(report.grid().Rows(), 35) << major;
    EXPECT_EQ(report.grid().TextMatrix(1, 1), "2026-01-05 10:39");
    EXPECT_EQ(report.grid().TextMatrix(34, 1), "2026-01-05 10:06");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(UndoSegmentStats, aSeriesIsRefusedAndTheGridStays) {
  InstanceRepository repository("11");
  undo(repository);
  OpenReport report(repository);
  const std::string before = report.all("Undo Segment Stats", 0);
  EXPECT_EQ(report.col(1), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Exclamation] The time series display is not supported."));
}

}  // namespace
}  // namespace kestrelix::testing_support
