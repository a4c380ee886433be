#include "sections/waits/ModuleDispForegroundWaitEvents.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using F = clsForegroundWaitEvents;

const ListView kView{{{"EVENT", &F::EVENT_NAME},
                      {"WAITS", &F::WAITS},
                      {"%TIMEOUT", &F::PCTTO},
                      {"TOTAL WAIT TIME(S)", &F::TIME_SEC},
                      {"AVG WAIT(MS)", &F::AVWT_FMT},
                      {"WAITS/TXN", &F::TXWAITS},
                      {"%TOTAL CALL TIME", &F::PCTTCT}}};

}  // namespace

void gDispForegroundWaitEvents_All(Workspace& workspace, const std::string& version) {
  clsForegroundWaitEvents object;
  renderListAll(workspace, object, "getFOREGROUND_WAIT_EVENTS_ALL", kView, version);
}

void gDispForegroundWaitEvents_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsForegroundWaitEvents object;
  renderListCol(workspace, object, "getFOREGROUND_WAIT_EVENTS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
