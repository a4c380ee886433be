#include "sections/contention/ModuleDispLatchActivity.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using L = clsLatchActivity;

const ListView kView{{{"LATCH", &L::LATCH},
                      {"GET REQUESTS", &L::GET_REQUESTS},
                      {"PCT GET MISS", &L::PCT_GET_MISS},
                      {"AVG SLPS MISS", &L::AVG_SLPS_MISS},
                      {"WAIT TIME(S)", &L::WAIT_TIME_SEC},
                      {"NOWAIT REQUESTS", &L::NOWAIT_REQUESTS},
                      {"PCT NOWAIT MISS", &L::PCT_NOWAIT_MISS}}};

}  // namespace

void gDispLatchActivity_All(Workspace& workspace, const std::string& version) {
  clsLatchActivity object;
  renderListAll(workspace, object, "getLATCH_ACTIVITY_ALL", kView, version);
}

void gDispLatchActivity_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsLatchActivity object;
  renderListCol(workspace, object, "getLATCH_ACTIVITY_COL", kView, version, request.keys);
}

}  // namespace kestrelix
