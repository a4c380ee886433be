#include "sections/activity_io/ModuleDispFileReadHistogramStats.h"

#include "sections/activity_io/clsFileReadHistogramStats.h"

namespace kestrelix {
namespace {

using F = clsFileReadHistogramStats::Field;

const ListView<clsFileReadHistogramStats> kView{.all = "getFILE_READ_HISTOGRAM_STATS_ALL",
                                                .col = "getFILE_READ_HISTOGRAM_STATS_COL",
                                                .columns = {{"TABLESPACE", F::TABLESPACE, Kind::Key},
                                                            {"FILENAME", F::FILENAME, Kind::Key},
                                                            {"0 - 2 MS", F::TO2, Kind::Count},
                                                            {"2 - 4 MS", F::TO4, Kind::Count},
                                                            {"4 - 8 MS", F::TO8, Kind::Count},
                                                            {"8 - 16 MS", F::TO16, Kind::Count},
                                                            {"16 - 32 MS", F::TO32, Kind::Count},
                                                            {"32+ MS", F::OVER32, Kind::Count}},
                                                .keys = 2};

}  // namespace

std::vector<ReleaseViews> fileReadHistogramStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
