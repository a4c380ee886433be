#include "sections/cluster/ModuleDispMessagingStatistics.h"

#include "sections/cluster/clsMessagingStatistics.h"

namespace kestrelix {
namespace {

using F = clsMessagingStatistics::Field;

const MetricView<clsMessagingStatistics> kView{
    .headings = {"VALUE"},
    .rows = {{.label = "Avg message sent queue time (ms):",
              .member = "getAMSQT",
              .cells = {{"VALUE", F::AMSQT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg message sent queue time on ksxp (ms):",
              .member = "getAMSQTOK",
              .cells = {{"VALUE", F::AMSQTOK, Kind::Average, unit::milliseconds}}},
             {.label = "Avg message received queue time (ms):",
              .member = "getAMRQT",
              .cells = {{"VALUE", F::AMRQT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg GCS message process time (ms):",
              .member = "getAGCMPT",
              .cells = {{"VALUE", F::AGCMPT, Kind::Average, unit::milliseconds}}},
             {.label = "Avg GES message process time (ms):",
              .member = "getAGEMPT",
              .cells = {{"VALUE", F::AGEMPT, Kind::Average, unit::milliseconds}}},
             {.label = "% of direct sent messages:",
              .member = "getPODSM",
              .cells = {{"VALUE", F::PODSM, Kind::Share, unit::percent}}},
             {.label = "% of indirect sent messages:",
              .member = "getPOISM",
              .cells = {{"VALUE", F::POISM, Kind::Share, unit::percent}}},
             {.label = "% of flow controlled messages:",
              .member = "getPOFCM",
              .cells = {{"VALUE", F::POFCM, Kind::Share, unit::percent}}}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> messagingStatisticsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
