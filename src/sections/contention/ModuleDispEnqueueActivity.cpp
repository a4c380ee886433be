#include "sections/contention/ModuleDispEnqueueActivity.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using E = clsEnqueueactivity;

const ViewColumn kWaitTime{"WAIT TIME(S)", &E::WT_TIME_SEC};
const ViewColumn kAverage{"AVG WAIT TIME(MS)", &E::AV_WT_TIME_MS};

std::vector<ViewColumn> columns(const std::string& type, const ViewColumn& last, const ViewColumn& veryLast) {
  return {{type, &E::ENQUEUE_TYPE},
          {"REQUESTS", &E::REQUESTS},
          {"SUCCESS GETS", &E::SUCC_GETS},
          {"FAILED GETS", &E::FAILED_GETS},
          {"WAITS", &E::WAITS},
          last,
          veryLast};
}

const ListView kView{columns("ENQUEUE TYPE (REQUEST REASON)", kWaitTime, kAverage)};
/// For version 9 the All view has the average ahead of the total, the Col view behind it.
const ListView kView9{.columns = columns("EQ", kAverage, kWaitTime),
                      .colColumns = columns("EQ", kWaitTime, kAverage)};

const ListView& view(const std::string& version) { return version == "9" ? kView9 : kView; }

}  // namespace

void gDispEnqueueActivity_All(Workspace& workspace, const std::string& version) {
  clsEnqueueactivity object;
  renderListAll(workspace, object, "getENQUEUE_ACTIVITY_ALL", view(version), version);
}

void gDispEnqueueActivity_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsEnqueueactivity object;
  renderListCol(workspace, object, "getENQUEUE_ACTIVITY_COL", view(version), version, request.keys);
}

}  // namespace kestrelix
