#include "sections/waits/ModuleDispBackgroundWaitEvents.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using W = clsBackgroundWaitEvents;

const ListView kView{{{"EVENT", &W::EVENT_NAME},
                      {"WAITS", &W::WAITS_VALUE},
                      {"%TIME-OUTS", &W::TIME_OUTS_VALUE},
                      {"TOTAL WAIT TIME(S)", &W::TOTAL_WAIT_TIME_VALUSE},
                      {"AVG WAIT(MS)", &W::AVG_WAIT_VALUE},
                      {"WAITS/TXN", &W::WAITS_TXN_VALUE}}};

}  // namespace

void gDispBackgroundWaitEvents_All(Workspace& workspace, const std::string& version) {
  clsBackgroundWaitEvents object;
  renderListAll(workspace, object, "getBACKGROUND_WAIT_EVENTS", kView, version);
}

void gDispBackgroundWaitEvents_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsBackgroundWaitEvents object;
  renderListCol(workspace, object, "getT_BACKGROUND_WAIT_EVENTS", kView, version, request.keys);
}

}  // namespace kestrelix
