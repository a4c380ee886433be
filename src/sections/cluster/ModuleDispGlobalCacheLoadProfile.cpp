#include "sections/cluster/ModuleDispGlobalCacheLoadProfile.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using P = clsGlobalCacheLoadProfile;

const MetricView kView{.headings = {"PER SECOND", "PER TRANSACTION"},
                       .rows = {{.label = "Global Cache blocks received:",
                                 .member = "getGCBR_SEC",
                                 .cells = {{"PER SECOND", &P::GCBR_SEC}, {"PER TRANSACTION", &P::GCBR_TRAN}},
                                 .furtherMembers = {"getGCBR_TRAN"}},
                                {.label = "Global Cache blocks served:",
                                 .member = "getGCBS_SEC",
                                 .cells = {{"PER SECOND", &P::GCBS_SEC}, {"PER TRANSACTION", &P::GCBS_TRAN}},
                                 .furtherMembers = {"getGCBS_TRAN"}},
                                {.label = "GCS/GES messages received:",
                                 .member = "getGGMR_SEC",
                                 .cells = {{"PER SECOND", &P::GGMR_SEC}, {"PER TRANSACTION", &P::GGMR_TRAN}},
                                 .furtherMembers = {"getGGMR_TRAN"}},
                                {.label = "GCS/GES messages sent:",
                                 .member = "getGGMS_SEC",
                                 .cells = {{"PER SECOND", &P::GGMS_SEC}, {"PER TRANSACTION", &P::GGMS_TRAN}},
                                 .furtherMembers = {"getGGMS_TRAN"}},
                                {.label = "DBWR Fusion writes:",
                                 .member = "getDFW_SEC",
                                 .cells = {{"PER SECOND", &P::DFW_SEC}, {"PER TRANSACTION", &P::DFW_TRAN}},
                                 .furtherMembers = {"getDFW_TRAN"}},
                                {.label = "Estd Interconnect traffic (KB):",
                                 .member = "getEITKB_SEC",
                                 .cells = {{"PER SECOND", &P::EITKB_SEC}}}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispGlobalCacheLoadProfile_All(Workspace& workspace, const std::string& version) {
  clsGlobalCacheLoadProfile object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispGlobalCacheLoadProfile_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request) {
  clsGlobalCacheLoadProfile object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
