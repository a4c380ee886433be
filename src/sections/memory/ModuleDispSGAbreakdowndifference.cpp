#include "sections/memory/ModuleDispSGAbreakdowndifference.h"

#include "sections/memory/clsSGAbreakdowndifference.h"

namespace kestrelix {
namespace {

using F = clsSGAbreakdowndifference::Field;

const ListView<clsSGAbreakdowndifference> kView{
    .all = "getSGA_BREAKDOWN_DIFFERENCE_ALL",
    .col = "getSGA_BREAKDOWN_DIFFERENCE_COL",
    .columns = {{"POOL", F::POOL, Kind::Key},
                {"NAME", F::NAME, Kind::Key},
                {"START(MB)", F::BEGIN_MB, Kind::Level, unit::megabytes},
                {"END(MB)", F::END_MB, Kind::Level, unit::megabytes},
                {"% DIFF", F::PER_DIFF, Kind::Share, unit::percent}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> sgaBreakdowndifferenceViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
