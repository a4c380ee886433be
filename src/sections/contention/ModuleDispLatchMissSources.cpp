#include "sections/contention/ModuleDispLatchMissSources.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using L = clsLatchMissSources;

const ListView kView{{{"LATCH NAME", &L::LATCH_NAME},
                      {"WHERE", &L::WHERE_FROM},
                      {"NOWAIT MISSES", &L::NOWAIT_MISSES},
                      {"SLEEPS", &L::SLEEPS},
                      {"WAITER SLEEPS", &L::WAITER_SLEEPS}}};

}  // namespace

void gDispLatchMissSources_All(Workspace& workspace, const std::string& version) {
  clsLatchMissSources object;
  renderListAll(workspace, object, "getLATCH_MISS_SOURCES_ALL", kView, version);
}

void gDispLatchMissSources_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsLatchMissSources object;
  renderListCol(workspace, object, "getLATCH_MISS_SOURCES_COL", kView, version, request.keys);
}

}  // namespace kestrelix
