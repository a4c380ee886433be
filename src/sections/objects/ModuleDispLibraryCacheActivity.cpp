#include "sections/objects/ModuleDispLibraryCacheActivity.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using L = clsLibraryCacheActivity;

const ListView kRequests{{{"NAMESPACE", &L::NAMESPACE},
                          {"GET REQUESTS", &L::GET_REQUESTS},
                          {"PCT MISS", &L::GET_PCT_MISS},
                          {"PIN REQUESTS", &L::PIN_REQUESTS},
                          {"PCT MISS", &L::PIN_PCT_MISS},
                          {"RELOADS", &L::RELOADS},
                          {"INVALIDATIONS", &L::INVALIDATIONS}}};

const ListView kLocks{{{"NAMESPACE", &L::NAMESPACE},
                       {"GES LOCK REQUESTS", &L::GES_LOCK_REQUESTS},
                       {"GES PIN REQUESTS", &L::GES_PIN_REQUESTS},
                       {"GES PIN RELEASES", &L::GES_PIN_RELEASES},
                       {"GES INVAL REQUESTS", &L::GES_INVAL_REQUESTS},
                       {"GES INVALIDATIONS", &L::GES_INVALIDATIONS}}};

}  // namespace

void gDispLibraryCacheActivity1_All(Workspace& workspace, const std::string& version) {
  clsLibraryCacheActivity object;
  renderListAll(workspace, object, "getLIBRARY_CACHE_ACTIVITY_1_ALL", kRequests, version);
}

void gDispLibraryCacheActivity1_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsLibraryCacheActivity object;
  renderListCol(workspace, object, "getLIBRARY_CACHE_ACTIVITY_1_COL", kRequests, version, request.keys);
}

void gDispLibraryCacheActivity2_All(Workspace& workspace, const std::string& version) {
  clsLibraryCacheActivity object;
  renderListAll(workspace, object, "getLIBRARY_CACHE_ACTIVITY_2_ALL", kLocks, version);
}

void gDispLibraryCacheActivity2_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request) {
  clsLibraryCacheActivity object;
  renderListCol(workspace, object, "getLIBRARY_CACHE_ACTIVITY_2_COL", kLocks, version, request.keys);
}

}  // namespace kestrelix
