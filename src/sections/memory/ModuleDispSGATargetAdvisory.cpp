#include "sections/memory/ModuleDispSGATargetAdvisory.h"

#include "sections/memory/clsSGATargetAdvisory.h"

namespace kestrelix {
namespace {

using F = clsSGATargetAdvisory::Field;

const ListView<clsSGATargetAdvisory> kView{
    .all = "getSGA_TARGET_ADVISORY_ALL",
    .col = "getSGA_TARGET_ADVISORY_COL",
    .columns = {{"SGA TARGET SIZE(MB)", F::SGA_TARGET_SIZE_MB, Kind::Key, unit::number},
                {"SGA SIZE FACTOR", F::SGA_SIZE_FACTOR, Kind::Key, unit::number},
                {"EST DB TIME(S)", F::EST_DB_TIME_SEC, Kind::Level, unit::seconds},
                {"EST DB TIME FACTOR", F::EST_DB_TIME_FACTOR, Kind::Level},
                {"EST PHYSICAL READS", F::EST_PHYSICAL_READS, Kind::Level}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> sgaTargetAdvisoryViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
