#include "sections/activity_io/ModuleDispOSStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using O = clsOSStatistics;

const ListView kView{{{"STATISTIC", &O::STATISTIC}, {"TOTAL", &O::TOTAL}}};

}  // namespace

void gDispOSStatistics_All(Workspace& workspace, const std::string& version) {
  clsOSStatistics object;
  renderListAll(workspace, object, "getOS_STATISTICS_ALL", kView, version);
}

void gDispOSStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsOSStatistics object;
  renderListCol(workspace, object, "getOS_STATISTICS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
