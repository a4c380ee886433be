// A cluster repository of release 11 with three snapshots, the last behind a restart.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "support/report_fixture.h"

namespace kestrelix::testing_support {

/// Snapshots 1, 2 and 3 of one hour each; the instance has been started anew between 2 and 3. So pair 0 is
/// ordinary and pair 1 a restart.
class ClusterRepository : public FixtureRepository {
 public:
  explicit ClusterRepository(std::string_view major = "11") : FixtureRepository(major) {
    common({{"dbid", "7"}, {"instance_number", "1"}});
    row("stats$database_instance", {{"db_name", "RAC"},
                                    {"instance_name", "rac1"},
                                    {"host_name", "node1"},
                                    {"version", major == "10" ? "10.2.0.5.0" : "11.2.0.4.0"},
                                    {"parallel", "YES"},
                                    {"startup_time", "2026-01-01 00:00:00"},
                                    {"snap_id", "1"}});
    snapshot("1", "2026-01-05 10:00:00");
    snapshot("2", "2026-01-05 11:00:00");
    snapshot("3", "2026-01-05 12:00:00", "7", "2026-01-05 11:30:00");
  }

  /// A statistic's values at snapshots 1 and 2.
  ClusterRepository& sysstat(std::string_view name, std::string_view start, std::string_view end) {
    rows("stats$sysstat", {"snap_id", "name", "value"}, {{"1", name, start}, {"2", name, end}});
    return *this;
  }

  /// The same in stats$dlm_misc, where a statistic has a number as well.
  ClusterRepository& dlm(std::string_view number, std::string_view name, std::string_view start,
                         std::string_view end) {
    rows("stats$dlm_misc", {"snap_id", "statistic#", "name", "value"},
         {{"1", number, name, start}, {"2", number, name, end}});
    return *this;
  }

  /// 60 commits and 12 rollbacks in the pair: 72 transactions in 3600 seconds.
  ClusterRepository& transactions() {
    return sysstat("user commits", "100", "160").sysstat("user rollbacks", "8", "20");
  }
};

}  // namespace kestrelix::testing_support
