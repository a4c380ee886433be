#include "sections/contention/ModuleDispRollbackSegmentStats.h"

#include "sections/contention/clsRollbackSegmentStats.h"

namespace kestrelix {
namespace {

using F = clsRollbackSegmentStats::Field;

const ListView<clsRollbackSegmentStats> kView{
    .all = "getROLLBACK_SEGMENT_STATS_ALL",
    .col = "getROLLBACK_SEGMENT_STATS_COL",
    .columns = {{"RBS NO", F::USN, Kind::Key, unit::number},
                {"TRANS TABLE GETS", F::GETS, Kind::Count},
                {"PCT WAITS", F::WAITS, Kind::Share, unit::percent},
                {"UNDO BYTES WRITTEN", F::WRITES, Kind::Count, unit::bytes},
                {"WRAPS", F::WRAPS, Kind::Count},
                {"SHRINKS", F::SHRINKS, Kind::Count},
                {"EXTENDS", F::EXTENDS, Kind::Count}},
    .allArguments = {"0"},
};

}  // namespace

std::vector<ReleaseViews> rollbackSegmentStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
