#include "sections/objects/ModuleDispLibraryCacheActivity.h"

#include "sections/objects/clsLibraryCacheActivity.h"

namespace kestrelix {
namespace {

using F = clsLibraryCacheActivity::Field;

const ListView<clsLibraryCacheActivity> kRequests{
    .all = "getLIBRARY_CACHE_ACTIVITY_1_ALL",
    .col = "getLIBRARY_CACHE_ACTIVITY_1_COL",
    .columns = {{"NAMESPACE", F::NAMESPACE, Kind::Key},
                {"GET REQUESTS", F::GET_REQUESTS, Kind::Count},
                {"PCT MISS", F::GET_PCT_MISS, Kind::Share, unit::percent},
                {"PIN REQUESTS", F::PIN_REQUESTS, Kind::Count},
                {"PCT MISS", F::PIN_PCT_MISS, Kind::Share, unit::percent},
                {"RELOADS", F::RELOADS, Kind::Count},
                {"INVALIDATIONS", F::INVALIDATIONS, Kind::Count}},
};

const ListView<clsLibraryCacheActivity> kLocks{
    .all = "getLIBRARY_CACHE_ACTIVITY_2_ALL",
    .col = "getLIBRARY_CACHE_ACTIVITY_2_COL",
    .columns = {{"NAMESPACE", F::NAMESPACE, Kind::Key},
                {"GES LOCK REQUESTS", F::GES_LOCK_REQUESTS, Kind::Count},
                {"GES PIN REQUESTS", F::GES_PIN_REQUESTS, Kind::Count},
                {"GES PIN RELEASES", F::GES_PIN_RELEASES, Kind::Count},
                {"GES INVAL REQUESTS", F::GES_INVAL_REQUESTS, Kind::Count},
                {"GES INVALIDATIONS", F::GES_INVALIDATIONS, Kind::Count}},
};

}  // namespace

std::vector<ReleaseViews> libraryCacheActivity1Views() { return {viewsOf(kAllVersions, kRequests)}; }
std::vector<ReleaseViews> libraryCacheActivity2Views() { return {viewsOf(kAllVersions, kLocks)}; }

}  // namespace kestrelix
