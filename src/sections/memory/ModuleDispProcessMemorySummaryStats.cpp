#include "sections/memory/ModuleDispProcessMemorySummaryStats.h"

#include "sections/memory/clsProcessMemorySummaryStats.h"

namespace kestrelix {
namespace {

using F = clsProcessMemorySummaryStats::Field;

const ListView<clsProcessMemorySummaryStats> kView{
    .all = "getPROCESS_MEMORY_SUMMARY_STATS_ALL",
    .col = "getPROCESS_MEMORY_SUMMARY_STATS_COL",
    .columns = {{"SNAP", F::SNAP, Kind::Key},
                {"CATEGORY", F::CATEGORY, Kind::Key},
                {"ALLOC(MB)", F::ALLOC_MB, Kind::Level, unit::megabytes},
                {"USED(MB)", F::USED_MB, Kind::Level, unit::megabytes},
                {"FREEABL(MB)", F::FREE_MB, Kind::Level, unit::megabytes},
                {"AVG ALLOC(MB)", F::AVG_ALLOC_MB, Kind::Level, unit::megabytes},
                {"STD DEV ALLOC(MB)", F::STDDEV_ALLOC_MB, Kind::Level, unit::megabytes},
                {"MAX ALLOC(MB)", F::MAX_ALLOC_MB, Kind::Level, unit::megabytes},
                {"HIST MAX ALLOC(MB)", F::HIST_MAX_ALLOC_MB, Kind::Level, unit::megabytes},
                {"NUM PROCS OR ALLOCS", F::NUM_PROCS_OR_ALLOCS, Kind::Level}},
    .keys = 2,
    .ofPairs = OfPairs::SnapshotOfRow,
};

}  // namespace

std::vector<ReleaseViews> processMemorySummaryStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
