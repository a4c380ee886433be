#include "sections/summary/ModuleDispInstanceEfficiency.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using I = clsInstanceEfficiency;

MetricRow ratio(std::string label, std::string member, Accessor value) {
  return {std::move(label), std::move(member), {{"OTHER VALUE", value}}};
}
MetricRow levels(std::string label, std::string member, Accessor start, Accessor end) {
  return {std::move(label), std::move(member), {{"START", start}, {"END", end}}};
}

/// Row 4 tells how sorts were done: in memory or on disk up to version 10, by work areas from 11 on.
MetricView view(MetricRow row4) {
  return {
      {"START", "END", "OTHER VALUE"},
      {ratio("Buffer Nowait %:", "getBUFFER_NOWAIT", &I::BUFFER_NOWAIT),
       ratio("Redo NoWait %:", "getREDO_NOWAIT", &I::REDO_NOWAIT),
       ratio("Buffer  Hit   %:", "getBUFFER_HIT", &I::BUFFER_HIT), std::move(row4),
       ratio("Library Hit   %:", "getLIBRARY_HIT", &I::LIBRARY_HIT),
       ratio("Soft Parse %:", "getSOFT_PARSE", &I::SOFT_PARSE),
       ratio("Execute to Parse %:", "getEXECUTE_TO_PARSE", &I::EXECUTE_TO_PARSE),
       ratio("Latch Hit %:", "getLATCH_HIT", &I::LATCH_HIT),
       ratio("Parse CPU to Parse Elapsd %:", "getPARSE_CPU_TO_PARSE_ELAPSD", &I::PARSE_CPU_TO_PARSE_ELAPSD),
       ratio("% Non-Parse CPU:", "getNON_PARSE_CPU", &I::NON_PARSE_CPU),
       levels("Memory Usage %:", "getMEMORY_USAGE", &I::MEMORY_USAGE_START, &I::MEMORY_USAGE_END),
       levels("% SQL with executions>1:", "getSQL_WITH_EXECUTIONS", &I::SQL_WITH_EXECUTIONS_START,
              &I::SQL_WITH_EXECUTIONS_END),
       levels("% Memory for SQL w/exec>1:", "getMEMORY_FOR_SQL_WEXEC", &I::MEMORY_FOR_SQL_WEXEC_START,
              &I::MEMORY_FOR_SQL_WEXEC_END)}};
}

const MetricView kViewOf9And10 = view(ratio("In-memory Sort %:", "getIN_MEMORY_SORT", &I::IN_MEMORY_SORT));
const MetricView kViewOf11 = view(ratio("Optimal W/A Exec %:", "getOPTIMAL_WA_EXEC", &I::OPTIMAL_WA_EXEC));

const MetricView& viewOf(const std::string& version) { return version == "11" ? kViewOf11 : kViewOf9And10; }

}  // namespace

void gDispInstanceEfficiency_All(Workspace& workspace, const std::string& version) {
  clsInstanceEfficiency object;
  renderMetricAll(workspace, object, viewOf(version), version);
}

void gDispInstanceEfficiency_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsInstanceEfficiency object;
  renderMetricCol(workspace, object, viewOf(version), version, request.row);
}

}  // namespace kestrelix
