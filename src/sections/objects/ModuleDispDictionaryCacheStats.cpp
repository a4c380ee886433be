#include "sections/objects/ModuleDispDictionaryCacheStats.h"

#include "sections/objects/clsDictionaryCacheStats.h"

namespace kestrelix {
namespace {

using F = clsDictionaryCacheStats::Field;

const ListView<clsDictionaryCacheStats> kRequests{
    .all = "getDICTIONARY_CACHE_STATS_1_ALL",
    .col = "getDICTIONARY_CACHE_STATS_1_COL",
    .columns = {{"CACHE", F::CACHE, Kind::Key},
                {"GET REQUESTS", F::GET_REQUESTS, Kind::Count},
                {"PCT MISS", F::GET_PCT_MISS, Kind::Share, unit::percent},
                {"SCAN REQS", F::SCAN_REQS, Kind::Count},
                {"PCT MISS", F::SCAN_PCT_MISS, Kind::Share, unit::percent},
                {"MOD REQS", F::MOD_REQS, Kind::Count},
                {"FINAL USAGE", F::FINAL_USAGE, Kind::Level}},
};

const ListView<clsDictionaryCacheStats> kLocks{
    .all = "getDICTIONARY_CACHE_STATS_2_ALL",
    .col = "getDICTIONARY_CACHE_STATS_2_COL",
    .columns = {{"CACHE", F::CACHE, Kind::Key},
                {"GES REQUESTS", F::GES_REQUESTS, Kind::Count},
                {"GES CONFLICTS", F::GES_CONFLICTS, Kind::Count},
                {"GES RELEASES", F::GES_RELEASES, Kind::Count}},
};

}  // namespace

std::vector<ReleaseViews> dictionaryCacheStats1Views() { return {viewsOf(kAllVersions, kRequests)}; }
std::vector<ReleaseViews> dictionaryCacheStats2Views() { return {viewsOf(kAllVersions, kLocks)}; }

}  // namespace kestrelix
