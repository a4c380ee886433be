#include "sections/memory/ModuleDispPGAAggrTargetHistogram.h"

#include "sections/memory/clsPGAAggrTargetHistogram.h"

namespace kestrelix {
namespace {

using F = clsPGAAggrTargetHistogram::Field;

const ListView<clsPGAAggrTargetHistogram> kView{
    .all = "getPGA_AGGR_TARGET_HISTOGRAM_ALL",
    .col = "getPGA_AGGR_TARGET_HISTOGRAM_COL",
    .columns = {{"LOW OPTIMAL", F::LOW_OPTIMAL, Kind::Key},
                {"HIGH OPTIMAL", F::HIGH_OPTIMAL, Kind::Key},
                {"TOTAL EXECS", F::TOTAL_EXECS, Kind::Count},
                {"OPTIMAL EXECS", F::OPTIMAL_EXECS, Kind::Count},
                {"1-PASS EXECS", F::ONE_PASS_EXECS, Kind::Count},
                {"M-PASS EXECS", F::MULTI_PASS_EXECS, Kind::Count}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> pgaAggrTargetHistogramViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
