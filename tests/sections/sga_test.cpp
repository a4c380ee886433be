#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SgaMemorySummary, regionsShowByNameAndAnUnchangedOneHasNoDifference) {
  for (const char* major : {"9", "10", "11"}) {
    InstanceRepository repository(major);
    // Variable Size grows from 100 to a trace more than 101.505 MB; Fixed Size is 1.005 MB, which is 1.01 at
    // two digits.
    repository.rows("stats$sga", {"snap_id", "name", "value"},
                    {{"1", "Variable Size", "104857600"},
                     {"2", "Variable Size", "106435707"},
                     {"1", "Fixed Size", "1053819"},
                     {"2", "Fixed Size", "1053819"},
                     {"1", "Database Buffers", "1048576"},
                     {"2", "Database Buffers", "524288"},
                     {"2", "Redo Buffers", "524288"},
                     {"3", "Variable Size", "1048576"},
                     {"4", "Variable Size", "1048576"}});
    OpenReport report(repository);
    const std::string headings = "NO|SGA REGIONS|START SIZE(MB)|END SIZE(MB)|DIFF SIZE(MB)\n";
    EXPECT_EQ(report.all("SGA Memory Summary", 0), headings +
                                                       "1|Database Buffers|1|0.5|-.5\n"
                                                       "2|Fixed Size|1.01|1.01| \n"
                                                       "3|Variable Size|100|101.51|1.51\n");
    EXPECT_EQ(report.col(3),
              "NO|SGA REGIONS|END TIME|START SIZE(MB)|END SIZE(MB)|DIFF SIZE(MB)|STATUS\n"
              "1|Variable Size|2026-01-05 11:00:00|100|101.51|1.51|OK\n"
              "2||2026-01-05 12:00:00||||DB RESTART\n"
              "3|Variable Size|2026-01-05 13:30:00|1|1| |OK\n");
    EXPECT_EQ(report.all("SGA Memory Summary", 1), headings);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

const char* const kBreakdown = "NO|POOL|NAME|START(MB)|END(MB)|% DIFF\n";

class BreakdownRepository : public InstanceRepository {
 public:
  using InstanceRepository::InstanceRepository;

  BreakdownRepository& part(std::string_view snapshot, std::string_view pool, std::string_view name,
                            std::string_view bytes) {
    row("stats$sgastat", {{"snap_id", snapshot}, {"pool", pool}, {"name", name}, {"bytes", bytes}});
    return *this;
  }
};

TEST(SgaBreakdown, partsOfEitherEndShowByPoolAndThoseWithoutAPoolLast) {
  for (const char* major : {"9", "10", "11"}) {
    BreakdownRepository repository(major);
    repository.part("1", "shared pool", "free memory", "10485760")
        .part("2", "shared pool", "free memory", "15728640")
        .part("1", "shared pool", "dictionary", "1101005")
        .part("2", "shared pool", "sql area", "1625293")
        .part("1", "java pool", "free memory", "3145728")
        .part("2", "java pool", "free memory", "5242880")
        .part("1", "", "log_buffer", "104857600")
        .part("2", "", "log_buffer", "104857600");
    OpenReport report(repository);
    // 1.05 and 1.55 MB and a trace are rounded up. What is new is measured against one byte: 100 * 1625293.
    EXPECT_EQ(report.all("SGA breakdown difference", 0), std::string(kBreakdown) +
                                                             "1|java pool|free memory|3|5|66.67\n"
                                                             "2|shared pool|dictionary|1.1| |-100\n"
                                                             "3|shared pool|free memory|10|15|50\n"
                                                             "4|shared pool|sql area| |1.6|162529300\n"
                                                             "5| |log_buffer|100|100|0\n");
    EXPECT_EQ(report.all("SGA breakdown difference", 1), kBreakdown);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(SgaBreakdown, aSeriesIsFoundByPoolAndNameAlsoWithoutAPool) {
  BreakdownRepository repository("10");
  repository.part("1", "shared pool", "free memory", "10485760")
      .part("2", "shared pool", "free memory", "15728640")
      .part("1", "", "free memory", "1048576")
      .part("2", "", "free memory", "1048576")
      .part("3", "", "free memory", "1048576")
      .part("4", "", "free memory", "2097152")
      .part("4", "shared pool", "another", "1048576");
  OpenReport report(repository);
  const std::string headings = "NO|POOL|NAME|END TIME|START(MB)|END(MB)|% DIFF|STATUS\n";
  report.all("SGA breakdown difference", 0);
  EXPECT_EQ(report.col(2), headings +
                               "1| |free memory|2026-01-05 11:00:00|1|1|0|OK\n"
                               "2|||2026-01-05 12:00:00||||DB RESTART\n"
                               "3| |free memory|2026-01-05 13:30:00|1|2|100|OK\n");
  report.all("SGA breakdown difference", 0);
  EXPECT_EQ(report.col(1), headings +
                               "1|shared pool|free memory|2026-01-05 11:00:00|10|15|50|OK\n"
                               "2|||2026-01-05 12:00:00||||DB RESTART\n"
                               "3|||2026-01-05 13:30:00||||OK\n");
}

TEST(SgaBreakdown, anEmptyPoolCellStandsForTheBlankOne) {
  BreakdownRepository repository("10");
  repository.part("1", "", "fixed_sga", "1048576").part("2", "", "fixed_sga", "1048576");
  OpenReport report(repository);
  report.all("SGA breakdown difference", 0);
  report.grid().TextMatrix(1, 1, "");
  EXPECT_NE(report.col(1).find("1| |fixed_sga|2026-01-05 11:00:00|1|1|0|OK\n"), std::string::npos);
}

TEST(SgaBreakdown, theThirtyFiveSmallestAreKeptBesideFreeMemoryAndThePoolLess) {
  BreakdownRepository repository("11");
  // p01 to p36 of 10 to 360 bytes at the end; at the start the last is the smallest. The pool-less part of 15
  // bytes, which only the start has, takes one of the thirty-five places, so that p34 is the last that finds
  // one.
  for (int i = 1; i <= 36; ++i) {
    const std::string number = (i < 10 ? "0" : "") + std::to_string(i);
    const std::string bytes = std::to_string(i * 10);
    repository.part("1", "large pool", "p" + number, std::to_string(1000 - i))
        .part("2", "large pool", "p" + number, bytes);
  }
  repository.part("1", "large pool", "free memory", "9999").part("2", "large pool", "free memory", "9999");
  repository.part("1", "", "big", "8888").part("2", "", "big", "8888");
  repository.part("1", "", "small", "15");
  OpenReport report(repository);
  report.all("SGA breakdown difference", 0);
  const Grid& grid = report.grid();
  ASSERT_EQ(grid.Rows(), 1 + 34 + 3);
  EXPECT_EQ(grid.TextMatrix(1, 2), "free memory");
  EXPECT_EQ(grid.TextMatrix(2, 2), "p01");
  EXPECT_EQ(grid.TextMatrix(35, 2), "p34");
  EXPECT_EQ(grid.TextMatrix(36, 2), "big");
  EXPECT_EQ(grid.TextMatrix(37, 2), "small");
}

TEST(SgaBreakdown, aPartOfNoBytesAtTheStartIsADivisionByZero) {
  BreakdownRepository repository("10");
  repository.part("1", "shared pool", "x", "0").part("2", "shared pool", "x", "5");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("SGA breakdown difference", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsSGAbreakdowndifference){getSGA_BREAKDOWN_DIFFERENCE_ALL} Error"));
}

const char* const kSqlMemory = "NO|NAME|BEGIN|END|% DIFF\n";

class SqlMemoryRepository : public InstanceRepository {
 public:
  using InstanceRepository::InstanceRepository;

  SqlMemoryRepository& at(std::string_view snapshot, std::string_view cursors, std::string_view parents,
                          std::string_view bytes) {
    row("stats$sql_statistics", {{"snap_id", snapshot},
                                 {"total_cursors", cursors},
                                 {"total_sql", parents},
                                 {"total_sql_mem", bytes},
                                 {"single_use_sql", "0"},
                                 {"single_use_sql_mem", "0"}});
    return *this;
  }
};

/// 200 cursors of 10 KB, 100 parents; then 250 of 20 KB, 200 parents. After the restart 5 cursors of .6666
/// KB, 3 parents; then 15 of 1 KB, 8 parents.
SqlMemoryRepository& withCursors(SqlMemoryRepository& repository) {
  return repository.at("1", "200", "100", "2048000")
      .at("2", "250", "200", "5120000")
      .at("3", "5", "3", "3413")
      .at("4", "15", "8", "15360");
}

TEST(SqlMemory, theDifferenceIsAShareOfTheEnd) {
  for (const char* major : {"10", "11"}) {
    SqlMemoryRepository repository(major);
    withCursors(repository);
    OpenReport report(repository);
    // 10 of 20; (1.25 - 2) of 1.25; 50 of 250; 100 of 200. Then 3413 / 1024 / 5 = .66660 of 1, 1.67 of 1.875,
    // 10 of 15 and 5 of 8.
    EXPECT_EQ(report.all("SQL Memory Statistics", 0), std::string(kSqlMemory) +
                                                          "1|Avg Cursor Size (KB):|10|20|50\n"
                                                          "2|Cursor to Parent ratio:|2|1.25|-60\n"
                                                          "3|Total Cursors:|200|250|20\n"
                                                          "4|Total Parents:|100|200|50\n");
    EXPECT_EQ(report.all("SQL Memory Statistics", 2), std::string(kSqlMemory) +
                                                          "1|Avg Cursor Size (KB):|0.67|1|33.34\n"
                                                          "2|Cursor to Parent ratio:|1.67|1.88|11.11\n"
                                                          "3|Total Cursors:|5|15|66.67\n"
                                                          "4|Total Parents:|3|8|62.5\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(SqlMemory, aRestartLeavesTheHeadingsAlone) {
  SqlMemoryRepository repository("10");
  withCursors(repository);
  OpenReport report(repository);
  EXPECT_EQ(report.all("SQL Memory Statistics", 1), kSqlMemory);
}

TEST(SqlMemory, eachRowHasItsSeries) {
  SqlMemoryRepository repository("11");
  withCursors(repository);
  OpenReport report(repository);
  const auto series = [](const std::string& name, const std::string& first, const std::string& last) {
    return "NO|NAME|END TIME|BEGIN|END|% DIFF|STATUS\n1|" + name + "|2026-01-05 11:00:00|" + first +
           "|OK\n2|" + name + "|2026-01-05 12:00:00||||DB RESTART\n3|" + name + "|2026-01-05 13:30:00|" +
           last + "|OK\n";
  };
  report.all("SQL Memory Statistics", 0);
  EXPECT_EQ(report.col(1), series("Avg Cursor Size (KB):", "10|20|50", "0.67|1|33.34"));
  report.all("SQL Memory Statistics", 0);
  EXPECT_EQ(report.col(2), series("Cursor to Parent ratio:", "2|1.25|-60", "1.67|1.88|11.11"));
  report.all("SQL Memory Statistics", 0);
  EXPECT_EQ(report.col(3), series("Total Cursors:", "200|250|20", "5|15|66.67"));
  report.all("SQL Memory Statistics", 0);
  EXPECT_EQ(report.col(4), series("Total Parents:", "100|200|50", "3|8|62.5"));
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(SqlMemory, aMissingFigureCountsAsZero) {
  SqlMemoryRepository repository("11");
  repository.at("1", "200", "100", "").at("2", "250", "200", "5120000");
  repository.at("3", "", "", "").at("4", "4", "2", "4096");
  OpenReport report(repository);
  EXPECT_EQ(report.all("SQL Memory Statistics", 0), std::string(kSqlMemory) +
                                                        "1|Avg Cursor Size (KB):|0|20|100\n"
                                                        "2|Cursor to Parent ratio:|2|1.25|-60\n"
                                                        "3|Total Cursors:|200|250|20\n"
                                                        "4|Total Parents:|100|200|50\n");
  report.col(4);
  EXPECT_THAT(report.boxes(), IsEmpty());
  EXPECT_EQ(report.grid().TextMatrix(3, 3), "0");
  EXPECT_EQ(report.grid().TextMatrix(3, 5), "100");
}

TEST(SqlMemory, noCursorsAreADivisionByZero) {
  SqlMemoryRepository repository("10");
  repository.at("1", "0", "1", "1").at("2", "1", "1", "1");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("SQL Memory Statistics", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsSQLMemoryStatistics){getAVG_CURSOR_SIZE_KB} Error"));
}

TEST(SqlMemory, aSnapshotWithoutFiguresIsAFailure) {
  SqlMemoryRepository repository("10");
  repository.at("1", "1", "1", "1");
  OpenReport report(repository);
  report.all("SQL Memory Statistics", 0);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsSQLMemoryStatistics){getAVG_CURSOR_SIZE_KB} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
