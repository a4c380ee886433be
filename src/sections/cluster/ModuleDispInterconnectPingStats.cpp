#include "sections/cluster/ModuleDispInterconnectPingStats.h"

#include "sections/cluster/clsInterconnectPingStats.h"

namespace kestrelix {
namespace {

using F = clsInterconnectPingStats::Field;

/// One heading has a second bracket in the Col view alone.
std::vector<Column<clsInterconnectPingStats>> columns(const std::string& time8k) {
  return {{"TARGET INSTANCE", F::TARGET_INSTANCE, Kind::Key, unit::number},
          {"[500B]PING COUNT", F::CNT500B, Kind::Count},
          {"[500B]TIME(S)", F::WAIT500B, Kind::Count, unit::seconds},
          {"[500B]AVG TIME(MS)", F::AV500B, Kind::Average, unit::milliseconds},
          {"[500B]STD DEV", F::SD500B, Kind::Average, unit::milliseconds},
          {"[8KB]PING COUNT", F::CNT8K, Kind::Count},
          {time8k, F::WAIT8K, Kind::Count, unit::seconds},
          {"[8KB]AVG TIME(MS)", F::AV8K, Kind::Average, unit::milliseconds},
          {"[8KB]STD DEV", F::SD8K, Kind::Average, unit::milliseconds}};
}

const ListView<clsInterconnectPingStats> kView{.all = "getINTERCONNECT_PING_STATS_ALL",
                                               .col = "getINTERCONNECT_PING_STATS_COL",
                                               .columns = columns("[8KB]TIME(S)"),
                                               .colColumns = columns("[8KB]TIME(S))")};

}  // namespace

std::vector<ReleaseViews> interconnectPingStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
