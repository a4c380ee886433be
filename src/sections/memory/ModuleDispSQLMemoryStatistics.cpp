#include "sections/memory/ModuleDispSQLMemoryStatistics.h"

#include "sections/memory/clsSQLMemoryStatistics.h"

namespace kestrelix {
namespace {

using F = clsSQLMemoryStatistics::Field;

const MetricView<clsSQLMemoryStatistics> kView{
    .headings = {"BEGIN", "END", "% DIFF"},
    .rows = {{.label = "Avg Cursor Size (KB):",
              .member = "getAVG_CURSOR_SIZE_KB",
              .cells = {{"BEGIN", F::AVG_CURSOR_SIZE_KB_BIGIN, Kind::Level, unit::kilobytes},
                        {"END", F::AVG_CURSOR_SIZE_KB_END, Kind::Level, unit::kilobytes},
                        {"% DIFF", F::AVG_CURSOR_SIZE_KB_DIFF, Kind::Share, unit::percent}}},
             {.label = "Cursor to Parent ratio:",
              .member = "getCURSOR_TO_PARENT_RATIO",
              .cells = {{"BEGIN", F::CURSOR_TO_PARENT_RATIO_BIGIN, Kind::Level},
                        {"END", F::CURSOR_TO_PARENT_RATIO_END, Kind::Level},
                        {"% DIFF", F::CURSOR_TO_PARENT_RATIO_DIFF, Kind::Share, unit::percent}}},
             {.label = "Total Cursors:",
              .member = "getTOTAL_CURSORS",
              .cells = {{"BEGIN", F::TOTAL_CURSORS_BIGIN, Kind::Level},
                        {"END", F::TOTAL_CURSORS_END, Kind::Level},
                        {"% DIFF", F::TOTAL_CURSORS_DIFF, Kind::Share, unit::percent}}},
             {.label = "Total Parents:",
              .member = "getTOTAL_PARENTS",
              .cells = {{"BEGIN", F::TOTAL_PARENTS_BIGIN, Kind::Level},
                        {"END", F::TOTAL_PARENTS_END, Kind::Level},
                        {"% DIFF", F::TOTAL_PARENTS_DIFF, Kind::Share, unit::percent}}}},
    .headingsAloneOnRestart = true,
};

}  // namespace

std::vector<ReleaseViews> sqlMemoryStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
