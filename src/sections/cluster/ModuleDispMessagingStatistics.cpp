#include "sections/cluster/ModuleDispMessagingStatistics.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using M = clsMessagingStatistics;

const MetricView kView{
    .headings = {"VALUE"},
    .rows =
        {{.label = "Avg message sent queue time (ms):",
          .member = "getAMSQT",
          .cells = {{"VALUE", &M::AMSQT}}},
         {.label = "Avg message sent queue time on ksxp (ms):",
          .member = "getAMSQTOK",
          .cells = {{"VALUE", &M::AMSQTOK}}},
         {.label = "Avg message received queue time (ms):",
          .member = "getAMRQT",
          .cells = {{"VALUE", &M::AMRQT}}},
         {.label = "Avg GCS message process time (ms):",
          .member = "getAGCMPT",
          .cells = {{"VALUE", &M::AGCMPT}}},
         {.label = "Avg GES message process time (ms):",
          .member = "getAGEMPT",
          .cells = {{"VALUE", &M::AGEMPT}}},
         {.label = "% of direct sent messages:", .member = "getPODSM", .cells = {{"VALUE", &M::PODSM}}},
         {.label = "% of indirect sent messages:", .member = "getPOISM", .cells = {{"VALUE", &M::POISM}}},
         {.label = "% of flow controlled messages:", .member = "getPOFCM", .cells = {{"VALUE", &M::POFCM}}}},
    .headingsAloneOnRestart = true};

}  // namespace

void gDispMessagingStatistics_All(Workspace& workspace, const std::string& version) {
  clsMessagingStatistics object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispMessagingStatistics_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request) {
  clsMessagingStatistics object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
