#include "sections/cluster/ModuleDispGlobalCacheLoadProfile.h"

#include "sections/cluster/clsGlobalCacheLoadProfile.h"

namespace kestrelix {
namespace {

using F = clsGlobalCacheLoadProfile::Field;

const MetricView<clsGlobalCacheLoadProfile> kView{
    .headings = {"PER SECOND", "PER TRANSACTION"},
    .rows =
        {{.label = "Global Cache blocks received:",
          .member = "getGCBR_SEC",
          .cells = {{"PER SECOND", F::GCBR_SEC, Kind::Rate, unit::blocks},
                    {"PER TRANSACTION", F::GCBR_TRAN, Kind::Ratio, unit::blocks}},
          .furtherMembers = {"getGCBR_TRAN"}},
         {.label = "Global Cache blocks served:",
          .member = "getGCBS_SEC",
          .cells = {{"PER SECOND", F::GCBS_SEC, Kind::Rate, unit::blocks},
                    {"PER TRANSACTION", F::GCBS_TRAN, Kind::Ratio, unit::blocks}},
          .furtherMembers = {"getGCBS_TRAN"}},
         {.label = "GCS/GES messages received:",
          .member = "getGGMR_SEC",
          .cells = {{"PER SECOND", F::GGMR_SEC, Kind::Rate}, {"PER TRANSACTION", F::GGMR_TRAN, Kind::Ratio}},
          .furtherMembers = {"getGGMR_TRAN"}},
         {.label = "GCS/GES messages sent:",
          .member = "getGGMS_SEC",
          .cells = {{"PER SECOND", F::GGMS_SEC, Kind::Rate}, {"PER TRANSACTION", F::GGMS_TRAN, Kind::Ratio}},
          .furtherMembers = {"getGGMS_TRAN"}},
         {.label = "DBWR Fusion writes:",
          .member = "getDFW_SEC",
          .cells = {{"PER SECOND", F::DFW_SEC, Kind::Rate}, {"PER TRANSACTION", F::DFW_TRAN, Kind::Ratio}},
          .furtherMembers = {"getDFW_TRAN"}},
         {.label = "Estd Interconnect traffic (KB):",
          .member = "getEITKB_SEC",
          .cells = {{"PER SECOND", F::EITKB_SEC, Kind::Rate, unit::kilobytes}}}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> globalCacheLoadProfileViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
