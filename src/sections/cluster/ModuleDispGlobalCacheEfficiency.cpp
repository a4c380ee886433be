#include "sections/cluster/ModuleDispGlobalCacheEfficiency.h"

#include "sections/cluster/clsGlobalCacheEfficiency.h"

namespace kestrelix {
namespace {

using F = clsGlobalCacheEfficiency::Field;

const MetricView<clsGlobalCacheEfficiency> kView{
    .headings = {"VALUE"},
    .rows = {{.label = "Buffer access -  local cache %:",
              .member = "getLOCAL_CACHE",
              .cells = {{"VALUE", F::LOCAL_CACHE, Kind::Share, unit::percent}}},
             {.label = "Buffer access - remote cache %:",
              .member = "getREMOTE_CACHE",
              .cells = {{"VALUE", F::REMOTE_CACHE, Kind::Share, unit::percent}}},
             {.label = "Buffer access -         disk %:",
              .member = "getDISK",
              .cells = {{"VALUE", F::DISK, Kind::Share, unit::percent}}}},
    .headingsAloneOnRestart = true};

}  // namespace

std::vector<ReleaseViews> globalCacheEfficiencyViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
