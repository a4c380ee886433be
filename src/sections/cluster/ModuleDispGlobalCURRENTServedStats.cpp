#include "sections/cluster/ModuleDispGlobalCURRENTServedStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using C = clsGlobalCURRENTServedStats;

const MetricView kView{.headings = {"TOTAL", "% <1MS", "% <10MS", "% <100MS", "% <1S", "% <10S"},
                       .rows = {{.label = "Pins",
                                 .member = "getPINS",
                                 .cells = {{"TOTAL", &C::PINS},
                                           {"% <1MS", &C::PIN1},
                                           {"% <10MS", &C::PIN10},
                                           {"% <100MS", &C::PIN100},
                                           {"% <1S", &C::PIN1000},
                                           {"% <10S", &C::PIN10000}}},
                                {.label = "Flushes",
                                 .member = "getFLUSHES",
                                 .cells = {{"TOTAL", &C::FLUSHES},
                                           {"% <1MS", &C::FLUSH1},
                                           {"% <10MS", &C::FLUSH10},
                                           {"% <100MS", &C::FLUSH100},
                                           {"% <1S", &C::FLUSH1000},
                                           {"% <10S", &C::FLUSH10000}}},
                                {.label = "Writes",
                                 .member = "getWRITES",
                                 .cells = {{"TOTAL", &C::WRITES},
                                           {"% <1MS", &C::WRITE1},
                                           {"% <10MS", &C::WRITE10},
                                           {"% <100MS", &C::WRITE100},
                                           {"% <1S", &C::WRITE1000},
                                           {"% <10S", &C::WRITE10000}}}},
                       .headingsAloneOnRestart = true,
                       .nameHeading = "STATISTIC"};

}  // namespace

void gDispGlobalCURRENTServedStats_All(Workspace& workspace, const std::string& version) {
  clsGlobalCURRENTServedStats object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispGlobalCURRENTServedStats_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request) {
  clsGlobalCURRENTServedStats object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
