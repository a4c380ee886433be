#include "sections/contention/ModuleDispEnqueueActivity.h"

#include "sections/contention/clsEnqueueactivity.h"

namespace kestrelix {
namespace {

using F = clsEnqueueactivity::Field;
using C = Column<clsEnqueueactivity>;

const C kWaitTime{"WAIT TIME(S)", F::WT_TIME_SEC, Kind::Count, unit::seconds};
const C kAverage{"AVG WAIT TIME(MS)", F::AV_WT_TIME_MS, Kind::Average, unit::milliseconds};

std::vector<C> columns(const std::string& type, const C& last, const C& veryLast) {
  return {{type, F::ENQUEUE_TYPE, Kind::Key},
          {"REQUESTS", F::REQUESTS, Kind::Count},
          {"SUCCESS GETS", F::SUCC_GETS, Kind::Count},
          {"FAILED GETS", F::FAILED_GETS, Kind::Count},
          {"WAITS", F::WAITS, Kind::Count},
          last,
          veryLast};
}

const ListView<clsEnqueueactivity> kView{
    .all = "getENQUEUE_ACTIVITY_ALL",
    .col = "getENQUEUE_ACTIVITY_COL",
    .columns = columns("ENQUEUE TYPE (REQUEST REASON)", kWaitTime, kAverage),
};

/// For version 9 the All view has the average ahead of the total, the Col view behind it.
const ListView<clsEnqueueactivity> kViewOf9{
    .all = "getENQUEUE_ACTIVITY_ALL",
    .col = "getENQUEUE_ACTIVITY_COL",
    .columns = columns("EQ", kAverage, kWaitTime),
    .colColumns = columns("EQ", kWaitTime, kAverage),
};

}  // namespace

std::vector<ReleaseViews> enqueueActivityViews() { return {viewsOf(V9, kViewOf9), viewsOf(V10_11, kView)}; }

}  // namespace kestrelix
