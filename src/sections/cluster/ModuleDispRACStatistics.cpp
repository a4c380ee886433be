#include "sections/cluster/ModuleDispRACStatistics.h"

#include "sections/cluster/clsRACStatistics.h"

namespace kestrelix {
namespace {

using F = clsRACStatistics::Field;

const MetricView<clsRACStatistics> kView{
    .headings = {"START VALUE", "END VALUE"},
    .rows = {{.label = "Number of Instances:",
              .member = "getNUMBER_OF_INSTANCES",
              .cells = {{"START VALUE", F::START_NUMBER_OF_INSTANCES, Kind::Level},
                        {"END VALUE", F::END_NUMBER_OF_INSTANCES, Kind::Level}}}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> racStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
