// A repository with four hourly snapshots, for the head of the report and the waits.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/report_fixture.h"

namespace kestrelix::testing_support {

/// Snapshots 1 to 4 at 10:00 to 13:00; the instance has been started anew between 2 and 3. So pairs 0 and 2
/// are ordinary and pair 1 a restart. Values are told from snapshot 1 on; kNoRow leaves a row out, the empty
/// text is NULL.
class HeadRepository : public FixtureRepository {
 public:
  static constexpr std::string_view kNoRow = "-";
  using Values = std::vector<std::string_view>;

  explicit HeadRepository(std::string_view major,
                          Values times = {"10:00:00", "11:00:00", "12:00:00", "13:00:00"})
      : FixtureRepository(major) {
    withNeighbours().common({{"dbid", "7"}, {"instance_number", "1"}});
    const std::string version = std::string(major) + ".2.0.4.0";
    row("stats$database_instance", {{"db_name", "DEMO"},
                                    {"instance_name", "demo"},
                                    {"host_name", "host"},
                                    {"version", version},
                                    {"parallel", "NO"},
                                    {"startup_time", "2000-01-01 00:00:00"},
                                    {"snap_id", "1"}});
    for (std::size_t i = 0; i < times.size(); ++i)
      snapshot(id(i), "2026-01-05 " + std::string(times[i]), "7",
               i < 2 ? "2000-01-01 00:00:00" : "2026-01-05 11:30:00");
  }

  HeadRepository& sysstat(std::string_view name, const Values& values) {
    return series("stats$sysstat", {{"name", name}}, "value", values);
  }
  HeadRepository& parameter(std::string_view name, const Values& values) {
    return series("stats$parameter", {{"name", name}}, "value", values);
  }
  HeadRepository& pga(std::string_view name, const Values& values) {
    return series("stats$pgastat", {{"name", name}}, "value", values);
  }
  HeadRepository& host(std::string_view name, const Values& values) {
    const std::string number = std::to_string(++numbers_);
    row("stats$osstatname", {{"osstat_id", number}, {"stat_name", name}});
    return series("stats$osstat", {{"osstat_id", number}}, "value", values);
  }
  HeadRepository& timeModel(std::string_view name, const Values& values) {
    const std::string number = std::to_string(++numbers_);
    row("stats$time_model_statname", {{"stat_id", number}, {"stat_name", name}});
    return series("stats$sys_time_model", {{"stat_id", number}}, "value", values);
  }
  HeadRepository& idle(std::string_view event) {
    row("stats$idle_event", {{"event", event}});
    return *this;
  }
  /// 50 commits and 10 rollbacks in pair 0, 30 commits in pair 2.
  HeadRepository& transactions() {
    return sysstat("commit cleanouts", {"1", "2", "3", "5"})
        .sysstat("user commits", {"100", "150", "0", "30"})
        .sysstat("user rollbacks", {"10", "20", "5", "5"});
  }

  /// Rows of `table` with the keys, `column` having one value a snapshot.
  HeadRepository& series(std::string_view table,
                         std::vector<std::pair<std::string_view, std::string_view>> keys,
                         std::string_view column, const Values& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (values[i] == kNoRow) continue;
      auto cells = keys;
      const std::string number = id(i);
      cells.emplace_back("snap_id", number);
      cells.emplace_back(column, values[i]);
      row(table, cells);
    }
    return *this;
  }

 private:
  static std::string id(std::size_t index) { return std::to_string(index + 1); }
  int numbers_ = 0;
};

/// Columns of a grid printed as lines: "a|b|c" with columns 1 and 2 is "b|c".
inline std::string columnsOf(const std::string& lines, std::size_t first, std::size_t last) {
  std::string text;
  std::size_t column = 0;
  for (const char c : lines) {
    const bool wanted = column >= first && column <= last;
    if (c == '|') {
      if (column >= first && column < last) text += c;
      ++column;
    } else if (c == '\n') {
      text += c;
      column = 0;
    } else if (wanted) {
      text += c;
    }
  }
  return text;
}

}  // namespace kestrelix::testing_support
