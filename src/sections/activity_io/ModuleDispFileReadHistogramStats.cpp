#include "sections/activity_io/ModuleDispFileReadHistogramStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using F = clsFileReadHistogramStats;

const ListView kView{{{"TABLESPACE", &F::TABLESPACE},
                      {"FILENAME", &F::FILENAME},
                      {"0 - 2 MS", &F::TO2},
                      {"2 - 4 MS", &F::TO4},
                      {"4 - 8 MS", &F::TO8},
                      {"8 - 16 MS", &F::TO16},
                      {"16 - 32 MS", &F::TO32},
                      {"32+ MS", &F::OVER32}},
                     2};

}  // namespace

void gDispFileReadHistogramStats_All(Workspace& workspace, const std::string& version) {
  clsFileReadHistogramStats object;
  renderListAll(workspace, object, "getFILE_READ_HISTOGRAM_STATS_ALL", kView, version);
}

void gDispFileReadHistogramStats_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsFileReadHistogramStats object;
  renderListCol(workspace, object, "getFILE_READ_HISTOGRAM_STATS_COL", kView, version, request.keys);
}

}  // namespace kestrelix
