#include "sections/memory/ModuleDispSGAMemorySummary.h"

#include "sections/memory/clsSGAMemorySummary.h"

namespace kestrelix {
namespace {

using F = clsSGAMemorySummary::Field;

const ListView<clsSGAMemorySummary> kView{
    .all = "getSGA_MEMORY_SUMMARY_ALL",
    .col = "getSGA_MEMORY_SUMMARY_COL",
    .columns = {{"SGA REGIONS", F::SGA_REGIONS, Kind::Key},
                {"START SIZE(MB)", F::START_SIZE_MB, Kind::Level, unit::megabytes},
                {"END SIZE(MB)", F::END_SIZE_MB, Kind::Level, unit::megabytes},
                {"DIFF SIZE(MB)", F::DIFF_SIZE_MB, Kind::Count, unit::megabytes}},
};

}  // namespace

std::vector<ReleaseViews> sgaMemorySummaryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
