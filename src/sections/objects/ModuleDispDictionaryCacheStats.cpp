#include "sections/objects/ModuleDispDictionaryCacheStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using D = clsDictionaryCacheStats;

const ListView kRequests{{{"CACHE", &D::CACHE},
                          {"GET REQUESTS", &D::GET_REQUESTS},
                          {"PCT MISS", &D::GET_PCT_MISS},
                          {"SCAN REQS", &D::SCAN_REQS},
                          {"PCT MISS", &D::SCAN_PCT_MISS},
                          {"MOD REQS", &D::MOD_REQS},
                          {"FINAL USAGE", &D::FINAL_USAGE}}};

const ListView kLocks{{{"CACHE", &D::CACHE},
                       {"GES REQUESTS", &D::GES_REQUESTS},
                       {"GES CONFLICTS", &D::GES_CONFLICTS},
                       {"GES RELEASES", &D::GES_RELEASES}}};

}  // namespace

void gDispDictionaryCacheStats1_All(Workspace& workspace, const std::string& version) {
  clsDictionaryCacheStats object;
  renderListAll(workspace, object, "getDICTIONARY_CACHE_STATS_1_ALL", kRequests, version);
}

void gDispDictionaryCacheStats1_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsDictionaryCacheStats object;
  renderListCol(workspace, object, "getDICTIONARY_CACHE_STATS_1_COL", kRequests, version, request.keys);
}

void gDispDictionaryCacheStats2_All(Workspace& workspace, const std::string& version) {
  clsDictionaryCacheStats object;
  renderListAll(workspace, object, "getDICTIONARY_CACHE_STATS_2_ALL", kLocks, version);
}

void gDispDictionaryCacheStats2_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsDictionaryCacheStats object;
  renderListCol(workspace, object, "getDICTIONARY_CACHE_STATS_2_COL", kLocks, version, request.keys);
}

}  // namespace kestrelix
