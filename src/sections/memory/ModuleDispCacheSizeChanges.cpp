#include "sections/memory/ModuleDispCacheSizeChanges.h"

#include "sections/memory/clsCacheSizeChanges.h"

namespace kestrelix {
namespace {

using F = clsCacheSizeChanges::Field;

const ListView<clsCacheSizeChanges> kView{
    .all = "getCACHE_SIZE_CHANGES_ALL",
    .col = "getCACHE_SIZE_CHANGES_COL",
    .columns = {{"CACHE", F::CACHE, Kind::Key},
                {"START SIZE(MB)", F::START_SIZE_MB, Kind::Level, unit::megabytes},
                {"END SIZE(MB)", F::END_SIZE_MB, Kind::Level, unit::megabytes},
                {"DIFF SIZE(MB)", F::DIFF_SIZE_MB, Kind::Count, unit::megabytes}},
};

}  // namespace

std::vector<ReleaseViews> cacheSizeChangesViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
