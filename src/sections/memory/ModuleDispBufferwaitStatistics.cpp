#include "sections/memory/ModuleDispBufferwaitStatistics.h"

#include "sections/memory/clsBufferwaitStatistics.h"

namespace kestrelix {
namespace {

using F = clsBufferwaitStatistics::Field;

const ListView<clsBufferwaitStatistics> kView{
    .all = "getBUFFER_WAIT_STATISTICS_ALL",
    .col = "getBUFFER_WAIT_STATISTICS_COL",
    .columns = {{"CLASS", F::CLASSNAME, Kind::Key},
                {"WAITS", F::ICNT, Kind::Count},
                {"TOTAL WAIT TIME(S)", F::ITIM, Kind::Count, unit::seconds},
                {"AVG TIME(MS)", F::IAVG, Kind::Average, unit::milliseconds}},
};

}  // namespace

std::vector<ReleaseViews> bufferwaitStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
