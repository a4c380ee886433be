#include "sections/cluster/ModuleDispGlobalCURRENTServedStats.h"

#include "sections/cluster/clsGlobalCURRENTServedStats.h"

namespace kestrelix {
namespace {

using F = clsGlobalCURRENTServedStats::Field;

const MetricView<clsGlobalCURRENTServedStats> kView{
    .headings = {"TOTAL", "% <1MS", "% <10MS", "% <100MS", "% <1S", "% <10S"},
    .rows = {{.label = "Pins",
              .member = "getPINS",
              .cells = {{"TOTAL", F::PINS, Kind::Count},
                        {"% <1MS", F::PIN1, Kind::Share, unit::percent},
                        {"% <10MS", F::PIN10, Kind::Share, unit::percent},
                        {"% <100MS", F::PIN100, Kind::Share, unit::percent},
                        {"% <1S", F::PIN1000, Kind::Share, unit::percent},
                        {"% <10S", F::PIN10000, Kind::Share, unit::percent}}},
             {.label = "Flushes",
              .member = "getFLUSHES",
              .cells = {{"TOTAL", F::FLUSHES, Kind::Count},
                        {"% <1MS", F::FLUSH1, Kind::Share, unit::percent},
                        {"% <10MS", F::FLUSH10, Kind::Share, unit::percent},
                        {"% <100MS", F::FLUSH100, Kind::Share, unit::percent},
                        {"% <1S", F::FLUSH1000, Kind::Share, unit::percent},
                        {"% <10S", F::FLUSH10000, Kind::Share, unit::percent}}},
             {.label = "Writes",
              .member = "getWRITES",
              .cells = {{"TOTAL", F::WRITES, Kind::Count},
                        {"% <1MS", F::WRITE1, Kind::Share, unit::percent},
                        {"% <10MS", F::WRITE10, Kind::Share, unit::percent},
                        {"% <100MS", F::WRITE100, Kind::Share, unit::percent},
                        {"% <1S", F::WRITE1000, Kind::Share, unit::percent},
                        {"% <10S", F::WRITE10000, Kind::Share, unit::percent}}}},
    .headingsAloneOnRestart = true,
    .nameHeading = "STATISTIC"};

}  // namespace

std::vector<ReleaseViews> globalCURRENTServedStatsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
