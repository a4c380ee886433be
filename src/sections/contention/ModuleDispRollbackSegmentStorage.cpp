#include "sections/contention/ModuleDispRollbackSegmentStorage.h"

#include "sections/contention/clsRollbackSegmentStorage.h"

namespace kestrelix {
namespace {

using F = clsRollbackSegmentStorage::Field;

const ListView<clsRollbackSegmentStorage> kView{
    .all = "getROLLBACK_SEGMENT_STORAGE_ALL",
    .col = "getROLLBACK_SEGMENT_STORAGE_COL",
    .columns = {{"RBS NO", F::USN, Kind::Key, unit::number},
                {"SEGMENT SIZE", F::RSSIZE, Kind::Level, unit::bytes},
                {"AVG ACTIVE", F::ACTIVE, Kind::Level, unit::bytes},
                {"OPTIMAL SIZE", F::OPTSIZE, Kind::Level, unit::bytes},
                {"MAXIMUM SIZE", F::HWMSIZE, Kind::Level, unit::bytes}},
    .allArguments = {"0"},
};

}  // namespace

std::vector<ReleaseViews> rollbackSegmentStorageViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix
