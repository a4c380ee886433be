#include "sections/waits/ModuleDispTopNWaitEvents.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using T = clsTopNWaitEvents;

const ListView kView{{{"EVENT", &T::EVENT_NAME},
                      {"WAITS", &T::WAITS_VALUE},
                      {"TIME (S)", &T::TIME_SECOND},
                      {"AVG WAIT (MS)", &T::AVWAIT_VALUE},
                      {"%TOTAL CALL TIME", &T::PCTWTT_VALUE}}};
const std::string kListed = "5";
const std::string kNoLimit = "0";  // the statement of one event doesn't ask for it

}  // namespace

void gDispTopNWaitEvents_All(Workspace& workspace, const std::string& version) {
  clsTopNWaitEvents object;
  renderListAll(workspace, object, "getTOP_N_WAIT_EVENTS", kView, version, {kListed, ""});
}

void gDispTopNWaitEvents_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsTopNWaitEvents object;
  renderListCol(workspace, object, "getTOP_T_WAIT_EVENTS", kView, version, {kNoLimit, request.keys.at(0)});
}

}  // namespace kestrelix
