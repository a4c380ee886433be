#include "sections/memory/ModuleDispSQLMemoryStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsSQLMemoryStatistics;

const MetricView kView{.headings = {"BEGIN", "END", "% DIFF"},
                       .rows = {{.label = "Avg Cursor Size (KB):",
                                 .member = "getAVG_CURSOR_SIZE_KB",
                                 .cells = {{"BEGIN", &A::AVG_CURSOR_SIZE_KB_BIGIN},
                                           {"END", &A::AVG_CURSOR_SIZE_KB_END},
                                           {"% DIFF", &A::AVG_CURSOR_SIZE_KB_DIFF}}},
                                {.label = "Cursor to Parent ratio:",
                                 .member = "getCURSOR_TO_PARENT_RATIO",
                                 .cells = {{"BEGIN", &A::CURSOR_TO_PARENT_RATIO_BIGIN},
                                           {"END", &A::CURSOR_TO_PARENT_RATIO_END},
                                           {"% DIFF", &A::CURSOR_TO_PARENT_RATIO_DIFF}}},
                                {.label = "Total Cursors:",
                                 .member = "getTOTAL_CURSORS",
                                 .cells = {{"BEGIN", &A::TOTAL_CURSORS_BIGIN},
                                           {"END", &A::TOTAL_CURSORS_END},
                                           {"% DIFF", &A::TOTAL_CURSORS_DIFF}}},
                                {.label = "Total Parents:",
                                 .member = "getTOTAL_PARENTS",
                                 .cells = {{"BEGIN", &A::TOTAL_PARENTS_BIGIN},
                                           {"END", &A::TOTAL_PARENTS_END},
                                           {"% DIFF", &A::TOTAL_PARENTS_DIFF}}}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispSQLMemoryStatistics_All(Workspace& workspace, const std::string& version) {
  clsSQLMemoryStatistics object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispSQLMemoryStatistics_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsSQLMemoryStatistics object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
