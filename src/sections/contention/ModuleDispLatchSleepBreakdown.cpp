#include "sections/contention/ModuleDispLatchSleepBreakdown.h"

#include "sections/contention/clsLatchSleepBreakdown.h"

namespace kestrelix {
namespace {

using F = clsLatchSleepBreakdown::Field;

const ListView<clsLatchSleepBreakdown> kView{
    .all = "getLATCH_SLEEP_BREAKDOWN_ALL",
    .col = "getLATCH_SLEEP_BREAKDOWN_COL",
    .columns = {{"LATCH NAME", F::LATCH_NAME, Kind::Key},
                {"GET REQUESTS", F::GET_REQUESTS, Kind::Count},
                {"MISSES", F::MISSES, Kind::Count},
                {"SLEEPS", F::SLEEPS, Kind::Count},
                {"SPIN GETS", F::SPIN_GETS, Kind::Count}},
};

}  // namespace

std::vector<ReleaseViews> latchSleepBreakdownViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
