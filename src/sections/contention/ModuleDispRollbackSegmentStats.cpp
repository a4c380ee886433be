#include "sections/contention/ModuleDispRollbackSegmentStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using R = clsRollbackSegmentStats;

const ListView kView{{{"RBS NO", &R::USN},
                      {"TRANS TABLE GETS", &R::GETS},
                      {"PCT WAITS", &R::WAITS},
                      {"UNDO BYTES WRITTEN", &R::WRITES},
                      {"WRAPS", &R::WRAPS},
                      {"SHRINKS", &R::SHRINKS},
                      {"EXTENDS", &R::EXTENDS}}};

}  // namespace

void gDispRollbackSegmentStats_All(Workspace& workspace, const std::string& version) {
  clsRollbackSegmentStats object;
  renderListAll(workspace, object, "getROLLBACK_SEGMENT_STATS_ALL", kView, version, {"0"});
}

void gDispRollbackSegmentStats_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsRollbackSegmentStats object;
  renderListCol(workspace, object, "getROLLBACK_SEGMENT_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
