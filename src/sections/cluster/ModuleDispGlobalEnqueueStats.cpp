#include "sections/cluster/ModuleDispGlobalEnqueueStats.h"

#include "sections/cluster/clsGlobalEnqueueStats.h"

namespace kestrelix {
namespace {

using F = clsGlobalEnqueueStats::Field;

const ListView<clsGlobalEnqueueStats> kView{.all = "getGLOBAL_ENQUEUE_STATS_ALL",
                                            .col = "getGLOBAL_ENQUEUE_STATS_COL",
                                            .columns = {{"STATISTIC", F::STATISTIC, Kind::Key},
                                                        {"TOTAL", F::TOTAL, Kind::Count},
                                                        {"PER SECOND", F::PER_SECOND, Kind::Rate},
                                                        {"PER TRANS", F::PER_TRANS, Kind::Ratio}}};

}  // namespace

std::vector<ReleaseViews> globalEnqueueStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
