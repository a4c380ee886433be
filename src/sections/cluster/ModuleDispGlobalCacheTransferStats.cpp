#include "sections/cluster/ModuleDispGlobalCacheTransferStats.h"

#include "sections/cluster/clsGlobalCacheTransferStats.h"

namespace kestrelix {
namespace {

using F = clsGlobalCacheTransferStats::Field;
using Columns = std::vector<Column<clsGlobalCacheTransferStats>>;

/// "Y": the sending instances are told apart. Any other value: they aren't.
constexpr std::string_view kMode = "Y";

/// The figures of both forms, behind the keys of one.
Columns behind(Columns keys) {
  const Columns figures{{"CR BLOCKS RECEIVED", F::TOTCR, Kind::Count, unit::blocks},
                        {"CR % IMMED", F::CR_BLKIMM, Kind::Share, unit::percent},
                        {"CR % BUSY", F::CR_BLKBUS, Kind::Share, unit::percent},
                        {"CR % CONGST", F::CR_BLKCGT, Kind::Share, unit::percent},
                        {"CU BLOCKS RECEIVED", F::TOTCU, Kind::Count, unit::blocks},
                        {"CU % IMMED", F::CU_BLKIMM, Kind::Share, unit::percent},
                        {"CU % BUSY", F::CU_BLKBUS, Kind::Share, unit::percent},
                        {"CU % CONGST", F::CU_BLKCGT, Kind::Share, unit::percent}};
  keys.insert(keys.end(), figures.begin(), figures.end());
  return keys;
}

const ListView<clsGlobalCacheTransferStats> kBlockView{
    .all = "getGLOBAL_CACHE_TRANSFER_STATS_Y_ALL",
    .col = "getGLOBAL_CACHE_TRANSFER_STATS_Y_COL",
    .columns =
        behind({{"INST NO", F::INST, Kind::Key, unit::number}, {"BLOCK CLASS", F::BLOCK_CLASS, Kind::Key}}),
    .keys = 2};

const ListView<clsGlobalCacheTransferStats> kClassView{
    .all = "getGLOBAL_CACHE_TRANSFER_STATS_N_ALL",
    .col = "getGLOBAL_CACHE_TRANSFER_STATS_N_COL",
    .columns = behind({{"BLOCK CLASS", F::BLOCK_CLASS, Kind::Key}})};

}  // namespace

std::vector<ReleaseViews> globalCacheTransferStatsBlockViews() { return {viewsOf(kAllVersions, kBlockView)}; }

std::vector<ReleaseViews> globalCacheTransferStatsClassViews() { return {viewsOf(kAllVersions, kClassView)}; }

std::vector<ReleaseViews> globalCacheTransferStatsViews() {
  return kMode == "Y" ? globalCacheTransferStatsBlockViews() : globalCacheTransferStatsClassViews();
}

}  // namespace kestrelix
