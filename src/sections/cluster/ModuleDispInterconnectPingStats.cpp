#include "sections/cluster/ModuleDispInterconnectPingStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using P = clsInterconnectPingStats;

/// One heading has a second bracket in the Col view alone.
std::vector<ViewColumn> columns(const std::string& time8k) {
  return {{"TARGET INSTANCE", &P::TARGET_INSTANCE},
          {"[500B]PING COUNT", &P::CNT500B},
          {"[500B]TIME(S)", &P::WAIT500B},
          {"[500B]AVG TIME(MS)", &P::AV500B},
          {"[500B]STD DEV", &P::SD500B},
          {"[8KB]PING COUNT", &P::CNT8K},
          {time8k, &P::WAIT8K},
          {"[8KB]AVG TIME(MS)", &P::AV8K},
          {"[8KB]STD DEV", &P::SD8K}};
}

const ListView kView{.columns = columns("[8KB]TIME(S)"), .colColumns = columns("[8KB]TIME(S))")};

}  // namespace

void gDispInterconnectPingStats_All(Workspace& workspace, const std::string& version) {
  clsInterconnectPingStats object;
  renderListAll(workspace, object, "getINTERCONNECT_PING_STATS_ALL", kView, version);
}

void gDispInterconnectPingStats_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsInterconnectPingStats object;
  renderListCol(workspace, object, "getINTERCONNECT_PING_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
