#include "sections/cluster/ModuleDispGlobalEnqueueStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using G = clsGlobalEnqueueStats;

const ListView kView{{{"STATISTIC", &G::STATISTIC},
                      {"TOTAL", &G::TOTAL},
                      {"PER SECOND", &G::PER_SECOND},
                      {"PER TRANS", &G::PER_TRANS}}};

}  // namespace

void gDispGlobalEnqueueStats_All(Workspace& workspace, const std::string& version) {
  clsGlobalEnqueueStats object;
  renderListAll(workspace, object, "getGLOBAL_ENQUEUE_STATS_ALL", kView, version);
}

void gDispGlobalEnqueueStats_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsGlobalEnqueueStats object;
  renderListCol(workspace, object, "getGLOBAL_ENQUEUE_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
