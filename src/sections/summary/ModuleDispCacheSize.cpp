#include "sections/summary/ModuleDispCacheSize.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using C = clsCacheSize;

const MetricView kView{{"START VALUE", "END VALUE", "OTHER VALUE"},
                       {{.label = "Buffer Cache(MB):",
                         .member = "getBURRER_CACHE_SIZE",
                         .cells = {{"START VALUE", &C::START_BC_MB}, {"END VALUE", &C::END_BC_MB}}},
                        {.label = "Shared Pool(MB):",
                         .member = "getSHARED_POOL_SIZE",
                         .cells = {{"START VALUE", &C::START_SP_MB}, {"END VALUE", &C::END_SP_MB}}},
                        {.label = "Std Block Size(KB):",
                         .member = "getSTANDERD_BLOCK_SIZE",
                         .cells = {{"OTHER VALUE", &C::DB_BLOCK_KB}}},
                        {.label = "Log Buffer(KB):",
                         .member = "getLOG_BUFFER_SIZE",
                         .cells = {{"OTHER VALUE", &C::LOG_BUF_KB}}}}};

}  // namespace

void gDispCacheSize_All(Workspace& workspace, const std::string& version) {
  clsCacheSize object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispCacheSize_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsCacheSize object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix
