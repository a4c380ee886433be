#include "sections/memory/ModuleDispSharedPoolAdvisory.h"

#include "sections/memory/clsSharedPoolAdvisory.h"

namespace kestrelix {
namespace {

using F = clsSharedPoolAdvisory::Field;

const ListView<clsSharedPoolAdvisory> kView{
    .all = "getSHARED_POOL_ADVISORY_ALL",
    .col = "getSHARED_POOL_ADVISORY_COL",
    .columns = {{"SHARED POOL SIZE(MB)", F::SHARED_POOL_SIZE_MB, Kind::Key, unit::number},
                {"SP SIZE FACTR", F::SP_SIZE_FACTR, Kind::Key, unit::number},
                {"EST LC SIZE(MB)", F::EST_LC_SIZE_MB, Kind::Level, unit::megabytes},
                {"EST LC MEM OBJ", F::EST_LC_MEM_OBJ, Kind::Level},
                {"EST LC TIME SAVED(S)", F::EST_LC_TIME_SAVED_SEC, Kind::Level, unit::seconds},
                {"EST LC TIME SAVED FACTR", F::EST_LC_TIME_SAVED_FACTR, Kind::Level},
                {"EST LC LOAD TIME(S)", F::EST_LC_LOAD_TIME_SEC, Kind::Level, unit::seconds},
                {"EST LC LOAD TIME FACTR", F::EST_LC_LOAD_TIME_FACTR, Kind::Level},
                {"EST LC MEM OBJ HITS", F::EST_LC_MEM_OBJ_HITS, Kind::Level}},
    .keys = 2,
};

const ListView<clsSharedPoolAdvisory> kViewOf9{
    .all = "getSHARED_POOL_ADVISORY_ALL",
    .col = "getSHARED_POOL_ADVISORY_COL",
    .columns = {{"SHARED POOL SIZE(MB)", F::SHARED_POOL_SIZE_MB, Kind::Key, unit::number},
                {"SP SIZE FACTR", F::SP_SIZE_FACTR, Kind::Key, unit::number},
                {"EST LC SIZE(MB)", F::EST_LC_SIZE_MB, Kind::Level, unit::megabytes},
                {"EST LC MEM OBJ", F::EST_LC_MEM_OBJ, Kind::Level},
                {"EST LC TIME SAVED(S)", F::EST_LC_TIME_SAVED_SEC, Kind::Level, unit::seconds},
                {"EST LC TIME SAVED FACTR", F::EST_LC_TIME_SAVED_FACTR, Kind::Level},
                {"EST LC MEM OBJ HITS", F::EST_LC_MEM_OBJ_HITS, Kind::Level}},
    .keys = 2,
};

}  // namespace

std::vector<ReleaseViews> sharedPoolAdvisoryViews() {
  return {viewsOf(V9, kViewOf9), viewsOf(V10_11, kView)};
}

}  // namespace kestrelix
