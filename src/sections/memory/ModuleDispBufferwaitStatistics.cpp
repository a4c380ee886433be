#include "sections/memory/ModuleDispBufferwaitStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using A = clsBufferwaitStatistics;

const ListView kView{{{"CLASS", &A::CLASSNAME},
                      {"WAITS", &A::ICNT},
                      {"TOTAL WAIT TIME(S)", &A::ITIM},
                      {"AVG TIME(MS)", &A::IAVG}}};

}  // namespace

void gDispBufferwaitStatistics_All(Workspace& workspace, const std::string& version) {
  clsBufferwaitStatistics object;
  renderListAll(workspace, object, "getBUFFER_WAIT_STATISTICS_ALL", kView, version);
}

void gDispBufferwaitStatistics_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request) {
  clsBufferwaitStatistics object;
  renderListCol(workspace, object, "getBUFFER_WAIT_STATISTICS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
