#include "sections/memory/ModuleDispBufferPoolStatistics.h"

#include "sections/memory/clsBufferPoolStatistics.h"

namespace kestrelix {
namespace {

using F = clsBufferPoolStatistics::Field;

const ListView<clsBufferPoolStatistics> kView{
    .all = "getBUFFER_POOL_STATISTICS_ALL",
    .col = "getBUFFER_POOL_STATISTICS_COL",
    .columns = {{"POOL NAME", F::NAME, Kind::Key},
                {"BUFFERS", F::BUFFERS, Kind::Level},
                {"POOL HIT%", F::POOL_HIT, Kind::Share, unit::percent},
                {"BUFFER GETS", F::BUFFER_GETS, Kind::Count, unit::blocks},
                {"PHYSICAL READS", F::PHYSICAL_READS, Kind::Count, unit::blocks},
                {"PHYSICAL WRITES", F::PHYSICAL_WRITE, Kind::Count, unit::blocks},
                {"FREE BUFFER WAITS", F::FREE_BUFFER_WAITS, Kind::Count},
                {"WRITE COMPLETE WAITT", F::WRITE_COMPLETE_WAIT, Kind::Count},
                {"BUFFER BUSY WAITS", F::BUFFER_BUSY_WAITS, Kind::Count}},
};

}  // namespace

std::vector<ReleaseViews> bufferPoolStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
