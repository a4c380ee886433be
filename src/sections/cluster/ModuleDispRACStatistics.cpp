#include "sections/cluster/ModuleDispRACStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using R = clsRACStatistics;

const MetricView kView{.headings = {"START VALUE", "END VALUE"},
                       .rows = {{.label = "Number of Instances:",
                                 .member = "getNUMBER_OF_INSTANCES",
                                 .cells = {{"START VALUE", &R::START_NUMBER_OF_INSTANCES},
                                           {"END VALUE", &R::END_NUMBER_OF_INSTANCES}}}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispRACStatistics_All(Workspace& workspace, const std::string& version) {
  clsRACStatistics object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispRACStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest&) {
  clsRACStatistics object;
  renderMetricCol(workspace, object, kView, version, 1);
}

}  // namespace kestrelix
