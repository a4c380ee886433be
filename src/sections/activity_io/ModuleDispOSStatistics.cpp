#include "sections/activity_io/ModuleDispOSStatistics.h"

#include "sections/activity_io/clsOSStatistics.h"

namespace kestrelix {
namespace {

using F = clsOSStatistics::Field;

const ListView<clsOSStatistics> kView{
    .all = "getOS_STATISTICS_ALL",
    .col = "getOS_STATISTICS_COL",
    .columns = {{"STATISTIC", F::STATISTIC, Kind::Key}, {"TOTAL", F::TOTAL, Kind::Count}}};

}  // namespace

std::vector<ReleaseViews> osStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
