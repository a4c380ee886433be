// A repository with wait events at the snapshots of HeadRepository.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sections/head_support.h"

namespace kestrelix::testing_support {

class WaitsRepository : public HeadRepository {
 public:
  /// Counters since the start of the instance: waits, those that timed out, microseconds. Without any, no
  /// row.
  struct Counters {
    std::string_view waits;
    std::string_view timeouts;
    std::string_view micros;
  };

  using HeadRepository::HeadRepository;

  /// An event's counters at snapshots 1, 2 and so on.
  WaitsRepository& event(std::string_view name, const std::vector<Counters>& counters) {
    return counted("stats$system_event", {""}, name, counters);
  }
  /// An event that only the sessions of users wait for, which are counted apart from version 11 on.
  WaitsRepository& foreground(std::string_view name, const std::vector<Counters>& counters) {
    return counted("stats$system_event", {"", "_fg"}, name, counters);
  }
  /// Those of the background processes, a table of their own.
  WaitsRepository& background(std::string_view name, const std::vector<Counters>& counters) {
    return counted("stats$bg_event_summary", {""}, name, counters);
  }

 private:
  WaitsRepository& counted(std::string_view table, const std::vector<std::string>& suffixes,
                           std::string_view name, const std::vector<Counters>& counters) {
    for (std::size_t i = 0; i < counters.size(); ++i) {
      if (counters[i].waits.empty()) continue;
      const std::string id = std::to_string(i + 1);
      std::vector<std::pair<std::string, std::string_view>> cells{{"snap_id", id}, {"event", name}};
      for (const std::string& suffix : suffixes) {
        cells.emplace_back("total_waits" + suffix, counters[i].waits);
        cells.emplace_back("total_timeouts" + suffix, counters[i].timeouts);
        cells.emplace_back("time_waited_micro" + suffix, counters[i].micros);
      }
      row(table, std::vector<std::pair<std::string_view, std::string_view>>(cells.begin(), cells.end()));
    }
    return *this;
  }
};

}  // namespace kestrelix::testing_support
