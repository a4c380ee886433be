#include "sections/objects/ModuleDispResourceLimitStats.h"

#include "sections/objects/clsResourceLimitStats.h"

namespace kestrelix {
namespace {

using F = clsResourceLimitStats::Field;

const ListView<clsResourceLimitStats> kView{
    .all = "getRESOURCE_LIMIT_STATS_ALL",
    .col = "getRESOURCE_LIMIT_STATS_COL",
    .columns = {{"RESOURCE NAME", F::RESOURCE_NAME, Kind::Key},
                {"CURRENT UTILIZATION", F::CURRENT_UTILIZATION, Kind::Level},
                {"MAXIMUM UTILIZATION", F::MAXIMUM_UTILIZATION, Kind::Level},
                {"INITIAL ALLOCATION", F::INITIAL_ALLOCATION, Kind::Level},
                {"LIMIT", F::LIMIT, Kind::Level}},
};

}  // namespace

std::vector<ReleaseViews> resourceLimitStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
