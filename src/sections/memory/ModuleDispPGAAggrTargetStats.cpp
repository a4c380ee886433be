#include "sections/memory/ModuleDispPGAAggrTargetStats.h"

#include "sections/memory/clsPGAAggrTargetStats.h"

namespace kestrelix {
namespace {

using F = clsPGAAggrTargetStats::Field;

const ListView<clsPGAAggrTargetStats> kHitRatio{
    .all = "getPGA_AGGR_TARGET_STATS_1_ALL",
    .col = "getPGA_AGGR_TARGET_STATS_1_COL",
    .columns = {{"PGA CACHE HIT %", F::PGA_CACHE_HIT_PAR, Kind::Share, unit::percent},
                {"W/A MB PROCESSED", F::W_A_MB_PROCESSED, Kind::Count, unit::megabytes},
                {"EXTRA W/A MB READ/WRITTEN", F::EXTRA_W_A_MB_READ_WRITTEN, Kind::Count, unit::megabytes}},
    .keys = 0,
};

const ListView<clsPGAAggrTargetStats> kSizes{
    .all = "getPGA_AGGR_TARGET_STATS_2_ALL",
    .col = "getPGA_AGGR_TARGET_STATS_2_COL",
    .columns = {{"SNAP", F::SNAP, Kind::Key},
                {"PGA AGGR TARGET(MB)", F::PGA_AGGR_TARGET_MB, Kind::Level, unit::megabytes},
                {"AUTO PGA TARGET(MB)", F::AUTO_PGA_TARGET_MB, Kind::Level, unit::megabytes},
                {"PGA MEM ALLOC(MB)", F::PGA_MEM_ALLOC_MB, Kind::Level, unit::megabytes},
                {"W/A PGA USED(MB)", F::W_A_PGA_USED_MB, Kind::Level, unit::megabytes},
                {"%PGA W/A MEM", F::PAR_PGA_W_A_MEM, Kind::Share, unit::percent},
                {"%AUTO W/A MEM", F::PAR_AUTO_W_A_MEM, Kind::Share, unit::percent},
                {"%MAN W/A MEM", F::PAR_MAN_W_A_MEM, Kind::Share, unit::percent},
                {"GLOBAL MEM BOUND(KB)", F::GLOBAL_MEM_BOUND_KB, Kind::Level, unit::kilobytes}},
    .ofPairs = OfPairs::SnapshotOfRow,
};

}  // namespace

std::vector<ReleaseViews> pgaAggrTargetStats1Views() { return {viewsOf(kAllVersions, kHitRatio)}; }
std::vector<ReleaseViews> pgaAggrTargetStats2Views() { return {viewsOf(kAllVersions, kSizes)}; }

}  // namespace kestrelix
