#include "sections/summary/ModuleDispCacheSize.h"

#include "sections/summary/clsCacheSize.h"

namespace kestrelix {
namespace {

using F = clsCacheSize::Field;

const MetricView<clsCacheSize> kView{
    .headings = {"START VALUE", "END VALUE", "OTHER VALUE"},
    .rows = {{.label = "Buffer Cache(MB):",
              .member = "getBURRER_CACHE_SIZE",
              .cells = {{"START VALUE", F::START_BC_MB, Kind::Level, unit::megabytes},
                        {"END VALUE", F::END_BC_MB, Kind::Level, unit::megabytes}}},
             {.label = "Shared Pool(MB):",
              .member = "getSHARED_POOL_SIZE",
              .cells = {{"START VALUE", F::START_SP_MB, Kind::Level, unit::megabytes},
                        {"END VALUE", F::END_SP_MB, Kind::Level, unit::megabytes}}},
             {.label = "Std Block Size(KB):",
              .member = "getSTANDERD_BLOCK_SIZE",
              .cells = {{"OTHER VALUE", F::DB_BLOCK_KB, Kind::Level, unit::kilobytes}}},
             {.label = "Log Buffer(KB):",
              .member = "getLOG_BUFFER_SIZE",
              .cells = {{"OTHER VALUE", F::LOG_BUF_KB, Kind::Level, unit::kilobytes}}}}};

}  // namespace

std::vector<ReleaseViews> cacheSizeViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
