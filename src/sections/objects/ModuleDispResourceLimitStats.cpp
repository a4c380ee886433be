#include "sections/objects/ModuleDispResourceLimitStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using R = clsResourceLimitStats;

const ListView kView{{{"RESOURCE NAME", &R::RESOURCE_NAME},
                      {"CURRENT UTILIZATION", &R::CURRENT_UTILIZATION},
                      {"MAXIMUM UTILIZATION", &R::MAXIMUM_UTILIZATION},
                      {"INITIAL ALLOCATION", &R::INITIAL_ALLOCATION},
                      {"LIMIT", &R::LIMIT}}};

}  // namespace

void gDispResourceLimitStats_All(Workspace& workspace, const std::string& version) {
  clsResourceLimitStats object;
  renderListAll(workspace, object, "getRESOURCE_LIMIT_STATS_ALL", kView, version);
}

void gDispResourceLimitStats_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsResourceLimitStats object;
  renderListCol(workspace, object, "getRESOURCE_LIMIT_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
