#include "sections/waits/ModuleDispWaitEvents.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using W = clsWaitEvents;

const ListView kView{{{"EVENT", &W::EVENT_NAME},
                      {"WAITS", &W::WAITS_VALUE},
                      {"%TIME-OUTS", &W::TIME_OUTS_VALUE},
                      {"TOTAL WAIT TIME(S)", &W::TOTAL_WAIT_TIME_VALUSE},
                      {"AVG WAIT(MS)", &W::AVG_WAIT_VALUE},
                      {"WAITS/TXN", &W::WAITS_TXN_VALUE}}};

}  // namespace

void gDispWaitEvents_All(Workspace& workspace, const std::string& version) {
  clsWaitEvents object;
  renderListAll(workspace, object, "getWAIT_EVENTS", kView, version);
}

void gDispWaitEvents_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsWaitEvents object;
  renderListCol(workspace, object, "getT_WAIT_EVENTS", kView, version, request.keys);
}

}  // namespace kestrelix
