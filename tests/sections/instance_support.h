// A repository of one instance with four snapshots, and its report.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/report_fixture.h"

namespace kestrelix::testing_support {

/// Snapshots 1 to 4 at 10:00, 11:00, 12:00 and 13:30 of Monday 2026-01-05; the instance was started anew
/// between 2 and 3. So pair 0 is of 3600 seconds, pair 1 lies across the restart, pair 2 is of 5400 seconds.
/// Nothing may show of the rows beside: of another instance, another database and a purged snapshot.
class InstanceRepository : public FixtureRepository {
 public:
  explicit InstanceRepository(std::string_view major) : FixtureRepository(major) {
    withNeighbours();
    const char* version = major == "9" ? "9.2.0.8.0" : major == "10" ? "10.2.0.5.0" : "11.2.0.4.0";
    common({{"dbid", "7"}, {"instance_number", "1"}});
    row("stats$database_instance", {{"db_name", "ORCL"},
                                    {"instance_name", "orcl"},
                                    {"host_name", "node1"},
                                    {"version", version},
                                    {"parallel", "NO"},
                                    {"startup_time", "2026-01-01 00:00:00"},
                                    {"snap_id", "1"}});
    snapshot("1", "2026-01-05 10:00:00");
    snapshot("2", "2026-01-05 11:00:00");
    snapshot("3", "2026-01-05 12:00:00", "7", "2026-01-05 11:30:00");
    snapshot("4", "2026-01-05 13:30:00", "7", "2026-01-05 11:30:00");
  }

  /// A statistic's values at snapshots 1 and 2.
  InstanceRepository& sysstat(std::string_view name, std::string_view start, std::string_view end) {
    rows("stats$sysstat", {"snap_id", "name", "value"}, {{"1", name, start}, {"2", name, end}});
    return *this;
  }

  /// A parameter's value at each of the four snapshots.
  InstanceRepository& parameter(std::string_view name, std::string_view value) {
    for (const char* id : {"1", "2", "3", "4"})
      row("stats$parameter", {{"snap_id", id}, {"name", name}, {"value", value}});
    return *this;
  }
};

/// The report on the repository's first instance.
class OpenReport : public ReportFixture {
 public:
  explicit OpenReport(FixtureRepository& repository) : ReportFixture(repository.write().string()) { open(0); }

  /// The rows below the headings without their numbers, for a view that has no order of its own.
  std::vector<std::string> rowsInAnyOrder() {
    std::vector<std::string> rows;
    for (int r = 1; r < grid().Rows(); ++r) {
      std::string line;
      for (int c = 1; c < grid().Cols(); ++c) line += (c == 1 ? "" : "|") + grid().TextMatrix(r, c);
      rows.push_back(line);
    }
    return rows;
  }
};

}  // namespace kestrelix::testing_support
