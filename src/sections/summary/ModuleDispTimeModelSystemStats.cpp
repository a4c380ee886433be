#include "sections/summary/ModuleDispTimeModelSystemStats.h"

#include "sections/summary/clsTimeModelSystemStats.h"

namespace kestrelix {
namespace {

using F = clsTimeModelSystemStats::Field;

const ListView<clsTimeModelSystemStats> kView{
    .all = "getTIME_MODEL_SYSTEM_STATS_ALL",
    .col = "getTIME_MODEL_SYSTEM_STATS_COL",
    .columns = {{"STATISTIC", F::STATISTIC, Kind::Key},
                {"TIME (S)", F::TIME_VALUE, Kind::Count, unit::seconds},
                {"% OF DB TIME", F::PER_DBTIME_VALUE, Kind::Share, unit::percent}}};

}  // namespace

std::vector<ReleaseViews> timeModelSystemStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
