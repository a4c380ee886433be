#include "sections/contention/ModuleDispLatchMissSources.h"

#include "sections/contention/clsLatchMissSources.h"

namespace kestrelix {
namespace {

using F = clsLatchMissSources::Field;

const ListView<clsLatchMissSources> kView{
    .all = "getLATCH_MISS_SOURCES_ALL",
    .col = "getLATCH_MISS_SOURCES_COL",
    .columns = {{"LATCH NAME", F::LATCH_NAME, Kind::Key},
                {"WHERE", F::WHERE_FROM, Kind::Key},
                {"NOWAIT MISSES", F::NOWAIT_MISSES, Kind::Count},
                {"SLEEPS", F::SLEEPS, Kind::Count},
                {"WAITER SLEEPS", F::WAITER_SLEEPS, Kind::Count}},
};

}  // namespace

std::vector<ReleaseViews> latchMissSourcesViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
