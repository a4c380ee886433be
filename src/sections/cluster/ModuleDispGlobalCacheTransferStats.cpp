#include "sections/cluster/ModuleDispGlobalCacheTransferStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using T = clsGlobalCacheTransferStats;

/// "Y": the sending instances are told apart. Any other value: they aren't.
constexpr std::string_view kMode = "Y";

const std::vector<ViewColumn> kFigures{{"CR BLOCKS RECEIVED", &T::TOTCR}, {"CR % IMMED", &T::CR_BLKIMM},
                                       {"CR % BUSY", &T::CR_BLKBUS},      {"CR % CONGST", &T::CR_BLKCGT},
                                       {"CU BLOCKS RECEIVED", &T::TOTCU}, {"CU % IMMED", &T::CU_BLKIMM},
                                       {"CU % BUSY", &T::CU_BLKBUS},      {"CU % CONGST", &T::CU_BLKCGT}};

ListView behind(std::vector<ViewColumn> keys) {
  ListView view{.columns = std::move(keys)};
  view.keys = view.columns.size();
  view.columns.insert(view.columns.end(), kFigures.begin(), kFigures.end());
  return view;
}

const ListView kBlockView = behind({{"INST NO", &T::INST}, {"BLOCK CLASS", &T::BLOCK_CLASS}});
const ListView kClassView = behind({{"BLOCK CLASS", &T::BLOCK_CLASS}});

}  // namespace

void gDispGlobalCacheTransferStatsBlock_All(Workspace& workspace, const std::string& version) {
  clsGlobalCacheTransferStats object;
  renderListAll(workspace, object, "getGLOBAL_CACHE_TRANSFER_STATS_Y_ALL", kBlockView, version);
}

void gDispGlobalCacheTransferStatsBlock_Col(Workspace& workspace, const std::string& version,
                                            const ColRequest& request) {
  clsGlobalCacheTransferStats object;
  renderListCol(workspace, object, "getGLOBAL_CACHE_TRANSFER_STATS_Y_COL", kBlockView, version, request.keys);
}

void gDispGlobalCacheTransferStatsClass_All(Workspace& workspace, const std::string& version) {
  clsGlobalCacheTransferStats object;
  renderListAll(workspace, object, "getGLOBAL_CACHE_TRANSFER_STATS_N_ALL", kClassView, version);
}

void gDispGlobalCacheTransferStatsClass_Col(Workspace& workspace, const std::string& version,
                                            const ColRequest& request) {
  clsGlobalCacheTransferStats object;
  renderListCol(workspace, object, "getGLOBAL_CACHE_TRANSFER_STATS_N_COL", kClassView, version, request.keys);
}

void gDispGlobalCacheTransferStats_All(Workspace& workspace, const std::string& version) {
  if (kMode == "Y")
    gDispGlobalCacheTransferStatsBlock_All(workspace, version);
  else
    gDispGlobalCacheTransferStatsClass_All(workspace, version);
}

void gDispGlobalCacheTransferStats_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request) {
  if (kMode == "Y")
    gDispGlobalCacheTransferStatsBlock_Col(workspace, version, request);
  else
    gDispGlobalCacheTransferStatsClass_Col(workspace, version, request);
}

}  // namespace kestrelix
