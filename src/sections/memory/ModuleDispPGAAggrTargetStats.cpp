#include "sections/memory/ModuleDispPGAAggrTargetStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsPGAAggrTargetStats;

const ListView kHitRatio{{{"PGA CACHE HIT %", &A::PGA_CACHE_HIT_PAR},
                          {"W/A MB PROCESSED", &A::W_A_MB_PROCESSED},
                          {"EXTRA W/A MB READ/WRITTEN", &A::EXTRA_W_A_MB_READ_WRITTEN}},
                         0};
const ListView kSizes{{{"SNAP", &A::SNAP},
                       {"PGA AGGR TARGET(MB)", &A::PGA_AGGR_TARGET_MB},
                       {"AUTO PGA TARGET(MB)", &A::AUTO_PGA_TARGET_MB},
                       {"PGA MEM ALLOC(MB)", &A::PGA_MEM_ALLOC_MB},
                       {"W/A PGA USED(MB)", &A::W_A_PGA_USED_MB},
                       {"%PGA W/A MEM", &A::PAR_PGA_W_A_MEM},
                       {"%AUTO W/A MEM", &A::PAR_AUTO_W_A_MEM},
                       {"%MAN W/A MEM", &A::PAR_MAN_W_A_MEM},
                       {"GLOBAL MEM BOUND(KB)", &A::GLOBAL_MEM_BOUND_KB}}};

}  // namespace

void gDispPGAAggrTargetStats1_All(Workspace& workspace, const std::string& version) {
  clsPGAAggrTargetStats object;
  renderListAll(workspace, object, "getPGA_AGGR_TARGET_STATS_1_ALL", kHitRatio, version);
}

void gDispPGAAggrTargetStats1_Col(Workspace& workspace, const std::string& version, const ColRequest&) {
  clsPGAAggrTargetStats object;
  renderListCol(workspace, object, "getPGA_AGGR_TARGET_STATS_1_COL", kHitRatio, version, {});
}

void gDispPGAAggrTargetStats2_All(Workspace& workspace, const std::string& version) {
  clsPGAAggrTargetStats object;
  renderListAll(workspace, object, "getPGA_AGGR_TARGET_STATS_2_ALL", kSizes, version);
}

void gDispPGAAggrTargetStats2_ColBegin(Workspace& workspace, const std::string& version,
                                       const ColRequest& request) {
  clsPGAAggrTargetStats object;
  renderListCol(workspace, object, "getPGA_AGGR_TARGET_STATS_2_COL", kSizes.with(OfPairs::StartTime), version,
                request.keys);
}

void gDispPGAAggrTargetStats2_ColEnd(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsPGAAggrTargetStats object;
  renderListCol(workspace, object, "getPGA_AGGR_TARGET_STATS_2_COL", kSizes.with(OfPairs::EndTime), version,
                request.keys);
}

}  // namespace kestrelix
