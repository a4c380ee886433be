#include "sections/activity_io/ModuleDispOSStatisticsdetail.h"

#include "sections/activity_io/clsOSStatisticsdetail.h"

namespace kestrelix {
namespace {

using F = clsOSStatisticsdetail::Field;

const ListView<clsOSStatisticsdetail> kView{.all = "getOS_STATISTICS_DETAIL_ALL",
                                            .col = "getOS_STATISTICS_DETAIL_COL",
                                            .columns = {{"SNAP ID", F::SNAP_ID, Kind::Key, unit::number},
                                                        {"SNAPSHOT DAY TIME", F::SNAP_TIME, Kind::Time},
                                                        {"LOAD", F::LOAD, Kind::Level},
                                                        {"%BUSY", F::PCT_BUSY, Kind::Share, unit::percent},
                                                        {"%USER", F::PCT_USER, Kind::Share, unit::percent},
                                                        {"%SYSTEM", F::PCT_SYS, Kind::Share, unit::percent},
                                                        {"%WIO", F::PCT_IOWT, Kind::Share, unit::percent},
                                                        {"%WCPU", F::PCT_CPUWT, Kind::Share, unit::percent}}};

}  // namespace

std::vector<ReleaseViews> osStatisticsdetailViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
