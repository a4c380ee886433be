#include "sections/memory/ModuleDispProcessMemorySummaryStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsProcessMemorySummaryStats;

const ListView kView{{{"SNAP", &A::SNAP},
                      {"CATEGORY", &A::CATEGORY},
                      {"ALLOC(MB)", &A::ALLOC_MB},
                      {"USED(MB)", &A::USED_MB},
                      {"FREEABL(MB)", &A::FREE_MB},
                      {"AVG ALLOC(MB)", &A::AVG_ALLOC_MB},
                      {"STD DEV ALLOC(MB)", &A::STDDEV_ALLOC_MB},
                      {"MAX ALLOC(MB)", &A::MAX_ALLOC_MB},
                      {"HIST MAX ALLOC(MB)", &A::HIST_MAX_ALLOC_MB},
                      {"NUM PROCS OR ALLOCS", &A::NUM_PROCS_OR_ALLOCS}},
                     2};

}  // namespace

void gDispProcessMemorySummaryStats_All(Workspace& workspace, const std::string& version) {
  clsProcessMemorySummaryStats object;
  renderListAll(workspace, object, "getPROCESS_MEMORY_SUMMARY_STATS_ALL", kView, version);
}

void gDispProcessMemorySummaryStats_ColBegin(Workspace& workspace, const std::string& version,
                                             const ColRequest& request) {
  clsProcessMemorySummaryStats object;
  renderListCol(workspace, object, "getPROCESS_MEMORY_SUMMARY_STATS_COL", kView.with(OfPairs::StartTime),
                version, request.keys);
}

void gDispProcessMemorySummaryStats_ColEnd(Workspace& workspace, const std::string& version,
                                           const ColRequest& request) {
  clsProcessMemorySummaryStats object;
  renderListCol(workspace, object, "getPROCESS_MEMORY_SUMMARY_STATS_COL", kView.with(OfPairs::EndTime),
                version, request.keys);
}

}  // namespace kestrelix
