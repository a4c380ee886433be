#include "sections/contention/ModuleDispLatchActivity.h"

#include "sections/contention/clsLatchActivity.h"

namespace kestrelix {
namespace {

using F = clsLatchActivity::Field;

const ListView<clsLatchActivity> kView{
    .all = "getLATCH_ACTIVITY_ALL",
    .col = "getLATCH_ACTIVITY_COL",
    .columns = {{"LATCH", F::LATCH, Kind::Key},
                {"GET REQUESTS", F::GET_REQUESTS, Kind::Count},
                {"PCT GET MISS", F::PCT_GET_MISS, Kind::Share, unit::percent},
                {"AVG SLPS MISS", F::AVG_SLPS_MISS, Kind::Ratio},
                {"WAIT TIME(S)", F::WAIT_TIME_SEC, Kind::Count, unit::seconds},
                {"NOWAIT REQUESTS", F::NOWAIT_REQUESTS, Kind::Count},
                {"PCT NOWAIT MISS", F::PCT_NOWAIT_MISS, Kind::Share, unit::percent}},
};

}  // namespace

std::vector<ReleaseViews> latchActivityViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
