#include "sections/cluster/ModuleDispGlobalCacheEfficiency.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using E = clsGlobalCacheEfficiency;

const MetricView kView{.headings = {"VALUE"},
                       .rows = {{.label = "Buffer access -  local cache %:",
                                 .member = "getLOCAL_CACHE",
                                 .cells = {{"VALUE", &E::LOCAL_CACHE}}},
                                {.label = "Buffer access - remote cache %:",
                                 .member = "getREMOTE_CACHE",
                                 .cells = {{"VALUE", &E::REMOTE_CACHE}}},
                                {.label = "Buffer access -         disk %:",
                                 .member = "getDISK",
                                 .cells = {{"VALUE", &E::DISK}}}},
                       .headingsAloneOnRestart = true};

}  // namespace

void gDispGlobalCacheEfficiency_All(Workspace& workspace, const std::string& version) {
  clsGlobalCacheEfficiency object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispGlobalCacheEfficiency_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsGlobalCacheEfficiency object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
