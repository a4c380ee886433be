// What the tests of the SQL rankings share, whatever the release.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/report_fixture.h"
#include "support/sql_repository.h"

namespace kestrelix::testing_support {

/// A repository of captured statements, and the rankings of its one instance. Statements are told before the
/// first view is asked for.
class SqlRankingTest : public testing::Test {
 protected:
  using Lines = std::vector<std::string>;
  using Cells = std::map<std::string, std::string>;

  explicit SqlRankingTest(const std::string& major) : repository(major) {}

  /// The rows of the ranking "SQL ordered by `name`" for the first pair, under these headings.
  Lines all(const std::string& name, const Lines& headings) {
    open();
    report->all("SQL ordered by " + name, 0);
    return cellsOf(report->grid(), headings);
  }
  void open() {
    if (report) return;
    report = std::make_unique<ReportFixture>(repository.write());
    report->open(0);
  }

  /// A statement captured by both ends. Its growth: 3 executions, 10.065 s elapsed, 2.535 s of CPU, 407 gets,
  /// 23 reads, 5 rows, 3.075 s of I/O waits, 1.515 s of cluster waits, 2 parse calls; at the end it has
  /// 5,300,000 bytes and 25 versions. Seconds and their thirds end in a 5 that rounds up.
  void plain(long memoryAtStart, long versionsAtStart) {
    repository.usualTotals();
    repository.add({.snap = 1,
                    .hash = 101,
                    .executions = 10,
                    .elapsed = 2000000,
                    .cpu = 1000000,
                    .gets = 100,
                    .reads = 10,
                    .rows = 5,
                    .ioWait = 300000,
                    .clusterWait = 500000,
                    .parseCalls = 4,
                    .memory = memoryAtStart,
                    .versions = versionsAtStart});
    repository.add({.snap = 3,
                    .hash = 101,
                    .executions = 13,
                    .elapsed = 12065000,
                    .cpu = 3535000,
                    .gets = 507,
                    .reads = 33,
                    .rows = 10,
                    .ioWait = 3375000,
                    .clusterWait = 2015000,
                    .parseCalls = 6,
                    .memory = 5300000,
                    .versions = 25});
  }

  /// Each ranking has one statement, with that "%TOTAL", and each of its columns shows the cell told under
  /// the column's heading, in the list as in the series.
  void expectRows(const std::map<std::string, std::string>& share, const Cells& expected) {
    const auto expectRow = [&](const std::string& name, const std::string& percent, const Cells& cells) {
      for (const auto& [heading, cell] : cells)
        EXPECT_EQ(cell, heading == "%TOTAL" ? percent : expected.at(heading)) << name << ": " << heading;
    };
    open();
    for (const auto& [name, percent] : share) {
      report->all("SQL ordered by " + name, 0);
      ASSERT_EQ(report->grid().Rows(), 2) << name << testing::PrintToString(report->errors());
      expectRow(name, percent, rowOf(report->grid(), 1));
      report->col(1);
      ASSERT_EQ(report->grid().Rows(), 2) << name;
      Cells series = rowOf(report->grid(), 1);
      EXPECT_EQ(series["END TIME"], "2026-01-05 11:00:00");
      EXPECT_EQ(series["STATUS"], "OK");
      series.erase("END TIME");
      series.erase("STATUS");
      expectRow(name, percent, series);
    }
    EXPECT_THAT(report->boxes(), testing::IsEmpty()) << testing::PrintToString(report->errors());
  }

  SqlRepository repository;
  std::unique_ptr<ReportFixture> report;
};

}  // namespace kestrelix::testing_support
