#include "sections/summary/ModuleDispInstanceEfficiency.h"

#include "sections/summary/clsInstanceEfficiency.h"

namespace kestrelix {
namespace {

using F = clsInstanceEfficiency::Field;
using Row = MetricRow<clsInstanceEfficiency>;

Row share(std::string label, std::string member, F value) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"OTHER VALUE", value, Kind::Share, unit::percent}}};
}
Row shares(std::string label, std::string member, F start, F end) {
  return {.label = std::move(label),
          .member = std::move(member),
          .cells = {{"START", start, Kind::Share, unit::percent}, {"END", end, Kind::Share, unit::percent}}};
}

/// Row 4 tells how sorts were done: in memory or on disk up to version 10, by work areas from 11 on.
MetricView<clsInstanceEfficiency> viewWith(Row row4) {
  return {.headings = {"START", "END", "OTHER VALUE"},
          .rows = {share("Buffer Nowait %:", "getBUFFER_NOWAIT", F::BUFFER_NOWAIT),
                   share("Redo NoWait %:", "getREDO_NOWAIT", F::REDO_NOWAIT),
                   share("Buffer  Hit   %:", "getBUFFER_HIT", F::BUFFER_HIT), std::move(row4),
                   share("Library Hit   %:", "getLIBRARY_HIT", F::LIBRARY_HIT),
                   share("Soft Parse %:", "getSOFT_PARSE", F::SOFT_PARSE),
                   share("Execute to Parse %:", "getEXECUTE_TO_PARSE", F::EXECUTE_TO_PARSE),
                   share("Latch Hit %:", "getLATCH_HIT", F::LATCH_HIT),
                   share("Parse CPU to Parse Elapsd %:", "getPARSE_CPU_TO_PARSE_ELAPSD",
                         F::PARSE_CPU_TO_PARSE_ELAPSD),
                   share("% Non-Parse CPU:", "getNON_PARSE_CPU", F::NON_PARSE_CPU),
                   shares("Memory Usage %:", "getMEMORY_USAGE", F::MEMORY_USAGE_START, F::MEMORY_USAGE_END),
                   shares("% SQL with executions>1:", "getSQL_WITH_EXECUTIONS", F::SQL_WITH_EXECUTIONS_START,
                          F::SQL_WITH_EXECUTIONS_END),
                   shares("% Memory for SQL w/exec>1:", "getMEMORY_FOR_SQL_WEXEC",
                          F::MEMORY_FOR_SQL_WEXEC_START, F::MEMORY_FOR_SQL_WEXEC_END)}};
}

const MetricView<clsInstanceEfficiency> kViewOf9And10 =
    viewWith(share("In-memory Sort %:", "getIN_MEMORY_SORT", F::IN_MEMORY_SORT));
const MetricView<clsInstanceEfficiency> kViewOf11 =
    viewWith(share("Optimal W/A Exec %:", "getOPTIMAL_WA_EXEC", F::OPTIMAL_WA_EXEC));

}  // namespace

std::vector<ReleaseViews> instanceEfficiencyViews() {
  return {viewsOf(V9_10, kViewOf9And10), viewsOf(V11, kViewOf11)};
}

}  // namespace kestrelix
