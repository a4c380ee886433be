#include "sections/memory/ModuleDispBufferPoolAdvisory.h"

#include "sections/memory/clsBufferPoolAdvisory.h"

namespace kestrelix {
namespace {

using F = clsBufferPoolAdvisory::Field;

const ListView<clsBufferPoolAdvisory> kView{
    .all = "getBUFFER_POOL_ADVISORY_ALL",
    .col = "getBUFFER_POOL_ADVISORY_COL",
    .columns = {{"POOL", F::POOL, Kind::Key},
                {"SIZE FOR EST(MB)", F::SIZE_FOR_EST_MB, Kind::Key, unit::number},
                {"SIZE FACTR", F::SIZE_FACTR, Kind::Key, unit::number},
                {"BUFFER(THOUSANDS)", F::BUFFER_THOUSANDS, Kind::Level, unit::thousands},
                {"EST PHYS READ FACTR", F::EST_PHYS_READ_FACTR, Kind::Level},
                {"ESTIMATED PHYS READS(THOUSANDS)", F::ESTIMATED_PHYS_READS_THOUSANDS, Kind::Level,
                 unit::thousands},
                {"EST PHYS READ TIME", F::EST_PHYS_READ_TIME, Kind::Level, unit::seconds},
                {"EST %DBTIME FOR READS", F::EST_PAR_DB_TIME_FOR_READS, Kind::Share, unit::percent}},
    .keys = 3,
};

const ListView<clsBufferPoolAdvisory> kViewOf9{
    .all = "getBUFFER_POOL_ADVISORY_ALL",
    .col = "getBUFFER_POOL_ADVISORY_COL",
    .columns = {{"POOL", F::POOL, Kind::Key},
                {"SIZE FOR ESTIMATE(M)", F::SIZE_FOR_EST_MB, Kind::Key, unit::number},
                {"SIZE FACTR", F::SIZE_FACTR, Kind::Key, unit::number},
                {"BUFFERS FOR ESTIMATE", F::BUFFER_THOUSANDS, Kind::Level},
                {"EST PHYSICAL READ FACTOR", F::EST_PHYS_READ_FACTR, Kind::Level},
                {"ESTIMATED PHYSICAL READS", F::ESTIMATED_PHYS_READS_THOUSANDS, Kind::Level}},
    .keys = 3,
};

}  // namespace

std::vector<ReleaseViews> bufferPoolAdvisoryViews() {
  return {viewsOf(V9, kViewOf9), viewsOf(V10_11, kView)};
}

}  // namespace kestrelix
