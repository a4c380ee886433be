#include "sections/contention/ModuleDispLatchSleepBreakdown.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using L = clsLatchSleepBreakdown;

const ListView kView{{{"LATCH NAME", &L::LATCH_NAME},
                      {"GET REQUESTS", &L::GET_REQUESTS},
                      {"MISSES", &L::MISSES},
                      {"SLEEPS", &L::SLEEPS},
                      {"SPIN GETS", &L::SPIN_GETS}}};

}  // namespace

void gDispLatchSleepBreakdown_All(Workspace& workspace, const std::string& version) {
  clsLatchSleepBreakdown object;
  renderListAll(workspace, object, "getLATCH_SLEEP_BREAKDOWN_ALL", kView, version);
}

void gDispLatchSleepBreakdown_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsLatchSleepBreakdown object;
  renderListCol(workspace, object, "getLATCH_SLEEP_BREAKDOWN_COL", kView, version, request.keys);
}

}  // namespace kestrelix
