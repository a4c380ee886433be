#include "sections/activity_io/ModuleDispInstanceActivityStats.h"

#include "sections/activity_io/clsInstanceActivityStats.h"

namespace kestrelix {
namespace {

using F = clsInstanceActivityStats::Field;

const ListView<clsInstanceActivityStats> kCumulative{.all = "getMAIN1_ALL",
                                                     .col = "getMAIN1_COL",
                                                     .columns = {{"STATISTIC", F::STATISTIC, Kind::Key},
                                                                 {"TOTAL", F::TOTAL, Kind::Count},
                                                                 {"PER SECOND", F::PER_SECOND, Kind::Rate},
                                                                 {"PER TRANS", F::PER_TRANS, Kind::Ratio}}};

const ListView<clsInstanceActivityStats> kLevels{.all = "getMAIN2_ALL",
                                                 .col = "getMAIN2_COL",
                                                 .columns = {{"STATISTIC", F::STATISTIC, Kind::Key},
                                                             {"START VALUE", F::START_VALUE, Kind::Level},
                                                             {"END VALUE", F::END_VALUE, Kind::Level}}};

const ListView<clsInstanceActivityStats> kLogSwitches{.all = "getMAIN3_ALL",
                                                      .col = "getMAIN3_COL",
                                                      .columns = {{"STATISTIC", F::STATISTIC, Kind::Key},
                                                                  {"TOTAL", F::TOTAL, Kind::Count},
                                                                  // No rate, which would be one a second.
                                                                  {"PER HOUR", F::PER_HOUR, Kind::Ratio}}};

}  // namespace

std::vector<ReleaseViews> instanceActivityStats1Views() { return {viewsOf(kAllVersions, kCumulative)}; }
std::vector<ReleaseViews> instanceActivityStats2Views() { return {viewsOf(kAllVersions, kLevels)}; }
std::vector<ReleaseViews> instanceActivityStats3Views() { return {viewsOf(kAllVersions, kLogSwitches)}; }

}  // namespace kestrelix
