#include "sections/contention/ModuleDispRollbackSegmentStorage.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using R = clsRollbackSegmentStorage;

const ListView kView{{{"RBS NO", &R::USN},
                      {"SEGMENT SIZE", &R::RSSIZE},
                      {"AVG ACTIVE", &R::ACTIVE},
                      {"OPTIMAL SIZE", &R::OPTSIZE},
                      {"MAXIMUM SIZE", &R::HWMSIZE}}};

}  // namespace

void gDispRollbackSegmentStorage_All(Workspace& workspace, const std::string& version) {
  clsRollbackSegmentStorage object;
  renderListAll(workspace, object, "getROLLBACK_SEGMENT_STORAGE_ALL", kView, version, {"0"});
}

void gDispRollbackSegmentStorage_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsRollbackSegmentStorage object;
  renderListCol(workspace, object, "getROLLBACK_SEGMENT_STORAGE_COL", kView, version, request.keys);
}

}  // namespace kestrelix
